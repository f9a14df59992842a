#include "i18n/LanguageFiles.h"

#include "base/JsonFile.h"

#include <QCoreApplication>
#include <QFileInfo>

QString LanguageFiles::baseFolder()
{
    const QString package = qEnvironmentVariable("APPIMAGE");
    return package.isEmpty() ? QCoreApplication::applicationDirPath() : QFileInfo(package).absolutePath();
}

QString LanguageFiles::folder(const QString& base)
{
    return base + QLatin1String("/Languages");
}

QString LanguageFiles::path(const QString& base, const QString& language)
{
    return jsonPath(folder(base), language);
}
