#pragma once

#include "app/record/SettingsRecord.h"
#include "profiles/BoardLog.h"
#include "profiles/Production.h"

#include <QElapsedTimer>
#include <QMap>
#include <QTemporaryFile>
#include <QVector>

#include <memory>

class ProfilesPresenter;

/// The writing of one board, from the first press of Write to the box that closes it or the failure of a step. Held by
/// ProfilesPresenter, which runs the steps; a new one takes its place with the next board.
struct BoardWriting {
    /// Before the chip is touched: opens the record and takes the serial number, so that no other board gets it.
    /// Returns what keeps the board from being written, for the user; empty when nothing does.
    [[nodiscard]] QString begin();

    /// The board has a verdict: its line goes into the record, and the number of one that has failed back into the
    /// profile. Returns what could not be done, for the user.
    QStringList end(bool isGood, const QString& message);

    /// Says that the record lacks the line of this board.
    [[nodiscard]] QString missingLine() const;

    enum class Area { Flash, Eeprom, Fuses };
    using Step = void (ProfilesPresenter::*)();

    /// As they were at the first press: what is chosen meanwhile is for the next board. Only the ticks count anew at
    /// each press.
    SettingsRecord settings;

    QString profile; ///< which was loaded; empty: none
    int lot = 0; ///< number of that loading
    Production production; ///< as the profile's file had it, the number as it was taken
    std::unique_ptr<BoardLog> record; ///< that gets its line; null: none
    BoardLog::Board line;
    std::unique_ptr<QTemporaryFile> numberFile; ///< the serial number for avrdude; null: none
    bool hasNumber = false; ///< that has been written
    QElapsedTimer time; ///< since the first press
    bool isOpen = false; ///< it has begun, and has no verdict yet
    bool isRecorded = true; ///< its line is where it should be

    QVector<Step> steps; ///< of the last press, in order
    int nextStep = 0;
    QString log; ///< what the log showed at that press, then that of each run which has ended since
    bool isRunning = false; ///< the run in progress is one of this board's
    QMap<Area, QStringList> sent; ///< since the first press, each with name and sum of its file
    QMap<Area, QString> written; ///< since the first press, each with its lines of the closing box
};
