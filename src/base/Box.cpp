#include "base/Box.h"

#include <QLabel>

#include <algorithm>

Box::Box(Icon icon, const QString& title, const QString& text, const QString& below, StandardButtons buttons,
         QWidget* parent)
    : QMessageBox(icon, title, text, buttons, parent)
{
    setInformativeText(below);
    constexpr int comfortable = 320; // pixels; the toolkit breaks its lines where the text above ends, however short
    if (auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        label->setMinimumWidth(std::min(comfortable, label->fontMetrics().boundingRect({}, 0, below).width() + 1));
}

void Box::tell(QWidget* parent, const QString& title, const QString& text, const QString& below, Icon icon)
{
    Box(icon, title, text, below, Ok, parent).exec();
}

bool Box::ask(QWidget* parent, const QString& title, const QString& text, const QString& below)
{
    Box box(Question, title, text, below, Yes | No, parent);
    box.setDefaultButton(No);
    return box.exec() == Yes;
}
