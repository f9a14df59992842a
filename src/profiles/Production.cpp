#include "profiles/Production.h"

#include "base/JsonFile.h"
#include "profiles/BoardLog.h"

#include <QCoreApplication>
#include <QJsonObject>

Production Production::read(const QString& path, const SettingsRecord& settings)
{
    const auto say = [](const char* sentence) { return QCoreApplication::translate("Production", sentence); };
    const JsonFile file = JsonFile::read(path);
    const QJsonObject profile = file.document.object();
    const QJsonValue quiet = profile.value(QLatin1String("quiet"));
    const QJsonValue boardLog = profile.value(QLatin1String("boardLog"));
    const QJsonValue serial = profile.value(QLatin1String("serial"));
    Production production;
    production.isQuiet = quiet.toBool();
    production.boardLog = boardLog.toString();
    if (!file.isObject())
        production.fault = say(QT_TRANSLATE_NOOP("Production", "The profile's file cannot be read."));
    if (!quiet.isUndefined() && !quiet.isBool())
        production.fault = say(QT_TRANSLATE_NOOP("Production", "\"quiet\" is neither true nor false."));
    if (!boardLog.isUndefined() && !BoardLog::isFileName(production.boardLog))
        production.fault =
            say(QT_TRANSLATE_NOOP("Production", "\"boardLog\" is not the name of a file that ends in .csv."));
    if (!serial.isUndefined()) {
        production.serial = SerialNumber::from(serial);
        const QString fault = production.serial->fault(settings);
        if (!fault.isEmpty())
            production.fault =
                say(QT_TRANSLATE_NOOP("Production", "The serial number cannot be written.")) + QLatin1Char(' ') + fault;
    }
    return production;
}
