#pragma once

#include <QJsonObject>
#include <QObject>
#include <QStringList>

/// The language files as a process-wide lookup service, for code that translates texts by itself and wants to hear of
/// a change of language. The interface goes through JsonToQtTranslator instead. Created on first use, gone at exit.
class Translator : public QObject
{
    Q_OBJECT

public:
    static Translator& instance();

    /// Loads the file of @p language from the application's folder. Returns false when it cannot be read (all
    /// translations are dropped, languageChanged() is sent) or is not JSON (nothing changes).
    bool loadLanguage(const QString& language);

    /// The translation of @p key, or @p key itself when there is none.
    [[nodiscard]] QString translate(const QString& key) const;

    /// Names of the languages that have a file in the application's folder, unsorted.
    [[nodiscard]] static QStringList availableLanguages();

    /// The language loaded last; empty before the first.
    [[nodiscard]] QString language() const { return m_language; }

signals:
    void languageChanged();

private:
    Translator() = default;

    QJsonObject m_translations;
    QString m_language;
};
