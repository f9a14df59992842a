#pragma once

#include <QString>

/// Follows in what avrdude prints how far it is: "Writing | ######" grows by two percent a mark. A part of the runner.
class Progress
{
public:
    /// A run begins: nothing is known yet.
    void begin() { *this = {}; }

    /// Takes the next @p piece of output. Returns true when activity() or percent() have changed with it.
    [[nodiscard]] bool take(const QString& piece);

    /// "Writing", "Reading" or "Verifying"; empty before the first bar.
    [[nodiscard]] QString activity() const { return m_activity; }

    /// 0 to 100; -1 while avrdude does what it shows no bar for.
    [[nodiscard]] int percent() const { return m_percent; }

private:
    void show(const QString& line);

    QString m_line; ///< so far
    bool m_verifies = false; ///< said that it is about to verify, or has written: what it reads then is for that
    QString m_activity;
    int m_percent = -1;
};
