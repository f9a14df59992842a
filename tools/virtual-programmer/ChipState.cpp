#include "ChipState.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

constexpr int bytesPerRow = 32;

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

QString hex(const QByteArray& bytes)
{
    return QStringLiteral("0x") + QString::fromLatin1(bytes.toHex().toUpper());
}

/// Reads fuse or lock bytes; bits that the part does not have read as its factory has them, whatever the file says.
bool readBytes(const QJsonValue& value, const QByteArray& existingBits, QByteArray& bytes)
{
    const QByteArray text = value.toString().toLatin1();
    const QByteArray found = QByteArray::fromHex(text.mid(2));
    if (!text.startsWith("0x") || found.size() != bytes.size() || found.toHex() != text.mid(2).toLower())
        return false;
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>((found.at(i) & existingBits.at(i)) | (bytes.at(i) & ~existingBits.at(i)));
    return true;
}

} // namespace

std::optional<ChipState> ChipState::load(const QString& path, const ChipShape& shape, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("Cannot read %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const QString owner = object.value(QLatin1String("part")).toString();
    if (!owner.isEmpty() && owner != shape.part) {
        error = QStringLiteral("%1 holds the state of part %2, not of %3.").arg(path, owner, shape.part);
        return std::nullopt;
    }

    ChipState state = shape.factory;
    const QJsonObject fuses = object.value(QLatin1String("fuses")).toObject();
    bool isComplete = !owner.isEmpty() && readRows(object.value(QLatin1String("flash")), state.flash)
        && readRows(object.value(QLatin1String("eeprom")), state.eeprom)
        && (state.userRow.isEmpty() || readRows(object.value(QLatin1String("userRow")), state.userRow))
        && readBytes(object.value(QLatin1String("lock")), shape.lockBits, state.lock);
    for (int fuse = 0; fuse < state.fuses.size(); ++fuse) {
        QByteArray byte(1, static_cast<char>(state.fuses[fuse]));
        const QByteArray bits(1, static_cast<char>(shape.fuseBits[fuse]));
        isComplete =
            isComplete && (shape.fuseBits[fuse] == 0 || readBytes(fuses.value(shape.fuseNames[fuse]), bits, byte));
        state.fuses[fuse] = static_cast<quint8>(byte.at(0));
    }
    if (!isComplete) {
        error = QStringLiteral("%1 is damaged or holds no chip state.").arg(path);
        return std::nullopt;
    }
    return state;
}

bool ChipState::save(const QString& path, const ChipShape& shape, QString& error) const
{
    QJsonObject fuseObject;
    for (int fuse = 0; fuse < fuses.size(); ++fuse) {
        if (shape.fuseBits[fuse] != 0)
            fuseObject.insert(shape.fuseNames[fuse], hex(fuses[fuse], 2));
    }
    QJsonObject object {{QStringLiteral("part"), shape.part},
                        {QStringLiteral("flash"), rowsOf(flash)},
                        {QStringLiteral("eeprom"), rowsOf(eeprom)},
                        {QStringLiteral("fuses"), fuseObject},
                        {QStringLiteral("lock"), hex(lock)}};
    if (!userRow.isEmpty())
        object.insert(QStringLiteral("userRow"), rowsOf(userRow));

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(object).toJson()) < 0 || !file.commit()) {
        error = QStringLiteral("Cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

bool ChipState::operator==(const ChipState& other) const
{
    return flash == other.flash && eeprom == other.eeprom && fuses == other.fuses && lock == other.lock
        && userRow == other.userRow;
}
