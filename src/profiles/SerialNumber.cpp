#include "profiles/SerialNumber.h"

#include "app/record/SettingsRecord.h"
#include "avrdude/ExtraArguments.h"
#include "base/JsonFile.h"
#include "mcu/description/BytesModel.h"

#include <QCoreApplication>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 largest = 1LL << 53; // up to which JSON's numbers are exact

QString say(const char* sentence)
{
    return QCoreApplication::translate("SerialNumber", sentence);
}

/// A whole number from 0 on; -1 for all else.
qint64 wholeNumber(const QJsonValue& json)
{
    const double number = json.toDouble(-1);
    return number >= 0 && number < static_cast<double>(largest) && std::floor(number) == number
        ? static_cast<qint64>(number)
        : -1;
}

/// A record of the type @p type, with the address @p address of two bytes.
QByteArray record(qint64 address, char type, const QByteArray& data)
{
    QByteArray bytes;
    bytes += static_cast<char>(data.size());
    bytes += static_cast<char>(address >> 8);
    bytes += static_cast<char>(address);
    bytes += type;
    bytes += data;
    int sum = 0;
    for (const char byte : std::as_const(bytes))
        sum -= byte;
    return ':' + (bytes + static_cast<char>(sum)).toHex().toUpper() + '\n';
}

} // namespace

SerialNumber SerialNumber::from(const QJsonValue& json)
{
    const QJsonObject object = json.toObject();
    SerialNumber number;
    number.memory = object.value(QLatin1String("memory")).toString();
    number.address = wholeNumber(object.value(QLatin1String("address")));
    number.bytes = static_cast<int>(std::min<qint64>(wholeNumber(object.value(QLatin1String("bytes"))), 1000));
    number.format = object.value(QLatin1String("format")).toString();
    number.next = wholeNumber(object.value(QLatin1String("next")));
    return number;
}

QString SerialNumber::fault(const SettingsRecord& settings) const
{
    const bool isDigits = format == QLatin1String("decimal") || format == QLatin1String("hex");
    const bool isBinary = format == QLatin1String("little") || format == QLatin1String("big");
    constexpr int mostDigits = 32;
    constexpr int mostBytes = 8;
    constexpr qint64 highest = 0xFFFFFF; // beyond all memories of any part
    if (memory != QLatin1String("eeprom") && memory != QLatin1String("flash"))
        return say(QT_TRANSLATE_NOOP("SerialNumber", "Its memory is neither \"eeprom\" nor \"flash\"."));
    if (!isDigits && !isBinary)
        return say(
            QT_TRANSLATE_NOOP("SerialNumber", "Its format is none of \"little\", \"big\", \"decimal\" and \"hex\"."));
    if (address < 0 || address > highest || next < 0 || bytes < 1 || bytes > (isDigits ? mostDigits : mostBytes))
        return say(QT_TRANSLATE_NOOP("SerialNumber",
                                     "\"address\", \"bytes\" and \"next\" have to be whole numbers, and \"bytes\" 1 to "
                                     "%1."))
            .arg(isDigits ? mostDigits : mostBytes);
    if (image().isEmpty())
        return say(QT_TRANSLATE_NOOP("SerialNumber", "The number %1 takes more than \"bytes\": %2."))
            .arg(next)
            .arg(bytes);
    const qint64 size = BytesModel::memorySize(settings, memory);
    const bool isDescribed = BytesModel::memorySize(settings, QStringLiteral("flash")) > 0;
    if (isDescribed && address + bytes > std::max<qint64>(size, 0))
        return say(QT_TRANSLATE_NOOP("SerialNumber", "It lies outside the memory, which has %1 bytes."))
            .arg(std::max<qint64>(size, 0));
    if (ExtraArguments(settings.arguments).has('e'))
        return say(
            QT_TRANSLATE_NOOP("SerialNumber", "The argument -e would erase the chip before the number is written."));
    return {};
}

QByteArray SerialNumber::image() const
{
    if (next < 0)
        return {};
    QByteArray text;
    if (format == QLatin1String("decimal") || format == QLatin1String("hex")) {
        text = QByteArray::number(next, format == QLatin1String("hex") ? 16 : 10).toUpper().rightJustified(bytes, '0');
        return text.size() == bytes ? text : QByteArray();
    }
    qint64 rest = next;
    for (int i = 0; i < bytes; ++i, rest >>= 8)
        text.append(static_cast<char>(rest));
    if (format == QLatin1String("big"))
        std::reverse(text.begin(), text.end());
    return rest == 0 ? text : QByteArray();
}

QByteArray SerialNumber::intelHex() const
{
    enum : char { Data, EndOfFile, SegmentAddress, SegmentStart, LinearAddress };
    QByteArray file;
    qint64 at = address;
    const QByteArray all = image();
    for (const char byte : all) { // a record each, so that none runs over a border of 64 KiB
        const qint64 upper = at >> 16;
        file += record(0, LinearAddress, {QByteArray(1, static_cast<char>(upper >> 8)) + static_cast<char>(upper)});
        file += record(at++, Data, QByteArray(1, byte));
    }
    return file + record(0, EndOfFile, {});
}

bool SerialNumber::replace(const QString& path, qint64 from, qint64 to)
{
    return changeFile(path, [from, to](QJsonObject& profile) {
        QJsonObject number = profile.value(QLatin1String("serial")).toObject();
        if (wholeNumber(number.value(QLatin1String("next"))) != from)
            return false;
        number.insert(QLatin1String("next"), to);
        profile.insert(QLatin1String("serial"), number);
        return true;
    });
}
