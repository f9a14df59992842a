#pragma once

#include <QMap>
#include <QTranslator>

/// Serves every text of the interface from one language file, whatever its context. Installed once before the first
/// widget is built and kept until the program ends; the language of a running program never changes.
class JsonToQtTranslator : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    /// Replaces all translations by those of the file of @p language. Returns false, with no translations left, when
    /// the file cannot be read or is not JSON; the reason goes to the debug log and the interface stays English.
    bool loadLanguage(const QString& language);

    /// The translation of @p sourceText, or that text itself when there is none; the rest is ignored.
    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                                    int n = -1) const override;

    [[nodiscard]] bool isEmpty() const override { return m_translations.isEmpty(); }

    /// The language asked for last, loaded or not.
    [[nodiscard]] QString language() const { return m_language; }

private:
    QMap<QString, QString> m_translations;
    QString m_language;
};
