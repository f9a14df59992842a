#include "fuses/FusesBytesView.h"

#include <QVBoxLayout>

FusesBytesView::FusesBytesView(QWidget* parent)
    : QWidget(parent)
    , m_reason(new QLabel(this))
    , m_editors(new QVBoxLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_editors->setSpacing(2);
    m_reason->setWordWrap(true);
    m_reason->hide();
    layout->addWidget(m_reason);
    layout->addLayout(m_editors);
    layout->addStretch();
}

void FusesBytesView::setReason(const QString& text)
{
    m_reason->setText(text);
    m_reason->setVisible(!text.isEmpty());
}

void FusesBytesView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    emit shown();
}
