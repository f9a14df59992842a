#include "ChipState.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

constexpr int bytesPerRow = 32;
const std::array<QLatin1String, Part::FuseCount> fuseKeys = {QLatin1String("low"), QLatin1String("high"),
                                                             QLatin1String("extended")};

QString hex(int number, int digits)
{
    return QStringLiteral("0x") + QString::number(number, 16).rightJustified(digits, QLatin1Char('0')).toUpper();
}

QJsonObject rowsOf(const QByteArray& memory)
{
    QJsonObject rows;
    for (int address = 0; address < memory.size(); address += bytesPerRow) {
        const QByteArray row = memory.mid(address, bytesPerRow);
        if (row.count('\xFF') < row.size())
            rows.insert(hex(address, 5), QString::fromLatin1(row.toHex()));
    }
    return rows;
}

bool readRows(const QJsonValue& value, QByteArray& memory)
{
    const QJsonObject rows = value.toObject();
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        bool isNumber = false;
        const int address = row.key().toInt(&isNumber, 16);
        const QByteArray text = row.value().toString().toLatin1();
        const QByteArray bytes = QByteArray::fromHex(text);
        const bool isHex = !bytes.isEmpty() && bytes.toHex() == text.toLower();
        if (!isNumber || !isHex || address < 0 || address > memory.size() - bytes.size())
            return false;
        memory.replace(address, bytes.size(), bytes);
    }
    return value.isObject();
}

/// Reads a fuse or lock byte; bits that the part does not have read as 1 whatever the file says.
bool readByte(const QJsonValue& value, quint8 existingBits, quint8& byte)
{
    bool isNumber = false;
    const uint number = value.toString().toUInt(&isNumber, 16);
    byte = static_cast<quint8>(number | ~uint {existingBits});
    return isNumber && number <= 0xFF;
}

} // namespace

ChipState ChipState::factory(const Part& part)
{
    return {QByteArray(part.flashSize, '\xFF'), QByteArray(part.eepromSize, '\xFF'), part.factoryFuses, 0xFF};
}

std::optional<ChipState> ChipState::load(const QString& path, const Part& part, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("Cannot read %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const QString owner = object.value(QLatin1String("part")).toString();
    if (!owner.isEmpty() && owner != part.name) {
        error = QStringLiteral("%1 holds the state of part %2, not of %3.").arg(path, owner, part.name);
        return std::nullopt;
    }

    ChipState state = factory(part);
    const QJsonObject fuses = object.value(QLatin1String("fuses")).toObject();
    bool isComplete = !owner.isEmpty() && readRows(object.value(QLatin1String("flash")), state.flash)
        && readRows(object.value(QLatin1String("eeprom")), state.eeprom)
        && readByte(object.value(QLatin1String("lock")), part.lockBits, state.lock);
    for (std::size_t fuse = 0; fuse < Part::FuseCount; ++fuse) {
        const quint8 bits = part.fuseBits[fuse];
        isComplete = isComplete && (bits == 0 || readByte(fuses.value(fuseKeys[fuse]), bits, state.fuses[fuse]));
    }
    if (!isComplete) {
        error = QStringLiteral("%1 is damaged or holds no chip state.").arg(path);
        return std::nullopt;
    }
    return state;
}

bool ChipState::save(const QString& path, const Part& part, QString& error) const
{
    QJsonObject fuseObject;
    for (std::size_t fuse = 0; fuse < Part::FuseCount; ++fuse) {
        if (part.fuseBits[fuse] != 0)
            fuseObject.insert(fuseKeys[fuse], hex(fuses[fuse], 2));
    }
    const QJsonObject object {{QStringLiteral("part"), part.name},
                              {QStringLiteral("flash"), rowsOf(flash)},
                              {QStringLiteral("eeprom"), rowsOf(eeprom)},
                              {QStringLiteral("fuses"), fuseObject},
                              {QStringLiteral("lock"), hex(lock, 2)}};

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(object).toJson()) < 0 || !file.commit()) {
        error = QStringLiteral("Cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

bool ChipState::operator==(const ChipState& other) const
{
    return flash == other.flash && eeprom == other.eeprom && fuses == other.fuses && lock == other.lock;
}
