#include "i18n/Translator.h"

#include "base/JsonFile.h"
#include "i18n/LanguageFiles.h"

#include <QCoreApplication>
#include <QDebug>

Translator& Translator::instance()
{
    static Translator translator;
    return translator;
}

bool Translator::loadLanguage(const QString& language)
{
    const QString path = LanguageFiles::path(QCoreApplication::applicationDirPath(), language);
    const JsonFile file = JsonFile::read(path);
    if (!file.wasRead()) {
        qDebug().noquote() << "Translator: Failed to load file:" << path;
        m_translations = {};
        emit languageChanged();
        return false;
    }
    if (file.state == JsonFile::State::ParseError) {
        qDebug().noquote() << "Translator: JSON parse error:" << file.error;
        return false;
    }

    m_translations = file.document.object();
    m_language = language;
    qDebug().noquote() << "Translator: Loaded language:" << language;
    emit languageChanged();
    return true;
}

QString Translator::translate(const QString& key) const
{
    const auto text = m_translations.constFind(key);
    return text == m_translations.constEnd() ? key : text->toString();
}

QStringList Translator::availableLanguages()
{
    return jsonBaseNames(LanguageFiles::folder(QCoreApplication::applicationDirPath()));
}
