#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QFocusEvent;
class QLabel;
class QWidget;

/// Shows the tooltip of the watched widgets to whoever works without a mouse, too: below the owner, a while after one
/// of them got the focus by the keyboard. It takes no focus and moves nothing. Escape, a press of the mouse, scrolling,
/// and leaving the widget or the window hide it; nothing is shown for a widget without a tooltip.
class FocusTip : public QObject
{
    Q_OBJECT

public:
    /// The tip stands beside @p owner, which holds the widgets, so that it covers none of them.
    explicit FocusTip(QWidget& owner);

    /// From now on @p widget, somewhere in the owner, has a tip.
    void watch(QWidget* widget);

    /// Whether it was a key that brought the focus, not the mouse or a window that came to the front.
    [[nodiscard]] static bool isByKeyboard(const QFocusEvent& event);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void show();
    void hide();
    [[nodiscard]] bool isShown() const;
    [[nodiscard]] bool isEnd(const QObject* object, const QEvent& event) const;

    QWidget& m_owner;
    QTimer m_wait;
    QPointer<QWidget> m_focused; ///< while its tip is shown, or about to be
    QLabel* m_tip = nullptr; ///< made when it is first shown
};
