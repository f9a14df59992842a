#include "memory/Flash.h"

#include "memory/FlashView.h"

#include <QPushButton>

Flash::Flash(FlashView& view, Avrdude& avrdude, QObject* parent)
    : Memory(view, avrdude, MemoryKind::flash, parent)
{
    connect(view.writeButton(), &QPushButton::clicked, this, &Flash::writeFlash);
    connect(view.writeVerifyButton(), &QPushButton::clicked, this, &Flash::writeFlashVerify);
    connect(view.readButton(), &QPushButton::clicked, this, &Flash::readFlash);
    connect(view.readVerifyButton(), &QPushButton::clicked, this, &Flash::readFlashVerify);
}
