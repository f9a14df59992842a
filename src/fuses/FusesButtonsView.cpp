#include "fuses/FusesButtonsView.h"

#include "base/RunButton.h"

#include <QHBoxLayout>
#include <QPushButton>

FusesButtonsView::FusesButtonsView(QWidget* parent)
    : QWidget(parent)
    , m_write(new RunButton(tr("Write"), this))
    , m_verify(new RunButton(tr("Verify"), this))
    , m_read(new RunButton(tr("Read"), this))
    , m_default(new QPushButton(tr("Default"), this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* button : {m_write, m_verify, m_read, m_default})
        layout->addWidget(button);
}
