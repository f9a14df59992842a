#include "base/RowBox.h"

#include <QHBoxLayout>

RowBox::RowBox(const QString& title, std::initializer_list<QWidget*> widgets, QWidget* parent)
    : QGroupBox(title, parent)
    , m_row(new QHBoxLayout(this))
{
    for (QWidget* widget : widgets) {
        m_row->addWidget(widget);
        if (!widget->inherits("QLabel") && !widget->inherits("QAbstractButton")) // these have a text of their own
            widget->setAccessibleName(QString(title).replace(QLatin1String("&&"), QLatin1String("&")));
    }
}
