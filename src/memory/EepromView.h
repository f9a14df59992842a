#pragma once

#include "memory/MemoryView.h"

/// The EEPROM panel.
class EepromView : public MemoryView
{
    Q_OBJECT

public:
    explicit EepromView(QWidget* parent = nullptr)
        : MemoryView(QStringLiteral("EEPROM"), parent)
    {
    }
};
