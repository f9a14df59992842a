#include "base/JsonFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonParseError>
#include <QLockFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QThread>
#include <QVariant>

namespace {

constexpr qint64 largest = 1 << 20; // bytes; the largest that ships has 51 thousand

bool replaceFile(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    // Flushed here: a disk that fills up while the file is closed goes unnoticed, and half a file would win.
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() && file.commit();
}

} // namespace

JsonFile JsonFile::read(const QString& path)
{
    JsonFile result;
    const QFileInfo info(path);
    if (!info.exists())
        return result;
    result.state = State::CannotOpen;
    QFile file(path);
    // A pipe would be waited for, and a device may never end.
    if (!info.isFile() || info.size() > largest || !file.open(QIODevice::ReadOnly))
        return result;

    QJsonParseError error;
    result.document = QJsonDocument::fromJson(file.readAll(), &error);
    result.error = error.errorString();
    result.state = error.error == QJsonParseError::NoError ? State::Parsed : State::ParseError;
    return result;
}

const char* JsonFile::fault() const
{
    switch (state) {
    case State::NotFound:
        return QT_TRANSLATE_NOOP("JsonFile", "JSON FILE NOT FOUND");
    case State::CannotOpen:
        return QT_TRANSLATE_NOOP("JsonFile", "Cannot open file");
    case State::ParseError:
        return QT_TRANSLATE_NOOP("JsonFile", "JSON FILE ERROR");
    case State::Parsed:
        break;
    }
    return nullptr;
}

QString JsonFile::faultText() const
{
    return QCoreApplication::translate("JsonFile", fault());
}

QString JsonFile::reason() const
{
    if (state == State::ParseError)
        return error;
    return state == State::Parsed ? QCoreApplication::translate("JsonFile", "not a JSON object") : faultText();
}

bool writeFile(const QString& path, const QByteArray& content)
{
    const QFileInfo info(path);
    if (info.isSymLink() && info.exists() && !info.isFile())
        return false; // a link to a device: root would replace that
    if (replaceFile(path, content))
        return true;
#ifdef Q_OS_WIN
    // A file that a program has open cannot be replaced there, and virus scanners look into what was just written.
    for (int attempt = 0; attempt < 10; ++attempt) {
        QThread::msleep(50);
        if (replaceFile(path, content))
            return true;
    }
#endif
    return false;
}

bool changeFile(const QString& path, const std::function<bool(QJsonObject& object)>& change)
{
    if (QFileInfo(path).isSymLink())
        return false;
    QLockFile lock(path + QLatin1String(".lock"));
    constexpr int patience = 2000; // milliseconds
    const bool isLocked = lock.tryLock(patience);
    const JsonFile file = JsonFile::read(path);
    QJsonObject object = file.document.object();
    return isLocked && (file.isObject() || file.state == JsonFile::State::NotFound) && change(object)
        && writeFile(path, QJsonDocument(object).toJson());
}

QString fullPath(const QString& file)
{
    return QDir::toNativeSeparators(QDir().absoluteFilePath(file));
}

bool isDeviceName(const QString& name)
{
    static const QRegularExpression device(QStringLiteral("^(con|prn|aux|nul|(com|lpt)[0-9]) *(\\.|$)"),
                                           QRegularExpression::CaseInsensitiveOption);
    return name.contains(device);
}

QString jsonPath(const QString& folder, const QString& name)
{
    bool staysInside = !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'));
#ifdef Q_OS_WIN
    staysInside = staysInside && !isDeviceName(name);
#endif
    return staysInside ? folder + QLatin1Char('/') + name + QLatin1String(".json") : QString();
}

QFileInfoList jsonFiles(const QString& folder)
{
    // In this letter case only: another one is listed on every system and could be opened on some.
    return QDir(folder).entryInfoList({QStringLiteral("*.json")}, QDir::Files | QDir::CaseSensitive, QDir::Unsorted);
}

QStringList jsonBaseNames(const QString& folder)
{
    QStringList names;
    const auto files = jsonFiles(folder);
    for (const QFileInfo& file : files) {
        if (!jsonPath(folder, file.baseName()).isNull())
            names.append(file.baseName());
    }
    return names;
}

QStringList jsonTexts(const QJsonValue& value)
{
    return QVariant(value.toArray().toVariantList()).toStringList();
}

QStringList otherNames(const QString& folder, const QString& name)
{
    const QJsonObject entry = JsonFile::read(jsonPath(folder, name)).document.object();
    return jsonTexts(entry.value(QLatin1String("aka"))) + QStringList {entry.value(QLatin1String("id")).toString()};
}
