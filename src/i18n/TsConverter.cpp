#include "i18n/TsConverter.h"

#include "i18n/LanguageFiles.h"

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

void convertTsToJson(const QString& tsFilePath, const QString& languageName)
{
    QFile input(tsFilePath);
    if (!input.open(QIODevice::ReadOnly)) {
        qDebug().noquote() << "Converter: Cannot open TS file:" << tsFilePath;
        return;
    }
    QXmlStreamReader reader(&input);
    const QJsonObject texts = readTexts(reader);
    input.close();
    if (reader.hasError())
        qDebug().noquote() << "Converter: XML Error:" << reader.errorString();

    QDir().mkpath(LanguageFiles::folderBesideProgram());
    const QString path = LanguageFiles::pathBesideProgram(languageName);
    QFile output(path);
    if (!output.open(QIODevice::WriteOnly)) {
        qDebug().noquote() << "Converter: Cannot write JSON to" << path;
        return;
    }
    output.write(QJsonDocument(texts).toJson(QJsonDocument::Indented));
    output.close();
    qDebug().noquote() << "Converter: Successfully created" << path;
}
