#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Keeps in sight what has the focus, for whoever works without a mouse: scrolls to it, and frames it where the style
/// does not show it, or hardly. Watches all widgets of the window, which owns it.
class KeyboardFocus : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardFocus(QWidget& window);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    static void scrollTo(QWidget* widget);

    QWidget& m_window;
    QPointer<QWidget> m_frame; ///< lies over what is framed, and is made with it
};
