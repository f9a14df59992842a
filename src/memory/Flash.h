#pragma once

#include "memory/Memory.h"

class FlashView;

/// Writes, verifies and reads the FLASH.
class Flash : public Memory
{
    Q_OBJECT

public:
    Flash(FlashView& view, Avrdude& avrdude, QObject* parent = nullptr);

public slots:
    void writeFlash()
    {
        startWrite([this] { writeFlashMessage(); });
    }
    void writeFlashVerify()
    {
        startVerify(fileToWrite(), [this] { writeFlashVerifyMessage(); });
    }
    void readFlash()
    {
        startRead([this] { readFlashMessage(); });
    }
    void readFlashVerify()
    {
        startVerify(fileToRead(), [this] { readFlashVerifyMessage(); });
    }
    void writeFlashMessage() { showWritten(); }
    void writeFlashVerifyMessage() { showVerified(); }
    void readFlashMessage() { showRead(); }
    void readFlashVerifyMessage() { showVerified(); }
};
