#include "fuses/FusesByteModel.h"

namespace {

void recomputeValue(FuseByte& byte)
{
    byte.currentValue = 0;
    for (std::size_t i = 0; i < byte.fuseBits.size(); ++i)
        byte.currentValue += byte.fuseBits[i].currentBitValue << i;
}

} // namespace

FusesByteModel::FusesByteModel(FuseBytes& bytes, int index, QObject* parent)
    : QObject(parent)
    , m_bytes(bytes)
    , m_index(index)
{
}

void FusesByteModel::setByte(quint32 value)
{
    FuseByte& byte = m_bytes[m_index];
    for (std::size_t i = 0; i < byte.fuseBits.size(); ++i) {
        FuseBit& bit = byte.fuseBits[i];
        if (bit.enabled && bit.isUsed())
            bit.currentBitValue = (value >> i) & 1U;
    }
    recomputeValue(byte);
}

void FusesByteModel::setBit(int index, bool checked)
{
    FuseByte& byte = m_bytes[m_index];
    if (index < 0 || index >= static_cast<int>(byte.fuseBits.size()))
        return;
    byte.fuseBits[static_cast<std::size_t>(index)].currentBitValue = checked ? 0 : 1;
    recomputeValue(byte);
}

void FusesByteModel::restoreDefaults(FuseBytes& bytes)
{
    for (FuseByte& byte : bytes)
        byte.currentValue = byte.defaultValue;
}

QStringList FusesByteModel::applyReadValues(FuseBytes& bytes, const QStringList& texts)
{
    QStringList unread;
    for (int i = 0; i < bytes.size() && i < texts.size(); ++i) {
        if (texts.at(i).isEmpty())
            unread += bytes.at(i).name;
        else
            bytes[i].currentValue = texts.at(i).toUInt(nullptr, 16);
    }
    return unread;
}
