#include "i18n/TsConverter.h"

#include "base/JsonFile.h"
#include "i18n/LanguageFiles.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

namespace {

QJsonObject readTexts(QXmlStreamReader& reader)
{
    QJsonObject texts;
    QString source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            const bool isUnfinished = reader.attributes().value(QLatin1String("type")) == QLatin1String("unfinished");
            const QString text = reader.readElementText();
            if (!source.isEmpty())
                texts.insert(source, text.isEmpty() || isUnfinished ? source : text);
        }
    }
    return texts;
}

} // namespace

bool convertTsToJson(const QString& tsFilePath, const QString& languageName)
{
    QFile input(tsFilePath);
    if (!input.open(QIODevice::ReadOnly)) {
        qDebug().noquote() << "Converter: Cannot open TS file:" << tsFilePath;
        return false;
    }
    QXmlStreamReader reader(&input);
    const QJsonObject texts = readTexts(reader);
    input.close();
    if (reader.hasError())
        qDebug().noquote() << "Converter: XML Error:" << reader.errorString();

    QDir().mkpath(LanguageFiles::folder(QCoreApplication::applicationDirPath()));
    const QString path = LanguageFiles::path(QCoreApplication::applicationDirPath(), languageName);
    if (!writeFile(path, QJsonDocument(texts).toJson(QJsonDocument::Indented))) {
        qDebug().noquote() << "Converter: Cannot write JSON to" << path;
        return false;
    }
    qDebug().noquote() << "Converter: Successfully created" << path;
    return !reader.hasError();
}
