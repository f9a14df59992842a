#pragma once

#include "memory/MemoryView.h"

/// The FLASH panel.
class FlashView : public MemoryView
{
    Q_OBJECT

public:
    explicit FlashView(QWidget* parent = nullptr)
        : MemoryView(QStringLiteral("FLASH"), parent)
    {
    }
};
