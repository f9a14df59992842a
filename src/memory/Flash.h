#pragma once

#include "memory/Memory.h"

class FlashView;

/// Memory for the flash: each operation with what is told when it is done. Owned by the Programming tab.
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
