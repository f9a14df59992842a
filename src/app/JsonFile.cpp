#include "app/JsonFile.h"

#include <QDir>
#include <QFile>
#include <QJsonParseError>

JsonFile JsonFile::read(const QString& path)
{
    JsonFile result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return result;

    QJsonParseError error;
    result.document = QJsonDocument::fromJson(file.readAll(), &error);
    result.error = error.errorString();
    result.state = error.error == QJsonParseError::NoError ? State::Parsed : State::ParseError;
    return result;
}

QStringList jsonBaseNames(const QString& folder)
{
    QStringList names;
    const QDir dir(folder);
    const auto entries = dir.entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Unsorted);
    for (const QFileInfo& entry : entries)
        names.append(entry.baseName());
    return names;
}
