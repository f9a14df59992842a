#include "base/RowBox.h"

#include <QHBoxLayout>

RowBox::RowBox(const QString& title, std::initializer_list<QWidget*> widgets, QWidget* parent)
    : QGroupBox(title, parent)
    , m_row(new QHBoxLayout(this))
{
    const QString name = QString(title).replace(QLatin1String("&&"), QLatin1String("&"));
    setAccessibleName(name); // else a box within a box is read out with the title of that one
    for (QWidget* widget : widgets) {
        m_row->addWidget(widget);
        if (!widget->inherits("QLabel") && !widget->inherits("QAbstractButton")) // these have a text of their own
            widget->setAccessibleName(name);
    }
}
