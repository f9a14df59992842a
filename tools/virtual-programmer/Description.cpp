#include "Description.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

constexpr int mostFlash = 1024 * 1024; // more than any AVR has
constexpr int mostEeprom = 64 * 1024;

bool isPowerOfTwo(int number)
{
    return (number & (number - 1)) == 0;
}

std::optional<Description::Byte> readByte(const QJsonArray& bits)
{
    constexpr int bitsPerByte = 8;
    if (bits.size() != bitsPerByte)
        return std::nullopt;
    Description::Byte byte;
    for (int i = 0; i < bitsPerByte; ++i) {
        const auto mask = static_cast<quint8>(0x80 >> i);
        const QString name = bits[i][QLatin1String("name")].toString();
        if (bits[i][QLatin1String("default")].toInt() != 0)
            byte.factory |= mask;
        if (name == QLatin1String("NOT USED"))
            continue;
        byte.bits |= mask;
        byte.masks.insert(name, mask);
    }
    return byte;
}

/// Nothing where `object` does not describe a part that a chip can be made of.
std::optional<Description> describedBy(const QJsonObject& object)
{
    const QJsonValue eeprom = object.value(QLatin1String("eeprom"));
    Description part;
    part.name = object.value(QLatin1String("mcu")).toString();
    part.interfaces = object.value(QLatin1String("interfaces")).toVariant().toStringList();
    part.signature = QByteArray::fromHex(object.value(QLatin1String("signature")).toString().toLatin1());
    part.flashSize = object.value(QLatin1String("flash")).toInt();
    part.eepromSize = eeprom.isUndefined() ? 0 : eeprom.toInt(-1);
    const bool isSane = !part.interfaces.isEmpty() && part.signature.size() == 3 && part.flashSize > 0
        && part.flashSize <= mostFlash && part.eepromSize >= 0 && part.eepromSize <= mostEeprom;
    // A chip with ISP masks addresses.
    const bool isMasked = part.interfaces.contains(QLatin1String("ISP"));
    if (!isSane || (isMasked && !(isPowerOfTwo(part.flashSize) && isPowerOfTwo(part.eepromSize))))
        return std::nullopt;

    const QJsonArray bytes = object.value(QLatin1String("FuseBytes")).toArray();
    for (const QJsonValue& value : bytes) {
        const auto byte = readByte(value[QLatin1String("bits")].toArray());
        if (!byte)
            return std::nullopt;
        part.bytes.insert(value[QLatin1String("id")].toString(), *byte);
    }
    return part;
}

} // namespace

std::optional<Description> Description::read(const QString& name, const QStringList& folders, QString& error)
{
    for (const QString& folder : folders) {
        // Without regard to the letter case; a pattern in the name finds nothing.
        const QStringList files = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files);
        const auto index = files.indexOf(QRegularExpression(
            QRegularExpression::anchoredPattern(QRegularExpression::escape(name) + QStringLiteral("\\.json")),
            QRegularExpression::CaseInsensitiveOption));
        QFile file(folder + QLatin1Char('/') + files.value(index));
        if (index < 0 || !file.open(QIODevice::ReadOnly))
            continue;
        auto part = describedBy(QJsonDocument::fromJson(file.readAll()).object());
        if (!part || part->name.compare(name, Qt::CaseInsensitive) != 0) {
            error = QStringLiteral("The description %1 is damaged.").arg(file.fileName());
            return std::nullopt;
        }
        return part;
    }
    return std::nullopt;
}

ChipState::FuseBit Description::findBit(const QStringList& ids, const QString& bit) const
{
    for (int fuse = 0; fuse < ids.size(); ++fuse) {
        if (const quint8 mask = bytes.value(ids[fuse]).masks.value(bit))
            return {fuse, mask};
    }
    return {};
}
