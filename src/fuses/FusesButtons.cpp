#include "fuses/FusesButtons.h"

#include "avrdude/Avrdude.h"
#include "base/BoxText.h"
#include "fuses/FuseRequests.h"
#include "fuses/FusesButtonsView.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

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
    m_avrdude.executeReading(FuseRequests::read(settings.fusesBytes), settings.fileNamesReading,
                             [this] { readFuseBytesMcu(); });
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
    SettingsRecord& settings = m_avrdude.settings();
    QStringList texts; // one a byte, empty where avrdude made no file: the chip has no such memory
    for (const QString& file : std::as_const(settings.fileNamesReading)) {
        const bool isNew = m_avrdude.filesOfReading().contains(file);
        m_readFile.readFiles(isNew ? QStringList(file) : QStringList(),
                             [&texts](const QStringList& read) { texts += read.value(0); });
    }
    const QStringList unread = takeReadValues(settings.fusesBytes, texts);
    emit setReadingFusesEmit();

    QStringList told;
    if (unread.isEmpty() || unread.size() < texts.size())
        told += tr("Fuse bytes read successfully.");
    if (!unread.isEmpty())
        told += tr("Not read: %1").arg(unread.join(QLatin1String(", ")));
    QMessageBox::information(&m_view, QStringLiteral("FUSES"), boxText(told.join(QLatin1Char('\n'))));
}
