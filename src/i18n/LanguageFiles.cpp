#include "i18n/LanguageFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextCodec>

QString LanguageFiles::baseFolder()
{
    const QString package = qEnvironmentVariable("APPIMAGE");
    return package.isEmpty() ? QCoreApplication::applicationDirPath() : QFileInfo(package).absolutePath();
}

QString LanguageFiles::path(const QString& language)
{
    return QDir(baseFolder()).filePath(QStringLiteral("Languages/%1.json").arg(language));
}

QString LanguageFiles::applicationFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/Languages");
}

void LanguageFiles::useUtf8Names()
{
#ifdef Q_OS_UNIX
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}
