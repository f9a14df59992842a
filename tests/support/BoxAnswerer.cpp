#include "support/BoxAnswerer.h"

#include <QAbstractButton>
#include <QEvent>
#include <QTest>
#include <QTimer>

QStringList BoxAnswerer::wait(int timeout)
{
    if (QTest::qWaitFor([this] { return !m_boxes.isEmpty(); }, timeout))
        QTest::qWait(delay + 30);
    return take();
}

bool BoxAnswerer::eventFilter(QObject* object, QEvent* event)
{
    auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(object) : nullptr;
    if (box) {
        m_boxes.append(box->windowTitle() + QLatin1String(": ") + box->text());
        QTimer::singleShot(delay, box, [this, box] {
            QAbstractButton* widget = box->button(button);
            widget ? widget->click() : box->accept();
        });
    }
    return false;
}
