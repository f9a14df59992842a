#include "mcu/description/BytesModel.h"

#include "app/record/SettingsRecord.h"
#include "base/JsonFile.h"
#include "base/ProductInfo.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QMessageBox>

namespace {

constexpr int highestBit = 7;

JsonFile readDescription(const QString& name)
{
    return JsonFile::read(jsonPath(BytesModel::folder(), name));
}

FuseByte readFuseByte(const QJsonObject& description)
{
    FuseByte byte;
    constexpr int longestName = 200; // characters
    byte.id = description.value(QLatin1String("id")).toString().left(longestName);
    byte.name = description.value(QLatin1String("name")).toString().left(longestName);
    const QJsonArray bits = description.value(QLatin1String("bits")).toArray();
    int number = highestBit; // the most significant bit is listed first
    for (const QJsonValue& listed : bits) {
        if (number < 0)
            break;
        const QJsonObject bitDescription = listed.toObject();
        FuseBit& bit = byte.fuseBits[static_cast<std::size_t>(number)];
        bit.bitNumber = number;
        bit.name = bitDescription.value(QLatin1String("name")).toString().left(longestName);
        bit.currentBitValue = bitDescription.value(QLatin1String("default")).toInt() == 0 ? 0 : 1;
        bit.defaultBitValue = bit.currentBitValue;
        bit.enabled = bitDescription.value(QLatin1String("enabled")).toInt() != 0;
        byte.currentValue += bit.currentBitValue << number;
        --number;
    }
    byte.defaultValue = byte.currentValue;
    return byte;
}

} // namespace

BytesModel::BytesModel(SettingsRecord& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
}

QString BytesModel::folder()
{
    return QStringLiteral("mcu");
}

QJsonObject BytesModel::description(const SettingsRecord& settings)
{
    const QJsonObject found = readDescription(settings.mcuName).document.object();
    return found.value(QLatin1String("id")).toString() == settings.mcuId ? found : QJsonObject();
}

FuseBytes BytesModel::fuseBytes(const QJsonObject& description)
{
    FuseBytes fuseBytes;
    const QJsonArray bytes = description.value(QLatin1String("FuseBytes")).toArray();
    for (const QJsonValue& byte : bytes) {
        if (fuseBytes.size() < FuseByte::most)
            fuseBytes.append(readFuseByte(byte.toObject()));
    }
    return fuseBytes;
}

qint64 BytesModel::memorySize(const SettingsRecord& settings, const QString& memory)
{
    return description(settings).value(memory).toInt();
}

int BytesModel::load(const QString& name)
{
    const JsonFile file = readDescription(name);
    if (const char* fault = file.fault()) {
        const bool isMissing = file.state == JsonFile::State::NotFound;
        QMessageBox::information(QApplication::activeWindow(), isMissing ? ProductInfo::name : QLatin1String(fault),
                                 isMissing ? tr("MCU JSON FILE NOT FOUND") : file.faultText());
        return 0;
    }

    const QJsonObject description = file.document.object();
    ++m_settings.generation;
    m_settings.mcuName = name; // the file's; the "mcu" in it does not count
    m_settings.mcuId = description.value(QLatin1String("id")).toString();
    m_settings.signature = description.value(QLatin1String("signature")).toString();
    m_settings.fusesBytes = fuseBytes(description);
    return 0;
}
