#include "i18n/JsonToQtTranslator.h"

#include "base/JsonFile.h"
#include "i18n/LanguageFiles.h"

#include <QDebug>
#include <QJsonObject>

bool JsonToQtTranslator::loadLanguage(const QString& language)
{
    m_translations.clear();
    m_language = language;

    const QString path = LanguageFiles::path(LanguageFiles::baseFolder(), language);
    const JsonFile file = JsonFile::read(path);
    if (!file.wasRead()) {
        qDebug().noquote() << "JsonToQtTranslator: Cannot open file:" << path;
        return false;
    }
    if (file.state == JsonFile::State::ParseError) {
        qDebug().noquote() << "JsonToQtTranslator: JSON parse error:" << file.error;
        return false;
    }

    const QJsonObject texts = file.document.object();
    for (auto text = texts.begin(); text != texts.end(); ++text)
        m_translations.insert(text.key(), text.value().toString());
    return true;
}

QString JsonToQtTranslator::translate(const char*, const char* sourceText, const char*, int) const
{
    const QString key = QString::fromUtf8(sourceText);
    const QString text = m_translations.value(key, key);
    return text.isEmpty() ? QString() : text; // Qt falls back to the source text on a null text, not on an empty one
}
