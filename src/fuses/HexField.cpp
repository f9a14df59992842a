#include "fuses/HexField.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

HexField::HexField(QWidget* parent)
    : QLineEdit(parent)
{
    setInputMask(QStringLiteral(">HH"));
    setAlignment(Qt::AlignCenter);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
}

bool HexField::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept(); // with Ctrl or Alt a key is typed too, and does not leave the byte for a shortcut
        return true;
    }
    return QLineEdit::event(event);
}

void HexField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    emit left();
}

void HexField::inputMethodEvent(QInputMethodEvent* event)
{
    const QString text = event->commitString().normalized(QString::NormalizationForm_KC).toUpper();
    for (const QChar digit : text) {
        QKeyEvent key(QEvent::KeyPress, digit.unicode(), Qt::NoModifier, digit);
        QCoreApplication::sendEvent(this, &key);
    }
}

void HexField::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QLineEdit::mousePressEvent(event);
}

void HexField::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return; // the middle one would paste
    QLineEdit::mouseReleaseEvent(event);
    selectAll();
}
