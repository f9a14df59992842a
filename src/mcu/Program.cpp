#include "mcu/Program.h"

#include "app/record/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "fuses/Fuses.h"
#include "mcu/Attributes.h"
#include "mcu/AttributesView.h"
#include "memory/Eeprom.h"
#include "memory/EepromView.h"
#include "memory/Flash.h"
#include "memory/FlashView.h"

#include <QMessageBox>
#include <QVBoxLayout>

Program::Program(Avrdude& avrdude, Fuses& fuses, QWidget* parent)
    : QWidget(parent)
    , m_settings(avrdude.settings())
    , m_fuses(fuses)
    , m_attributesView(new AttributesView(this))
    , m_flashView(new FlashView(this))
{
    auto* eepromView = new EepromView(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_attributesView);
    layout->addWidget(m_flashView);
    layout->addWidget(eepromView);
    layout->addStretch();

    m_attributes = new Attributes(avrdude, m_signatures, *m_attributesView, this);
    m_flash = new Flash(*m_flashView, avrdude, this);
    m_eeprom = new Eeprom(*eepromView, avrdude, this);
    connect(m_attributesView->mcuList(), &QComboBox::textActivated, this, &Program::onMcuSelected);
}

void Program::refresh()
{
    m_attributes->refresh();
    m_flash->refresh();
    m_eeprom->refresh();
}

void Program::chooseMcu(const QString& name)
{
    m_attributesView->mcuList()->setCurrentText(name);
    onMcuSelected(name);
}

void Program::browseForFlash()
{
    m_flashView->browseForWriting();
}

void Program::onMcuSelected(const QString& name)
{
    m_settings.mcuName = name;
    m_attributes->clearCalibration();
    m_fuses.loadMcu(name);
    m_fuses.rebuild();
    QMessageBox::information(m_attributesView, QStringLiteral("MCU"),
                             tr("MCU selected: ") + name + tr(".\nFuse bytes set to datasheet default values."));
}
