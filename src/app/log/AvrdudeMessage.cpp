#include "app/log/AvrdudeMessage.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QScrollBar>
#include <QStyle>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

constexpr int logHeight = 180; // pixels
constexpr int longestLine = 4000; // characters; the time to lay a line out grows faster than its length

/// avrdude's progress line, "Writing | ##...## | 100% 0.00s".
constexpr int progressLength = 75; // characters
constexpr int windowWidth = 520; // pixels, of a window that was not made larger

/// The system's fixed-pitch font, as small as it takes for a progress line to stay one line @p width pixels wide.
QFont outputFont(int width)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    constexpr qreal step = 0.5; // points
    constexpr qreal smallest = 5.5;
    qreal size = QFontInfo(font).pointSizeF();
    font.setPointSizeF(size);
    while (size > smallest && QFontMetricsF(font).horizontalAdvance(QString(progressLength, QLatin1Char('#'))) > width)
        font.setPointSizeF(size -= step);
    return font;
}

/// Tells whether a line of @p text, the first of which begins at @p column, is longer than a line may be.
bool hasLongLine(const QString& text, int column)
{
    const QChar* lineBegin = text.constBegin();
    for (;;) {
        const QChar* lineEnd = std::find(lineBegin, text.constEnd(), QLatin1Char('\n'));
        if (column + (lineEnd - lineBegin) > longestLine)
            return true;
        if (lineEnd == text.constEnd())
            return false;
        lineBegin = lineEnd + 1;
        column = 0;
    }
}

/// Breaks what is longer than a line may be, where it can be after a comma or blank. @p column is where @p text begins.
QString withLinesBroken(const QString& text, int column)
{
    QString broken;
    broken.reserve(text.size());
    for (const QChar character : text) {
        broken += character;
        const bool isBreak = character == QLatin1Char('\n') || character == QLatin1Char('\r');
        const bool mayBreak = character == QLatin1Char(',') || character == QLatin1Char(' ');
        column = isBreak ? 0 : column + 1;
        if (column >= (mayBreak ? longestLine : 2 * longestLine)) {
            broken += QLatin1Char('\n');
            column = 0;
        }
    }
    return broken;
}

} // namespace

AvrdudeMessage::AvrdudeMessage(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setFixedHeight(logHeight);
    setReadOnly(true);
    setUndoRedoEnabled(false); // which would keep every piece of output twice
    setAccessibleName(QStringLiteral("avrdude"));
    const int margins = style()->pixelMetric(QStyle::PM_LayoutLeftMargin)
        + style()->pixelMetric(QStyle::PM_LayoutRightMargin) + 2 * frameWidth()
        + verticalScrollBar()->sizeHint().width() + static_cast<int>(2 * document()->documentMargin());
    setFont(outputFont(windowWidth - margins));
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

int AvrdudeMessage::leastHeight() const
{
    constexpr int lines = 4;
    const double margins = 2 * (document()->documentMargin() + frameWidth());
    return static_cast<int>(std::ceil(lines * QFontMetricsF(font()).lineSpacing() + margins));
}

void AvrdudeMessage::insertAtCursor(const QString& text)
{
    if (text.isEmpty())
        return;
    QTextCursor user = textCursor();
    const int selectionStart = user.anchor();
    const int selectionEnd = user.position();
    QTextCursor cursor(document());
    if (user.hasSelection())
        cursor.movePosition(QTextCursor::End);
    else
        cursor.setPosition(user.position());
    const int column = cursor.positionInBlock();
    cursor.insertText(hasLongLine(text, column) ? withLinesBroken(text, column) : text);
    if (user.hasSelection()) { // which would take in what follows it
        user.setPosition(selectionStart);
        user.setPosition(selectionEnd, QTextCursor::KeepAnchor);
        setTextCursor(user);
    }
}

void AvrdudeMessage::appendLine(const QString& line)
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    if (!end.atBlockStart())
        end.insertBlock();
    end.insertText(line + QLatin1Char('\n'));
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void AvrdudeMessage::replace(const QString& text)
{
    clear();
    appendPlainText(text);
}
