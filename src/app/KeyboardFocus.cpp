#include "app/KeyboardFocus.h"

#include "base/FocusTip.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QScrollArea>
#include <QTabBar>

namespace {

/// A line in the colour of text around a widget, which it is a child of; of a tab bar, around the tab that is shown.
class Frame : public QWidget
{
public:
    explicit Frame(QWidget& around)
        : QWidget(&around)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        around.installEventFilter(this);
        if (auto* tabs = qobject_cast<QTabBar*>(&around))
            connect(tabs, &QTabBar::currentChanged, this, &Frame::place);
        place();
        show();
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            place();
        return QWidget::eventFilter(object, event);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr int thickness = 2; // pixels
        // The parent's own: one with a style sheet does not hand it on.
        QPainter painter(this);
        painter.setPen(QPen(parentWidget()->palette().color(QPalette::WindowText), thickness, Qt::SolidLine,
                            Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }

private:
    void place()
    {
        const auto* tabs = qobject_cast<const QTabBar*>(parentWidget());
        setGeometry(tabs ? tabs->tabRect(tabs->currentIndex()) : parentWidget()->rect());
        raise();
    }
};

/// Whether the style draws nothing or next to nothing where @p widget has the focus.
bool needsFrame(const QWidget& widget)
{
    const bool isText = widget.inherits("QAbstractScrollArea") && !widget.inherits("QScrollArea");
    return isText || widget.inherits("QLabel") || widget.inherits("QTabBar") || widget.inherits("QToolButton");
}

} // namespace

KeyboardFocus::KeyboardFocus(QWidget& window)
    : QObject(&window)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool KeyboardFocus::eventFilter(QObject* object, QEvent* event)
{
    const bool isComing = event->type() == QEvent::FocusIn;
    auto* widget = isComing || event->type() == QEvent::FocusOut ? qobject_cast<QWidget*>(object) : nullptr;
    if (!widget || widget->window() != &m_window)
        return false;
    delete m_frame;
    // The style, too, shows the focus from the first time on that a key has moved it.
    if (isComing && needsFrame(*widget) && m_window.testAttribute(Qt::WA_KeyboardFocusChange))
        m_frame = new Frame(*widget);
    if (isComing && FocusTip::isByKeyboard(static_cast<const QFocusEvent&>(*event)))
        scrollTo(widget); // not for the mouse: it would move away under the pointer
    return false;
}

void KeyboardFocus::scrollTo(QWidget* widget)
{
    for (QWidget* around = widget->parentWidget(); around; around = around->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(around))
            area->ensureWidgetVisible(widget);
    }
}
