#include "fuses/FusesButtons.h"

#include "avrdude/Avrdude.h"
#include "fuses/FuseRequests.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteModel.h"

#include <QMessageBox>
#include <QPushButton>

FusesButtons::FusesButtons(Avrdude& avrdude, FusesButtonsView& view, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
    , m_view(view)
{
    connect(view.writeButton(), &QPushButton::clicked, this, &FusesButtons::onClickWriteBt);
    connect(view.verifyButton(), &QPushButton::clicked, this, &FusesButtons::onClickVerifyBt);
    connect(view.readButton(), &QPushButton::clicked, this, &FusesButtons::onClickReadBt);
}

void FusesButtons::onClickWriteBt()
{
    m_avrdude.execute(FuseRequests::write(m_avrdude.settings().fusesBytes), [this] { onClickWriteMessage(); });
}

void FusesButtons::onClickVerifyBt()
{
    m_avrdude.execute(FuseRequests::verify(m_avrdude.settings().fusesBytes), [this] { onClickVerifyMessage(); });
}

void FusesButtons::onClickReadBt()
{
    SettingsRecord& settings = m_avrdude.settings();
    settings.fileNamesReading = FuseRequests::files(settings.fusesBytes);
    m_avrdude.execute(FuseRequests::read(settings.fusesBytes), [this] { readFuseBytesMcu(); });
}

void FusesButtons::onClickWriteMessage()
{
    QMessageBox::information(&m_view, QStringLiteral("Information"), tr("Fuse bytes written successfully."));
}

void FusesButtons::onClickVerifyMessage()
{
    QMessageBox::information(&m_view, QStringLiteral("FUSES"), tr("Fuse bytes verified successfully."));
}

void FusesButtons::readFuseBytesMcu()
{
    m_readFile.readFiles(m_avrdude.settings().fileNamesReading, [this](const QStringList& texts) {
        FusesByteModel::applyReadValues(m_avrdude.settings().fusesBytes, texts);
        emit setReadingFusesEmit();
        QMessageBox::information(&m_view, QStringLiteral("FUSES"), tr("Fuse bytes read successfully."));
    });
}
