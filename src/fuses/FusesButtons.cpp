#include "fuses/FusesButtons.h"

#include "avrdude/Avrdude.h"
#include "base/Box.h"
#include "fuses/FuseMeanings.h"
#include "fuses/FuseRequests.h"
#include "fuses/FusesButtonsView.h"

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
    if (m_avrdude.turnsAway())
        return; // no box belongs over a run
    const SettingsRecord& settings = m_avrdude.settings();
    const FuseBytes bytes = settings.fusesBytes;
    const QStringList warnings = FuseMeanings::warnings(settings, {m_avrdude.fusesOnChip(), m_accepted});
    if (!warnings.isEmpty()
        && !Box::ask(&m_view, QStringLiteral("FUSES"), warnings.join(QLatin1Char('\n')),
                     tr("Do you want to write the fuse bytes all the same?")))
        return;
    const QString part = settings.mcuId;
    m_avrdude.execute(FuseRequests::write(bytes), [this, part, bytes] {
        setKnown(part, bytes);
        m_remark = FuseRequests::remark(bytes);
        onClickWriteMessage();
    });
    if (m_avrdude.isRunning()) {
        m_accepted.note(part, bytes); // what was on the chip needs no new question when this fails
        m_avrdude.fusesOnChip().forget(part);
        emit known();
    }
}

void FusesButtons::onClickVerifyBt()
{
    const FuseBytes bytes = m_avrdude.settings().fusesBytes;
    m_avrdude.execute(FuseRequests::verify(bytes), [this, bytes] {
        m_remark = FuseRequests::remark(bytes);
        onClickVerifyMessage();
    });
}

void FusesButtons::setKnown(const QString& part, const FuseBytes& bytes, const QStringList& except)
{
    m_accepted = {};
    m_avrdude.fusesOnChip().note(part, FuseRequests::sent(bytes), except);
    emit known();
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
    Box::tell(&m_view, QStringLiteral("Information"), tr("Fuse bytes written successfully."), m_remark);
}

void FusesButtons::onClickVerifyMessage()
{
    Box::tell(&m_view, QStringLiteral("FUSES"), tr("Fuse bytes verified successfully."), m_remark);
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
    setKnown(settings.mcuId, settings.fusesBytes, unread);

    QStringList told;
    if (unread.isEmpty() || unread.size() < texts.size())
        told += tr("Fuse bytes read successfully.");
    if (!unread.isEmpty())
        told += tr("Not read (the old values are still shown): %1").arg(unread.join(QLatin1String(", ")));
    Box::tell(&m_view, QStringLiteral("FUSES"), told.join(QLatin1Char('\n')),
              FuseRequests::remark(settings.fusesBytes));
}
