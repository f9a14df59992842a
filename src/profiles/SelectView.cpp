#include "profiles/SelectView.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>

SelectView::SelectView(QWidget* parent)
    : QWidget(parent)
    , m_flash(new QCheckBox(tr("FLASH"), this))
    , m_eeprom(new QCheckBox(tr("EEPROM"), this))
    , m_fuses(new QCheckBox(tr("FUSES"), this))
{
    auto* box = new QGroupBox(tr("Select memory areas to write:"), this);
    auto* boxLayout = new QHBoxLayout(box);
    for (QCheckBox* checkBox : {m_flash, m_eeprom, m_fuses})
        boxLayout->addWidget(checkBox);
    boxLayout->addStretch();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
}
