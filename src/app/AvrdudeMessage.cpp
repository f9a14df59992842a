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
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void AvrdudeMessage::insertAtCursor(const QString& text)
{
    QTextCursor cursor(document());
    cursor.setPosition(textCursor().position());
    cursor.insertText(text);
}
