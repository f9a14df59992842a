#include "settings/SettingsModel.h"

#include "base/JsonFile.h"

#include <QJsonObject>
#include <QRegularExpression>

SettingsModel::SettingsModel(QObject* parent, PortSource ports)
    : QObject(parent)
    , m_ports(std::move(ports))
{
}

QString SettingsModel::programmerFolder()
{
    return QStringLiteral("programmer");
}

QStringList SettingsModel::programmerList() const
{
    return jsonBaseNames(programmerFolder());
}

QStringList SettingsModel::speedList() const
{
    return {
        QStringLiteral("1.5 MHz (-B 0.5)"), QStringLiteral("750 kHz (-B 1)"),   QStringLiteral("375 kHz (-B 2)"),
        QStringLiteral("185 kHz (-B 4)"),   QStringLiteral("93.75 kHz (-B 8)"), QStringLiteral("32 kHz (-B 16)"),
        QStringLiteral("16 kHz (-B 32)"),   QStringLiteral("8 kHz (-B 64)"),    QStringLiteral("4 kHz (-B 128)"),
        QStringLiteral("2 kHz (-B 256)"),   QStringLiteral("1 kHz (-B 512)"),   QStringLiteral("0.5 kHz (-B 1024)"),
    };
}

QStringList SettingsModel::languageList() const
{
    return jsonBaseNames(QStringLiteral("Languages"));
}

ProgrammerEntry SettingsModel::programmerEntry(const QString& name)
{
    const JsonFile file = JsonFile::read(jsonPath(programmerFolder(), name));
    const QJsonObject entry = file.document.object();
    const auto text = [&entry](const char* key) { return entry.value(QLatin1String(key)).toString(); };
    const auto list = [&entry](const char* key) { return jsonTexts(entry.value(QLatin1String(key))); };
    // A line for the system's configuration may be made of these.
    static const QRegularExpression usbNumbers(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9a-fA-F]{4}:[0-9a-fA-F]{4}")));
    return {file.fault() ? file.faultText() : QString(),
            text("id"),
            text("arguments"),
            text("port"),
            list("interfaces"),
            list("usb").filter(usbNumbers),
            text("avrdude"),
            text("slowestChip")};
}
