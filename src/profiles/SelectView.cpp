#include "profiles/SelectView.h"

#include "base/RowBox.h"

#include <QCheckBox>
#include <QHBoxLayout>

SelectView::SelectView(QWidget* parent)
    : QWidget(parent)
    , m_flash(new QCheckBox(tr("FLASH"), this))
    , m_eeprom(new QCheckBox(tr("EEPROM"), this))
    , m_fuses(new QCheckBox(tr("FUSES"), this))
{
    auto* box = new RowBox(tr("Select memory areas to write:"), {m_flash, m_eeprom, m_fuses}, this);
    box->row()->addStretch();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
}
