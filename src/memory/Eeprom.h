#pragma once

#include "memory/Memory.h"

class EepromView;

/// Writes, verifies and reads the EEPROM.
class Eeprom : public Memory
{
    Q_OBJECT

public:
    Eeprom(EepromView& view, Avrdude& avrdude);

    void writeEeprom();
    void writeEepromVerify();
    void readEeprom();
    void readEepromVerify();
    void writeEepromMessage();
    void writeEepromVerifyMessage();
    void readEepromMessage();
    void readEepromVerifyMessage();
};
