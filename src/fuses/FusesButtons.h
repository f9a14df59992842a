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

    /// Takes the files of a reading over into the record's bytes, each its own as far as it is among @p files, and
    /// tells the user what came of it.
    void readFuseBytesMcu(const QStringList& files);

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
