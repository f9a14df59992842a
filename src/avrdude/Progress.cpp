#include "avrdude/Progress.h"

#include <algorithm>

bool Progress::take(const QString& piece)
{
    const QString activity = m_activity;
    const int percent = m_percent;
    m_line += piece;
    for (;;) {
        const auto isBreak = [](QChar character) {
            return character == QLatin1Char('\n') || character == QLatin1Char('\r');
        };
        const auto end = std::find_if(m_line.cbegin(), m_line.cend(), isBreak);
        if (end == m_line.cend())
            break;
        const int length = static_cast<int>(end - m_line.cbegin());
        const QString line = m_line.left(length);
        m_line.remove(0, length + 1);
        show(line);
        if (line.contains(QLatin1String("erifying ")) && !line.contains(QLatin1String("erifying ...")))
            m_verifies = true;
        else if (line.contains(QLatin1String("reading ")) && line.contains(QLatin1String(" memory")))
            m_verifies = false;
        if (!line.isEmpty())
            m_percent = -1; // the bar has ended
    }
    show(m_line);
    constexpr int longest = 4000; // characters, of a line that is no bar
    if (m_line.size() > longest)
        m_line.clear();
    return m_activity != activity || m_percent != percent;
}

void Progress::show(const QString& line)
{
    const bool isWriting = line.startsWith(QLatin1String("Writing | "));
    if (!isWriting && !line.startsWith(QLatin1String("Reading | ")))
        return;
    m_activity = isWriting ? QStringLiteral("Writing")
        : m_verifies       ? QStringLiteral("Verifying")
                           : QStringLiteral("Reading");
    m_verifies = m_verifies || isWriting;
    constexpr int percentOfMark = 2;
    m_percent = percentOfMark * static_cast<int>(line.count(QLatin1Char('#')));
}
