#include "app/ListComboBox.h"

#include <QAbstractItemView>
#include <QScrollBar>

ListComboBox::ListComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    connect(this, &QComboBox::currentTextChanged, this, &QWidget::setToolTip);
}

void ListComboBox::showPopup()
{
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width());
    QComboBox::showPopup();
}
