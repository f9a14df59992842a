#include "mcu/Attributes.h"

#include "app/log/AvrdudeMessage.h"
#include "app/record/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "base/Box.h"
#include "base/JsonFile.h"
#include "mcu/AttributesView.h"
#include "mcu/description/BytesModel.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace {

QString calibrationFile()
{
    return QStringLiteral("calibration.hex");
}

} // namespace

Attributes::Attributes(Avrdude& avrdude, SignatureIndex& /*index*/, AttributesView& view, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
    , m_view(view)
{
    QStringList names = jsonBaseNames(BytesModel::folder());
    names.sort();
    view.mcuList()->addItems(names);
    view.mcuList()->setOtherWords([](const QString& name) { return otherNames(BytesModel::folder(), name); });
    if (names.isEmpty())
        avrdude.log().appendLine(tr("Nothing found in the folder %1.").arg(fullPath(BytesModel::folder())));

    connect(view.eraseButton(), &QPushButton::clicked, this, &Attributes::eraseAllMcu);
    connect(view.autoDetectButton(), &QPushButton::clicked, this, &Attributes::autoDetect);
    connect(view.readButton(), &QPushButton::clicked, this, &Attributes::setAvrdudeCmdReadCallByte);
}

void Attributes::refresh()
{
    const SettingsRecord& settings = m_avrdude.settings();
    m_view.mcuList()->setCurrentIndex(m_view.mcuList()->findText(settings.mcuName));
    showCalibration(settings.callByte);
}

void Attributes::showCalibration(const QString& text)
{
    m_view.calibrationByte()->setText(text);
    m_view.calibrationByte()->setCursorPosition(0); // a long one is read from its beginning
}

void Attributes::clearCalibration()
{
    m_avrdude.settings().callByte.clear();
    showCalibration({});
}

void Attributes::eraseAllMcu()
{
    m_avrdude.execute({QStringLiteral("-e")}, [this] {
        QMessageBox::information(&m_view, QStringLiteral("MCU"), tr("MCU erased successfully."));
    });
}

void Attributes::autoDetect()
{
    m_avrdude.execute({});
    QMessageBox::question(&m_view, QStringLiteral("MCU Detected"),
                          tr("MCU auto-detected successfully. Do you want to continue?"));
}

void Attributes::setAvrdudeCmdReadCallByte()
{
    m_view.calibrationByte()->clear();
    m_avrdude.executeReading({QStringLiteral("-U"), QStringLiteral("calibration:r:%1:r").arg(calibrationFile())},
                             {calibrationFile()}, [this] { readFileCallByte(); });
}

void Attributes::readFileCallByte()
{
    QString value;
    m_readFile.readFiles(m_avrdude.filesOfReading(), [&value](const QStringList& texts) { value = texts.value(0); });
    showCalibration(value);
    m_avrdude.settings().callByte = value;
    const bool hasValue = !value.isEmpty();
    Box::tell(&m_view, QStringLiteral("Calibration Byte"), tr("Calibration byte read successfully."),
              hasValue ? QString() : tr("avrdude has read none: most likely the microcontroller has no such byte."),
              hasValue ? QMessageBox::Information : QMessageBox::Warning);
}
