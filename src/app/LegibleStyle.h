#pragma once

#include <QProxyStyle>

/// The toolkit's own style with two things added. On a dark ground it draws the frames of check boxes darker than that,
/// and an empty one is lost: here it is seen. Of the titles of boxes it cuts the last letter with some sizes of font:
/// here they are whole.
class LegibleStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes the place of the application's style, if that is the one: those of desktops know how to be dark. To be
    /// called before the first widget is made.
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                       const QWidget* widget) const override;

private:
    using QProxyStyle::QProxyStyle;
};
