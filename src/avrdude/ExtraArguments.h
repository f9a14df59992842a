#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// The further arguments of a programmer's catalogue entry, a profile or the settings file, taken apart as avrdude
/// takes its options: several without a value may share an argument ("-FV"), and a value may follow in the same
/// argument or in the next. A plain value.
class ExtraArguments
{
public:
    /// @p text has the arguments with blanks between them.
    explicit ExtraArguments(const QString& text);

    /// Each as avrdude gets it.
    [[nodiscard]] QStringList list() const;

    /// Whether the option @p letter is among them.
    [[nodiscard]] bool has(char letter) const;

    /// The value of the option @p letter, of several the last one's, which is the one that counts. Null without it.
    [[nodiscard]] QString value(char letter) const;

    /// Those that @p own, which go by the same programmer, do not have.
    [[nodiscard]] QStringList furtherThan(const ExtraArguments& own) const;

    /// Of those the ones that may make avrdude read or write files: they are known to, or nothing is known of them.
    /// With their values, and with the options that share an argument with one.
    [[nodiscard]] QStringList reachingFiles(const ExtraArguments& own) const;

    /// All but those.
    [[nodiscard]] QStringList reachingNoFiles(const ExtraArguments& own) const;

private:
    struct Option {
        QChar letter; ///< a minus sign for an option that is a word
        QString value;

        bool operator==(const Option& other) const { return letter == other.letter && value == other.value; }
    };

    /// An argument, and the one after it if that is its value.
    struct Group {
        QStringList arguments;
        QVector<Option> options; ///< none where avrdude passes over it
    };

    [[nodiscard]] QStringList where(const std::function<bool(const Group&)>& isWanted) const;
    [[nodiscard]] bool covers(const Group& group) const;
    [[nodiscard]] bool covers(const Option& option) const;
    [[nodiscard]] bool leavesFilesTo(const Group& group) const;

    QVector<Group> m_groups;
};
