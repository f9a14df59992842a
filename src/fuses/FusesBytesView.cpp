#include "fuses/FusesBytesView.h"

#include <QVBoxLayout>

FusesBytesView::FusesBytesView(QWidget* parent)
    : QWidget(parent)
    , m_editors(new QVBoxLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_editors->setSpacing(2);
    layout->addLayout(m_editors);
    layout->addStretch();
}

void FusesBytesView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    emit shown();
}
