#include "app/record/FuseByte.h"

namespace {

void recomputeValue(FuseByte& byte)
{
    byte.currentValue = 0;
    for (std::size_t i = 0; i < byte.fuseBits.size(); ++i)
        byte.currentValue += byte.fuseBits[i].currentBitValue << i;
}

} // namespace

void setValue(FuseByte& byte, quint32 value)
{
    for (std::size_t i = 0; i < byte.fuseBits.size(); ++i) {
        FuseBit& bit = byte.fuseBits[i];
        if (bit.enabled && bit.isUsed())
            bit.currentBitValue = (value >> i) & 1U;
    }
    recomputeValue(byte);
}

void setBit(FuseByte& byte, int number, bool isProgrammed)
{
    if (number < 0 || number >= static_cast<int>(byte.fuseBits.size()))
        return;
    byte.fuseBits[static_cast<std::size_t>(number)].currentBitValue = isProgrammed ? 0 : 1;
    recomputeValue(byte);
}

void bringTogether(FuseBytes& bytes)
{
    for (FuseByte& byte : bytes)
        setValue(byte, byte.currentValue);
}

void restoreDefaults(FuseBytes& bytes)
{
    for (FuseByte& byte : bytes)
        byte.currentValue = byte.defaultValue;
}

QStringList takeReadValues(FuseBytes& bytes, const QStringList& texts)
{
    constexpr int digitsOfByte = 2;
    QStringList unread;
    auto byte = bytes.begin();
    for (auto text = texts.begin(); text != texts.end() && byte != bytes.end(); ++text, ++byte) {
        if (text->size() == digitsOfByte)
            byte->currentValue = text->toUInt(nullptr, 16);
        else
            unread += byte->name;
    }
    return unread;
}
