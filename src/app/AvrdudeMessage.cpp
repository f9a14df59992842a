#include "app/AvrdudeMessage.h"

#include <QScrollBar>
#include <QTextCursor>

namespace {

constexpr int logHeight = 180; // pixels

}

AvrdudeMessage::AvrdudeMessage(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setFixedHeight(logHeight);
    setReadOnly(true);
    setUndoRedoEnabled(false); // an undo history would hold every run's output a second time
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void AvrdudeMessage::insertAtCursor(const QString& text)
{
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    cursor.insertText(text);
    setTextCursor(cursor);
}
