#include "mcu/description/BytesModel.h"

#include "avrdude/Avrdude.h"
#include "base/JsonFile.h"
#include "base/ProductInfo.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QMessageBox>

namespace {

constexpr int highestBit = 7;

JsonFile readDescription(const QString& name)
{
    return JsonFile::read(QDir(BytesModel::folder()).filePath(name + QLatin1String(".json")));
}

FuseByte readFuseByte(const QJsonObject& description)
{
    FuseByte byte;
    byte.id = description.value(QLatin1String("id")).toString();
    byte.name = description.value(QLatin1String("name")).toString();
    const QJsonArray bits = description.value(QLatin1String("bits")).toArray();
    int number = highestBit; // the most significant bit is listed first
    for (const QJsonValue& listed : bits) {
        if (number < 0)
            break;
        const QJsonObject bitDescription = listed.toObject();
        FuseBit& bit = byte.fuseBits[static_cast<std::size_t>(number)];
        bit.bitNumber = number;
        bit.name = bitDescription.value(QLatin1String("name")).toString();
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

BytesModel::BytesModel(Avrdude& avrdude, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
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

qint64 BytesModel::memorySize(const SettingsRecord& settings, const QString& memory)
{
    return description(settings).value(memory).toInt();
}

int BytesModel::load(const QString& name)
{
    const auto report = [](const QString& title, const QString& text) {
        QMessageBox::information(QApplication::activeWindow(), title, text);
        return 0;
    };
    const JsonFile file = readDescription(name);
    switch (file.state) {
    case JsonFile::State::NotFound:
        return report(ProductInfo::name, tr("MCU JSON FILE NOT FOUND"));
    case JsonFile::State::CannotOpen:
        return report(QStringLiteral("Cannot open file"), tr("Cannot open file"));
    case JsonFile::State::ParseError:
        return report(QStringLiteral("JSON FILE ERROR"), tr("JSON FILE ERROR"));
    case JsonFile::State::Parsed:
        break;
    }

    const QJsonObject description = file.document.object();
    FuseBytes fuseBytes;
    const QJsonArray bytes = description.value(QLatin1String("FuseBytes")).toArray();
    for (const QJsonValue& byte : bytes)
        fuseBytes.append(readFuseByte(byte.toObject()));

    SettingsRecord& settings = m_avrdude.settings();
    ++settings.generation;
    settings.mcuName = name; // the file's; the "mcu" in it does not count
    settings.mcuId = description.value(QLatin1String("id")).toString();
    settings.signature = description.value(QLatin1String("signature")).toString();
    settings.fusesBytes = fuseBytes;
    return 0;
}
