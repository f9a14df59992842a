#pragma once

#include <QProxyStyle>

/// The toolkit's own style, but that check boxes are seen on a dark desktop, too: it draws their frames darker than the
/// ground, where an empty one is lost.
class VisibleBoxes : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes the place of the application's style, if that is the one: those of desktops know how to be dark. To be
    /// called before the first widget is made.
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

private:
    using QProxyStyle::QProxyStyle;
};
