#pragma once

#include "memory/Memory.h"

class EepromView;

/// Memory for the EEPROM: each operation with what is told when it is done. Owned by the Programming tab.
class Eeprom : public Memory
{
    Q_OBJECT

public:
    Eeprom(EepromView& view, Avrdude& avrdude, QObject* parent = nullptr);

public slots:
    void writeEeprom()
    {
        startWrite([this] { writeEepromMessage(); });
    }
    void writeEepromVerify()
    {
        startVerify(fileToWrite(), [this] { writeEepromVerifyMessage(); });
    }
    void readEeprom()
    {
        startRead([this] { readEepromMessage(); });
    }
    void readEepromVerify()
    {
        startVerify(fileToRead(), [this] { readEepromVerifyMessage(); });
    }
    void writeEepromMessage() { showWritten(); }
    void writeEepromVerifyMessage() { showVerified(); }
    void readEepromMessage() { showRead(); }
    void readEepromVerifyMessage() { showVerified(); }
};
