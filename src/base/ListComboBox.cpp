#include "base/ListComboBox.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QScrollBar>

ListComboBox::ListComboBox(Width width, QWidget* parent)
    : QComboBox(parent)
{
    setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    if (width == Width::Any) {
        constexpr int minimumLength = 3; // characters
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        setMinimumContentsLength(minimumLength);
    }
}

bool ListComboBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(currentText());
    return QComboBox::event(event);
}

void ListComboBox::showPopup()
{
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width());
    QComboBox::showPopup();
}
