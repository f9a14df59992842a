#pragma once

#include "app/record/FusesOnChip.h"
#include "avrdude/ReadFile.h"

#include <QObject>

class Avrdude;
class FusesButtonsView;

/// Writes, verifies and reads all fuse bytes of the microcontroller, the lock byte included. Owned by the Fuses tab, as
/// is the view; the runner outlives both.
class FusesButtons : public QObject
{
    Q_OBJECT

public:
    FusesButtons(Avrdude& avrdude, FusesButtonsView& view, QObject* parent = nullptr);

    /// Takes the files of the last reading over into the record's bytes, each its own, and tells the user what came of
    /// it.
    void readFuseBytesMcu();

public slots:
    void onClickWriteBt();
    void onClickVerifyBt();
    void onClickReadBt();
    void onClickWriteMessage();
    void onClickVerifyMessage();

signals:
    /// Bytes were just read from a chip or written to it; the settings record tells what is known of it.
    void known();

    /// The values read stand in the settings record; the bits do not follow them yet.
    void setReadingFusesEmit();

private:
    /// Notes that a chip has @p bytes, but for those called one of @p except.
    void setKnown(const QString& part, const FuseBytes& bytes, const QStringList& except = {});

    Avrdude& m_avrdude;
    FusesButtonsView& m_view;
    QString m_remark; ///< that the closing box of a run adds
    FusesOnChip m_accepted; ///< what the user has said yes to since the last run that succeeded
    ReadFile m_readFile;
};
