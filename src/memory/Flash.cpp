#include "memory/Flash.h"

#include "memory/FlashView.h"

#include <QPushButton>

namespace {

const Memory::Kind kind {
    "flash",
    "FLASH",
    QT_TRANSLATE_NOOP("Memory", "FLASH written successfully."),
    QT_TRANSLATE_NOOP("Memory", "FLASH verified successfully."),
    QT_TRANSLATE_NOOP("Memory", "FLASH read successfully."),
    &SettingsRecord::flashWrite,
    &SettingsRecord::flashRead,
    &SettingsRecord::cmdFlashWrite,
    &SettingsRecord::flashEnable,
    true,
};

}

Flash::Flash(FlashView& view, Avrdude& avrdude, QObject* parent)
    : Memory(view, avrdude, kind, parent)
{
    connect(view.writeButton(), &QPushButton::clicked, this, &Flash::writeFlash);
    connect(view.writeVerifyButton(), &QPushButton::clicked, this, &Flash::writeFlashVerify);
    connect(view.readButton(), &QPushButton::clicked, this, &Flash::readFlash);
    connect(view.readVerifyButton(), &QPushButton::clicked, this, &Flash::readFlashVerify);
}
