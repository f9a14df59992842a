#pragma once

#include "app/record/SettingsRecord.h"

#include <QStringList>

/// A run that failed, for who explains it. A plain value.
struct FailedRun {
    SettingsRecord settings; ///< whose program and frame it had
    QStringList arguments; ///< of the operation, without the frame
    QString output; ///< what avrdude had printed by then
    bool isStarted = true; ///< false: there is no such program, or it did not start
    bool isStopped = false; ///< the user ended it
};

/// What is told below the message of a failure. A plain value; all of it may be empty.
struct Explanation {
    QStringList lines; ///< translated
    QStringList parts; ///< names of microcontrollers of which the user may choose one instead
};
