#include "memory/Eeprom.h"

#include "memory/EepromView.h"

#include <QPushButton>

Eeprom::Eeprom(EepromView& view, Avrdude& avrdude, QObject* parent)
    : Memory(view, avrdude, MemoryKind::eeprom, parent)
{
    connect(view.writeButton(), &QPushButton::clicked, this, &Eeprom::writeEeprom);
    connect(view.writeVerifyButton(), &QPushButton::clicked, this, &Eeprom::writeEepromVerify);
    connect(view.readButton(), &QPushButton::clicked, this, &Eeprom::readEeprom);
    connect(view.readVerifyButton(), &QPushButton::clicked, this, &Eeprom::readEepromVerify);
}
