#pragma once

#include "memory/Memory.h"

class FlashView;

/// Writes, verifies and reads the FLASH.
class Flash : public Memory
{
    Q_OBJECT

public:
    Flash(FlashView& view, Avrdude& avrdude);

    void writeFlash();
    void writeFlashVerify();
    void readFlash();
    void readFlashVerify();
    void writeFlashMessage();
    void writeFlashVerifyMessage();
    void readFlashMessage();
    void readFlashVerifyMessage();
};
