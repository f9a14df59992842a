#pragma once

#include "memory/MemoryView.h"

/// MemoryView under the name of the flash, which is all that tells the two panels apart. Owned by the Programming tab.
class FlashView : public MemoryView
{
    Q_OBJECT

public:
    explicit FlashView(QWidget* parent = nullptr)
        : MemoryView(QStringLiteral("FLASH"), parent)
    {
    }
};
