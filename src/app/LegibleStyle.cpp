#include "app/LegibleStyle.h"

#include "base/Contrast.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

void LegibleStyle::install()
{
    const QString style = QApplication::style()->objectName();
    if (style == QLatin1String("fusion"))
        QApplication::setStyle(new LegibleStyle(style));
}

void LegibleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QColor ground = option->palette.color(QPalette::Window);
    const QColor text = option->palette.color(QPalette::WindowText);
    if (element != PE_IndicatorCheckBox || ground.lightness() >= text.lightness())
        return;
    painter->setPen(Contrast::between(ground, text, Contrast::half));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

QRect LegibleStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    constexpr int lastLetter = 6; // pixels, that are missing at most
    return control == CC_GroupBox && part == SC_GroupBoxLabel ? rect.adjusted(0, 0, lastLetter, 0) : rect;
}
