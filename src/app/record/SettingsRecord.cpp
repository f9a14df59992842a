#include "app/record/SettingsRecord.h"

#include "base/JsonFile.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVariant>

namespace {

QJsonArray toJson(const QStringList& list)
{
    return QJsonArray::fromStringList(list);
}

QJsonObject toJson(const FuseBit& bit)
{
    return {
        {QStringLiteral("bitNumber"), bit.bitNumber},
        {QStringLiteral("enabled"), bit.enabled},
        {QStringLiteral("name"), bit.name},
        {QStringLiteral("defaultBitValue"), static_cast<int>(bit.defaultBitValue)},
        {QStringLiteral("currentBitValue"), static_cast<int>(bit.currentBitValue)},
    };
}

QJsonObject toJson(const FuseByte& byte)
{
    QJsonArray bits;
    for (const FuseBit& bit : byte.fuseBits)
        bits.append(toJson(bit));
    return {
        {QStringLiteral("name"), byte.name},
        {QStringLiteral("id"), byte.id},
        {QStringLiteral("defaultValue"), static_cast<int>(byte.defaultValue)},
        {QStringLiteral("currentValue"), static_cast<int>(byte.currentValue)},
        {QStringLiteral("fuseBits"), bits},
    };
}

QJsonArray toJson(const FuseBytes& bytes)
{
    QJsonArray array;
    for (const FuseByte& byte : bytes)
        array.append(toJson(byte));
    return array;
}

/// Reads an object's members with the fallbacks of the settings file.
class Reader
{
public:
    explicit Reader(const QJsonValue& value)
        : m_object(value.toObject())
    {
    }

    [[nodiscard]] QJsonValue value(const char* key) const { return m_object.value(QLatin1String(key)); }
    [[nodiscard]] bool flag(const char* key) const { return value(key).toBool(); }
    [[nodiscard]] int number(const char* key) const { return value(key).toInt(); }
    [[nodiscard]] quint32 byteValue(const char* key) const { return static_cast<quint32>(number(key)); }
    [[nodiscard]] QJsonArray array(const char* key) const { return value(key).toArray(); }

    [[nodiscard]] QString text(const char* key, const QString& fallback = {}) const
    {
        return value(key).toString(fallback);
    }

    [[nodiscard]] QStringList list(const char* key) const
    {
        return QVariant(array(key).toVariantList()).toStringList();
    }

private:
    const QJsonObject m_object;
};

FuseBit readFuseBit(const Reader& in)
{
    FuseBit bit;
    bit.bitNumber = in.number("bitNumber");
    bit.enabled = in.flag("enabled");
    bit.name = in.text("name", bit.name);
    bit.defaultBitValue = in.byteValue("defaultBitValue");
    bit.currentBitValue = in.byteValue("currentBitValue");
    return bit;
}

FuseByte readFuseByte(const Reader& in)
{
    FuseByte byte;
    byte.name = in.text("name");
    byte.id = in.text("id");
    byte.defaultValue = in.byteValue("defaultValue");
    byte.currentValue = in.byteValue("currentValue");
    const QJsonArray bits = in.array("fuseBits");
    int number = 0;
    for (FuseBit& bit : byte.fuseBits)
        bit = readFuseBit(Reader(bits.at(number++))); // past the end there is nothing, which reads as a fresh bit
    return byte;
}

} // namespace

