#include "app/VisibleBoxes.h"

#include "base/Contrast.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

void VisibleBoxes::install()
{
    const QString style = QApplication::style()->objectName();
    if (style == QLatin1String("fusion"))
        QApplication::setStyle(new VisibleBoxes(style));
}

void VisibleBoxes::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
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
