#include "app/StrayInput.h"

#include "base/Toolkit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QStyleHints>

#include <cstdlib>

namespace {

bool isSamePoint(QPoint a, QPoint b)
{
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return true; // where its windows are no program knows there
    const int distance = QGuiApplication::styleHints()->mouseDoubleClickDistance();
    return std::abs(a.x() - b.x()) <= distance && std::abs(a.y() - b.y()) <= distance;
}

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Meta || key == Qt::Key_Alt
        || key == Qt::Key_AltGr;
}

} // namespace

StrayInput::StrayInput(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool StrayInput::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Show && !event->spontaneous() && qobject_cast<QMessageBox*>(object)) {
        m_box = object;
        m_opening = m_last;
    } else if (event->type() == QEvent::Hide && m_box == object) {
        m_box.clear();
    }
    if (event->type() == QEvent::Hide && !event->spontaneous() && qobject_cast<QMessageBox*>(object)
        && m_window == object)
        m_closing = m_last;
    if (!event->spontaneous())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease: {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        if (isStray(mouse))
            return true;
        note(object, {false, 0, Toolkit::globalPosition(mouse), mouse.timestamp()});
        return false;
    }
    case QEvent::ShortcutOverride: // comes first, and alone for a letter that presses a button of the box
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool isTaken = isStray(key);
        if (event->type() == QEvent::KeyRelease)
            m_released = {true, key.key(), {}, key.timestamp()};
        if (isTaken) {
            event->accept(); // or it would be tried as a shortcut
            return true;
        }
        if (event->type() != QEvent::KeyRelease)
            note(object, {true, key.key(), {}, key.timestamp()});
        return false;
    }
    default:
        return false;
    }
}

void StrayInput::note(QObject* receiver, const Stroke& stroke)
{
    if (auto* widget = qobject_cast<QWidget*>(receiver)) { // each comes to the native window first
        m_last = stroke;
        m_window = widget->window();
    }
}

bool StrayInput::isStray(const QMouseEvent& mouse)
{
    if (mouse.type() == QEvent::MouseButtonRelease)
        return m_isPressTaken;
    const auto patience = static_cast<ulong>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const auto follows = [&mouse](const Stroke& stroke, ulong limit) {
        return stroke.time > 0 && !stroke.isKey && mouse.timestamp() - stroke.time < limit
            && isSamePoint(Toolkit::globalPosition(mouse), stroke.position);
    };
    // Nobody reads a box as fast as that.
    m_isPressTaken = follows(m_closing, patience) || (m_box && follows(m_opening, 2 * patience));
    return m_isPressTaken;
}

bool StrayInput::isStray(const QKeyEvent& key)
{
    if (!m_closing.isKey)
        return false;
    if (key.key() != m_closing.key) {
        // Another key ends the repeats, and Windows calls the next press one where a release got lost with the box.
        if (key.type() == QEvent::KeyPress && !isModifier(key.key()))
            m_closing = {};
        return false;
    }
    if (key.type() == QEvent::KeyRelease)
        return key.isAutoRepeat();
    // On X11 many repeats come as a release and a press at the same time, which is more than a hand can do.
    const bool isReleasedNow = m_released.key == key.key() && m_released.time == key.timestamp();
    if (key.isAutoRepeat() || (isReleasedNow && key.timestamp() > 0))
        return true;
    m_closing = {};
    return false;
}
