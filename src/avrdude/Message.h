#pragma once

#include <QObject>
#include <QString>
#include <QVector>

#include <functional>

/// Turns what avrdude prints into a verdict and a short message. A member of the runner, made once the translator is
/// installed: the messages are translated at construction and keep that language.
class Message : public QObject
{
    Q_OBJECT

public:
    Message();

    /// How a message is told to the user: in a box of its own, until another way is set.
    using Tell = std::function<void(const QString& message)>;
    void setTell(Tell tell) { m_tell = std::move(tell); }

    /// How far a text that grows has been searched, and what was found so far.
    struct Findings {
        int searched = 0; ///< characters
        int first = -1; ///< number of the entry that comes first in the table; -1: none
    };

    /// Searches what has come to @p text since the last call with the same @p findings.
    void search(const QString& text, Findings& findings) const;

    /// Looks for the first known error in @p text, a run's command line and output. When there is one, shows its
    /// message in a box and returns true; returns false when the text is clean.
    [[nodiscard]] bool checkOutput(const QString& text) const { return checkOutput(text, Findings()); }

    /// The same with the @p findings of search() while the text grew: to search all of a long one would hold up the
    /// window.
    [[nodiscard]] bool checkOutput(const QString& text, Findings findings) const;

    /// The same for a run that ended with another exit code than 0 and whose text checkOutput() found clean: looks in
    /// @p output, what avrdude printed in that run, for the words of versions that the first table does not know.
    [[nodiscard]] bool checkFailedRun(const QString& output) const;

    /// The same for one whose @p output shows that the programmer answered and the chip did not: avrdude 7.1 closes
    /// that with an advice by which checkOutput() knows a wrong part.
    [[nodiscard]] bool checkSilentChip(const QString& output) const;

    /// True when @p errorText, one piece of a running avrdude's standard error, shows that the programmer does not
    /// answer, so that waiting for avrdude's own retries is pointless.
    [[nodiscard]] static bool showsSilentProgrammer(const QString& errorText);

    /// The three bytes that avrdude has read, "1E 94 03", by @p output; empty when it has read none that a chip can
    /// have.
    [[nodiscard]] static QString signatureIn(const QString& output);

private:
    struct Entry {
        QLatin1String fragment;
        QString message;
    };

    // In the order in which they are tried.
    Tell m_tell;
    QVector<Entry> m_entries;
    QVector<Entry> m_failureEntries;
    int m_longestFragment = 0; ///< of the first
};
