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

QString LanguageFiles::folderBesideProgram()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/Languages");
}

QString LanguageFiles::pathBesideProgram(const QString& language)
{
    return QStringLiteral("%1/%2.json").arg(folderBesideProgram(), language);
}

void LanguageFiles::useUtf8Names()
{
#ifdef Q_OS_UNIX
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}
