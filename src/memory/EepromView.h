#pragma once

#include "memory/MemoryView.h"

/// MemoryView under the name of the EEPROM, which is all that tells the two panels apart. Owned by the Programming tab.
class EepromView : public MemoryView
{
    Q_OBJECT

public:
    explicit EepromView(QWidget* parent = nullptr)
        : MemoryView(QStringLiteral("EEPROM"), parent)
    {
    }
};
