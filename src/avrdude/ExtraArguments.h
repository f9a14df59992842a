#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// The further arguments of a programmer's catalogue entry, a profile or the settings file, taken apart as avrdude
/// takes its options: several without a value may share an argument ("-FV"), and a value may follow in the same
/// argument or in the next. A plain value.
class ExtraArguments
{
public:
    /// @p text has the arguments with blanks between them.
    explicit ExtraArguments(const QString& text);

    /// Each as avrdude gets it.
    [[nodiscard]] const QStringList& list() const { return m_list; }

    /// How many arguments of the first are all of @p others; 0 when these begin otherwise.
    [[nodiscard]] int shared(const ExtraArguments& others) const;

    /// Whether the option @p letter is among them.
    [[nodiscard]] bool has(char letter) const;

    /// The value of the option @p letter, of several the last one's, which is the one that counts. Null without it.
    [[nodiscard]] QString value(char letter) const;

    /// Whether an option from the argument number @p first on may make avrdude read or write files: it is known to, or
    /// nothing is known of it.
    [[nodiscard]] bool reachFiles(int first = 0) const;

private:
    struct Option {
        QChar letter; ///< a minus sign for an option that is a word
        QString value;
        int argument; ///< the number of the one that it stands in
    };

    QStringList m_list;
    QVector<Option> m_options;
};
