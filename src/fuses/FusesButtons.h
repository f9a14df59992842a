#pragma once

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
    /// The values read stand in the settings record; the bits do not follow them yet.
    void setReadingFusesEmit();

private:
    Avrdude& m_avrdude;
    FusesButtonsView& m_view;
    ReadFile m_readFile;
};
