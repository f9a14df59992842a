#pragma once

#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QMouseEvent;

/// Takes what a hand sends after a message box that it has just closed: the second half of a double click, and the
/// repeats of a key that is still down. They were meant for the box, and would start what lies under it. Takes what
/// follows the press that began a board, too, and the second half of a double click that opened a box, too: it was not
/// meant for the button that happens to lie there. Nothing else is taken. Looks at all events; owned by the main
/// window.
class StrayInput : public QObject
{
    Q_OBJECT

public:
    explicit StrayInput(QObject* parent);

    bool eventFilter(QObject* object, QEvent* event) override;

    /// What a hand did last has done its work: its repeats are for nobody, as after a box that it closed.
    void expectRepeats() { m_closing = m_last; }

private:
    /// What a hand did last, or did when it closed a box.
    struct Stroke {
        bool isKey = false;
        int key = 0; ///< 0 for the mouse
        QPoint position; ///< on the screens, for the mouse
        ulong time = 0; ///< of the last event of it, in milliseconds of the system's clock for input
    };

    bool isStray(const QMouseEvent& mouse);
    bool isStray(const QKeyEvent& key);
    void note(QObject* receiver, const Stroke& stroke);

    Stroke m_last;
    QPointer<QWidget> m_window; ///< which that went to
    QPointer<QObject> m_box; ///< the message box that was shown last, while it is
    Stroke m_opening; ///< what had been done when it was shown
    Stroke m_closing; ///< no key and long ago: none
    bool m_isPressTaken = false; ///< its release is for nobody either
    Stroke m_released; ///< the key that last seemed to be let go
};
