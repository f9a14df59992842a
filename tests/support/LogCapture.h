#pragma once

#include <QStringList>

/// Collects what goes to the toolkit's log for as long as it lives, instead of printing it.
class LogCapture
{
public:
    LogCapture() { s_lines.clear(); }
    ~LogCapture() { qInstallMessageHandler(m_previous); }

    [[nodiscard]] QStringList lines() const { return s_lines; }

private:
    static void collect(QtMsgType, const QMessageLogContext&, const QString& line)
    {
        if (!line.contains(QLatin1String("propagateSizeHints"))) // the offscreen platform's remark on every window
            s_lines.append(line);
    }

    inline static QStringList s_lines;
    QtMessageHandler m_previous = qInstallMessageHandler(collect);
};
