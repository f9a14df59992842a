#include "memory/Eeprom.h"

#include "memory/EepromView.h"

#include <QPushButton>

namespace {

const Memory::Kind kind {
    "eeprom",
    "EEPROM",
    QT_TRANSLATE_NOOP("Memory", "EEPROM written successfully."),
    QT_TRANSLATE_NOOP("Memory", "EEPROM verified successfully."),
    QT_TRANSLATE_NOOP("Memory", "EEPROM read successfully."),
    &SettingsRecord::eepromWrite,
    &SettingsRecord::eepromRead,
    &SettingsRecord::cmdEepromWrite,
    &SettingsRecord::eepromEnable,
    false,
};

}

Eeprom::Eeprom(EepromView& view, Avrdude& avrdude, QObject* parent)
    : Memory(view, avrdude, kind, parent)
{
    connect(view.writeButton(), &QPushButton::clicked, this, &Eeprom::writeEeprom);
    connect(view.writeVerifyButton(), &QPushButton::clicked, this, &Eeprom::writeEepromVerify);
    connect(view.readButton(), &QPushButton::clicked, this, &Eeprom::readEeprom);
    connect(view.readVerifyButton(), &QPushButton::clicked, this, &Eeprom::readEepromVerify);
}
