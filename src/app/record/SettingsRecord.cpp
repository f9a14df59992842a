#include "app/record/SettingsRecord.h"

#include "base/JsonFile.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>

#include <algorithm>

namespace {

const QLatin1String updateCheckKey("updateCheck");

// More is none of what the program writes, and would hold up the window: it counts as missing.
constexpr int longestText = 4096; // characters; a path has no more
constexpr int longestList = 1000;

// The keys of the settings file, once for the reader and the writer: "visit" is either, and is told of every member the
// object that its key stands in (none: the file's own), the key, the member, and what a missing text becomes.

template <class Bit, class Visitor> void visitBit(Bit& bit, Visitor& visit)
{
    visit("", "bitNumber", bit.bitNumber);
    visit("", "enabled", bit.enabled);
    visit("", "name", bit.name, FuseBit().name);
    visit("", "defaultBitValue", bit.defaultBitValue);
    visit("", "currentBitValue", bit.currentBitValue);
}

template <class Byte, class Visitor> void visitByte(Byte& byte, Visitor& visit)
{
    visit("", "name", byte.name);
    visit("", "id", byte.id);
    visit("", "defaultValue", byte.defaultValue);
    visit("", "currentValue", byte.currentValue);
    visit("", "fuseBits", byte.fuseBits);
}

template <class Record, class Visitor> void visitRecord(Record& record, Visitor& visit)
{
    const SettingsRecord defaults;
    visit("", "avrdude", record.avrdude, defaults.avrdude);
    visit("", "mcuName", record.mcuName);
    visit("", "mcuId", record.mcuId, defaults.mcuId);
    visit("", "signature", record.signature);
    visit("", "callByte", record.callByte);
    visit("", "language", record.language);
    visit("", "arguments", record.arguments);
    visit("", "fileNamesReading", record.fileNamesReading);
    visit("", "fusesBytes", record.fusesBytes);

    visit("files", "flashWrite", record.flashWrite);
    visit("files", "flashRead", record.flashRead);
    visit("files", "eepromWrite", record.eepromWrite);
    visit("files", "eepromRead", record.eepromRead);
    visit("files", "cmdFlashWrite", record.cmdFlashWrite);
    visit("files", "cmdEepromWrite", record.cmdEepromWrite);
    visit("files", "cmdFuses", record.cmdFuses);

    visit("programmer", "name", record.programmer.name, defaults.programmer.name);
    visit("programmer", "id", record.programmer.id, defaults.programmer.id);
    visit("programmer", "port", record.port, defaults.port);
    visit("programmer", "speed", record.speed, defaults.speed);

    visit("profiles", "flashCheck", record.flashCheck);
    visit("profiles", "eepromCheck", record.eepromCheck);
    visit("profiles", "fusesCheck", record.fusesCheck);
    visit("profiles", "flashEnable", record.flashEnable);
    visit("profiles", "eepromEnable", record.eepromEnable);
    visit("profiles", "fusesEnable", record.fusesEnable);
    visit("profiles", "name", record.profile.name);
    visit("profiles", "description", record.description);
    visit("profiles", Visitor::profileListKey, record.configurationList);
    visit("profiles", "currentlyProfilesList", record.currentlyProfilesList);
}

class Writer
{
public:
    // Deliberate: written under this key and read under another, so that only a file that somebody prepared by hand
    // brings extra names, and saving does not make them stay.
    static constexpr char profileListKey[] = "configurationList";

    template <class Value> void operator()(const char* group, const char* key, const Value& value, const QString& = {})
    {
        m_groups[QLatin1String(group)].insert(QLatin1String(key), json(value));
    }

    [[nodiscard]] QJsonObject object() const
    {
        QJsonObject object = m_groups.value({});
        for (auto group = m_groups.begin(); group != m_groups.end(); ++group) {
            if (!group.key().isEmpty())
                object.insert(group.key(), group.value());
        }
        return object;
    }

private:
    static QJsonValue json(const QString& text) { return text; }
    static QJsonValue json(bool flag) { return flag; }
    static QJsonValue json(int number) { return number; }
    static QJsonValue json(quint32 number) { return static_cast<int>(number); }
    static QJsonValue json(const QStringList& list) { return QJsonArray::fromStringList(list); }

