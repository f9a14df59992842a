#include "base/FocusTip.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

FocusTip::FocusTip(QWidget& owner)
    : QObject(&owner)
    , m_owner(owner)
{
    constexpr int pause = 1000; // milliseconds: who only passes is not held up
    m_wait.setInterval(pause);
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, &FocusTip::show);
}

void FocusTip::watch(QWidget* widget)
{
    widget->installEventFilter(this);
}

bool FocusTip::isByKeyboard(const QFocusEvent& event)
{
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason
        || event.reason() == Qt::ShortcutFocusReason;
}

bool FocusTip::eventFilter(QObject* object, QEvent* event)
{
    if (m_focused && isEnd(object, *event))
        hide();
    if (event->type() == QEvent::FocusIn && isByKeyboard(static_cast<const QFocusEvent&>(*event)) && !m_focused) {
        m_focused = qobject_cast<QWidget*>(object);
        qApp->installEventFilter(this);
        m_wait.start();
    } else if (event->type() == QEvent::ToolTipChange && object == m_focused && isShown()) {
        show(); // the other text
    }
    return false;
}

void FocusTip::show()
{
    if (!m_focused || m_focused->toolTip().isEmpty()) {
        hide();
        return;
    }
    if (!m_tip) {
        m_tip = new QLabel(&m_owner, Qt::ToolTip);
        m_tip->setAutoFillBackground(true);
        m_tip->setBackgroundRole(QPalette::ToolTipBase);
        m_tip->setForegroundRole(QPalette::ToolTipText);
        m_tip->setFrameShape(QFrame::Box);
        m_tip->setMargin(2);
    }
    m_tip->setPalette(QToolTip::palette());
    m_tip->setFont(QToolTip::font());
    m_tip->setWordWrap(false);
    m_tip->setText(m_focused->toolTip());
    const QRect screen = m_owner.screen()->availableGeometry();
    QSize size = m_tip->sizeHint();
    if (size.width() > screen.width()) {
        m_tip->setWordWrap(true);
        size = {screen.width(), m_tip->heightForWidth(screen.width())};
    }
    const QRect owner(m_owner.mapToGlobal(QPoint()), m_owner.size());
    QRect place({m_focused->mapToGlobal(QPoint()).x(), owner.bottom() + 1}, size);
    if (place.bottom() > screen.bottom())
        place.moveBottom(owner.top() - 1);
    place.moveLeft(std::max(screen.left(), std::min(place.left(), screen.right() + 1 - size.width())));
    place.moveTop(std::max(screen.top(), place.top()));
    m_tip->setGeometry(place);
    m_tip->show();
}

void FocusTip::hide()
{
    qApp->removeEventFilter(this);
    m_wait.stop();
    m_focused.clear();
    if (m_tip)
        m_tip->hide();
}

bool FocusTip::isShown() const
{
    return m_tip && m_tip->isVisible();
}

bool FocusTip::isEnd(const QObject* object, const QEvent& event) const
{
    switch (event.type()) {
    case QEvent::KeyPress:
        return static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
    case QEvent::MouseButtonPress:
    case QEvent::ToolTip: // the mouse's own
    case QEvent::Wheel:
        return true;
    case QEvent::WindowDeactivate:
        return object == m_owner.window();
    case QEvent::FocusOut:
        return object == m_focused;
    case QEvent::Move: { // by scrolling; before the tip is there, to bring the widget into sight
        const auto* moved = qobject_cast<const QWidget*>(object);
        return moved && isShown()
            && (moved == m_focused || moved->isAncestorOf(m_focused) || moved == m_owner.window());
    }
    default:
        return false;
    }
}
