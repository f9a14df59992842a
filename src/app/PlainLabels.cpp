#include "app/PlainLabels.h"

#include <QApplication>
#include <QLabel>

PlainLabels::PlainLabels()
{
    qApp->installEventFilter(this);
}

bool PlainLabels::eventFilter(QObject* object, QEvent* event)
{
    auto* label = event->type() == QEvent::Polish ? qobject_cast<QLabel*>(object) : nullptr; // before it is shown
    if (label && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
    return false;
}
