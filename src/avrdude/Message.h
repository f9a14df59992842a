#pragma once

#include <QObject>
#include <QString>
#include <QVector>

/// Turns what avrdude prints into a verdict and a short message. Created by the runner once the translator is
/// installed: the messages are translated at construction and keep that language.
class Message : public QObject
{
    Q_OBJECT

public:
    Message();

    /// Looks for the first known error in @p text, a run's command line and output. When there is one, shows its
    /// message in a box and returns true; returns false when the text is clean.
    [[nodiscard]] bool checkOutput(const QString& text) const;

    /// The same for a run that ended with another exit code than 0 and whose text checkOutput() found clean: looks in
    /// @p output, what avrdude printed in that run, for the words of versions that the first table does not know.
    [[nodiscard]] bool checkFailedRun(const QString& output) const;

    /// True when @p errorText, one piece of a running avrdude's standard error, shows that the programmer does not
    /// answer, so that waiting for avrdude's own retries is pointless.
    [[nodiscard]] static bool showsSilentProgrammer(const QString& errorText);

private:
    struct Entry {
        QLatin1String fragment;
        QString message;
    };

    [[nodiscard]] static bool tellFirst(const QVector<Entry>& entries, const QString& text);

    // In the order in which they are tried.
    QVector<Entry> m_entries;
    QVector<Entry> m_failureEntries;
};