    static QJsonValue json(const FuseBit& bit)
    {
        Writer writer;
        visitBit(bit, writer);
        return writer.object();
    }

    static QJsonValue json(const FuseByte& byte)
    {
        Writer writer;
        visitByte(byte, writer);
        return writer.object();
    }

    template <class List> static QJsonValue json(const List& list)
    {
        QJsonArray array;
        for (const auto& element : list)
            array.append(json(element));
        return array;
    }

    QMap<QString, QJsonObject> m_groups; ///< by name; the file's own has none
};

class Reader
{
public:
    static constexpr char profileListKey[] = "profilesList";

    explicit Reader(const QJsonValue& value)
        : m_object(value.toObject())
    {
    }

    template <class Value>
    void operator()(const char* group, const char* key, Value& value, const QString& fallback = {}) const
    {
        const QJsonObject& object = *group == '\0' ? m_object : m_object.value(QLatin1String(group)).toObject();
        read(object.value(QLatin1String(key)), value, fallback);
    }

private:
    static void read(const QJsonValue& json, QString& text, const QString& fallback)
    {
        text = json.toString(fallback);
        if (text.size() > longestText)
            text = fallback;
    }
    static void read(const QJsonValue& json, bool& flag, const QString&) { flag = json.toBool(); }
    static void read(const QJsonValue& json, int& number, const QString&) { number = json.toInt(); }

    static void read(const QJsonValue& json, quint32& number, const QString&)
    {
        number = static_cast<quint32>(json.toInt());
    }

    static void read(const QJsonValue& json, QStringList& list, const QString&)
    {
        list = jsonTexts(json);
        const auto isTooLong = [](const QString& text) { return text.size() > longestText; };
        if (list.size() > longestList || std::any_of(list.begin(), list.end(), isTooLong))
            list.clear();
    }

    static void read(const QJsonValue& json, std::array<FuseBit, 8>& bits, const QString&)
    {
        const QJsonArray array = json.toArray();
        int number = 0;
        for (FuseBit& bit : bits) {
            Reader reader(array.at(number++)); // past the end there is nothing, which reads as a fresh bit
            visitBit(bit, reader);
            bit.bitNumber = std::clamp(bit.bitNumber, 0, 7);
            bit.defaultBitValue = bit.defaultBitValue == 0 ? 0 : 1;
            bit.currentBitValue = bit.currentBitValue == 0 ? 0 : 1;
        }
    }

    static void read(const QJsonValue& json, FuseBytes& bytes, const QString&)
    {
        constexpr quint32 highest = 0xFF;
        bytes.clear();
        const QJsonArray array = json.toArray();
        for (const QJsonValue& element : array) {
            if (bytes.size() == FuseByte::most)
                break;
            FuseByte byte;
            Reader reader(element);
            visitByte(byte, reader);
            byte.defaultValue &= highest;
            byte.currentValue &= highest;
            bytes.append(byte);
        }
    }

    const QJsonObject m_object;
};

} // namespace

bool SettingsRecord::saveToFile(const QString& path, File file) const
{
    Writer writer;
    visitRecord(*this, writer);
    QJsonObject object = writer.object();
    if (file == File::Profile)
        return changeFile(path, [&object](QJsonObject& present) {
            for (auto key = object.begin(); key != object.end(); ++key)
                present.insert(key.key(), key.value());
            return true;
        });
    if (!updateCheck)
        object.insert(updateCheckKey, false);
    return writeFile(path, QJsonDocument(object).toJson(QJsonDocument::Indented));
}

bool SettingsRecord::loadFromFile(const QString& path, File file)
{
    const JsonFile json = JsonFile::read(path);
    if (!json.isObject())
        return false;
    ++generation;
    hasFormerPort = false;
    const QJsonObject object = json.document.object();
    if (file == File::Settings)
        updateCheck = object.value(updateCheckKey).toBool(true);
    Reader reader(object);
    visitRecord(*this, reader);
    return true;
}
