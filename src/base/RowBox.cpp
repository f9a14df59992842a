#include "base/RowBox.h"

#include <QHBoxLayout>

#include <algorithm>

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

QSize RowBox::minimumSizeHint() const
{
    const int titleWidth = fontMetrics().size(Qt::TextShowMnemonic, title() + QLatin1Char(' ')).width();
    return {std::max(titleWidth, layout()->totalMinimumSize().width()), QGroupBox::minimumSizeHint().height()};
}

QSize RowBox::sizeHint() const
{
    return QGroupBox::sizeHint().expandedTo(QGroupBox::minimumSizeHint());
}