bool SettingsRecord::saveToFile(const QString& path) const
{
    const QJsonObject files {
        {QStringLiteral("flashWrite"), flashWrite},
        {QStringLiteral("flashRead"), flashRead},
        {QStringLiteral("eepromWrite"), eepromWrite},
        {QStringLiteral("eepromRead"), eepromRead},
        {QStringLiteral("cmdFlashWrite"), toJson(cmdFlashWrite)},
        {QStringLiteral("cmdEepromWrite"), toJson(cmdEepromWrite)},
        {QStringLiteral("cmdFuses"), toJson(cmdFuses)},
    };
    const QJsonObject programmerObject {
        {QStringLiteral("name"), programmer.name},
        {QStringLiteral("id"), programmer.id},
        {QStringLiteral("port"), port},
        {QStringLiteral("speed"), speed},
    };
    const QJsonObject profiles {
        {QStringLiteral("flashCheck"), flashCheck},
        {QStringLiteral("eepromCheck"), eepromCheck},
        {QStringLiteral("fusesCheck"), fusesCheck},
        {QStringLiteral("flashEnable"), flashEnable},
        {QStringLiteral("eepromEnable"), eepromEnable},
        {QStringLiteral("fusesEnable"), fusesEnable},
        {QStringLiteral("name"), profile.name},
        {QStringLiteral("description"), description},
        // Deliberate: written under this key and read from "profilesList", so that only a file that somebody prepared
        // by hand brings extra names, and saving does not make them stay.
        {QStringLiteral("configurationList"), toJson(configurationList)},
        {QStringLiteral("currentlyProfilesList"), currentlyProfilesList},
    };
    const QJsonObject root {
        {QStringLiteral("avrdude"), avrdude},
        {QStringLiteral("mcuName"), mcuName},
        {QStringLiteral("mcuId"), mcuId},
        {QStringLiteral("signature"), signature},
        {QStringLiteral("callByte"), callByte},
        {QStringLiteral("language"), language},
        {QStringLiteral("files"), files},
        {QStringLiteral("programmer"), programmerObject},
        {QStringLiteral("fusesBytes"), toJson(fusesBytes)},
        {QStringLiteral("arguments"), arguments},
        {QStringLiteral("fileNamesReading"), toJson(fileNamesReading)},
        {QStringLiteral("profiles"), profiles},
    };
    return writeFile(path, QJsonDocument(root).toJson(QJsonDocument::Indented));
}

bool SettingsRecord::loadFromFile(const QString& path)
{
    const JsonFile file = JsonFile::read(path);
    if (!file.isObject())
        return false;

    ++generation;
    const SettingsRecord defaults;
    const Reader root(file.document.object());
    avrdude = root.text("avrdude", defaults.avrdude);
    mcuName = root.text("mcuName");
    mcuId = root.text("mcuId", defaults.mcuId);
    signature = root.text("signature");
    callByte = root.text("callByte");
    language = root.text("language");
    arguments = root.text("arguments");
    fileNamesReading = root.list("fileNamesReading");

    const Reader files(root.value("files"));
    flashWrite = files.text("flashWrite");
    flashRead = files.text("flashRead");
    eepromWrite = files.text("eepromWrite");
    eepromRead = files.text("eepromRead");
    cmdFlashWrite = files.list("cmdFlashWrite");
    cmdEepromWrite = files.list("cmdEepromWrite");
    cmdFuses = files.list("cmdFuses");

    const Reader programmerObject(root.value("programmer"));
    programmer.name = programmerObject.text("name", defaults.programmer.name);
    programmer.id = programmerObject.text("id", defaults.programmer.id);
    port = programmerObject.text("port", defaults.port);
    speed = programmerObject.text("speed", defaults.speed);

    fusesBytes.clear();
    const QJsonArray bytes = root.array("fusesBytes");
    for (const QJsonValue& byte : bytes)
        fusesBytes.append(readFuseByte(Reader(byte)));

    const Reader profiles(root.value("profiles"));
    flashCheck = profiles.flag("flashCheck");
    eepromCheck = profiles.flag("eepromCheck");
    fusesCheck = profiles.flag("fusesCheck");
    flashEnable = profiles.flag("flashEnable");
    eepromEnable = profiles.flag("eepromEnable");
    fusesEnable = profiles.flag("fusesEnable");
    profile.name = profiles.text("name");
    description = profiles.text("description");
    configurationList = profiles.list("profilesList");
    currentlyProfilesList = profiles.text("currentlyProfilesList");
    return true;
}
