#include "base/Contrast.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QWidget>

void Contrast::liftDisabled(QWidget& widget, double share)
{
    new Contrast(widget, share);
}

QColor Contrast::between(const QColor& ground, const QColor& text, double share)
{
    const auto part = [share](int from, int to) { return from + static_cast<int>(share * (to - from)); };
    return {part(ground.red(), text.red()), part(ground.green(), text.green()), part(ground.blue(), text.blue())};
}

Contrast::Contrast(QWidget& widget, double share)
    : QObject(&widget)
    , m_widget(widget)
    , m_share(share)
{
    widget.installEventFilter(this);
    lift();
}

bool Contrast::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !m_isLifting)
        lift();
    return QObject::eventFilter(object, event);
}

void Contrast::lift()
{
    const QPalette desktop = QApplication::palette(&m_widget);
    QPalette lifted; // in which nothing is set but these two: the rest follows the desktop
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text}) {
        const QColor& text = desktop.color(QPalette::Active, role);
        lifted.setColor(role, text);
        lifted.setColor(QPalette::Disabled, role, between(desktop.color(QPalette::Window), text, m_share));
    }
    m_isLifting = true; // which is a change, too
    m_widget.setPalette(lifted);
    m_isLifting = false;
}
