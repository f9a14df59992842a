#include "mcu/Program.h"

#include "memory/Eeprom.h"
#include "memory/EepromView.h"
#include "memory/Flash.h"
#include "memory/FlashView.h"

#include <QVBoxLayout>

Program::Program(Avrdude& avrdude, QWidget* parent)
    : QWidget(parent)
{
    auto* flashView = new FlashView(this);
    auto* eepromView = new EepromView(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(flashView);
    layout->addWidget(eepromView);
    layout->addStretch();

    m_flash = std::make_unique<Flash>(*flashView, avrdude);
    m_eeprom = std::make_unique<Eeprom>(*eepromView, avrdude);
}

Program::~Program() = default;

void Program::refresh()
{
    m_flash->refresh();
    m_eeprom->refresh();
}
