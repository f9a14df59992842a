#pragma once

#include "profiles/SerialNumber.h"

#include <optional>

struct SettingsRecord;

/// What a profile's file says, beside the settings, of writing one board after another. It stands in that file alone.
/// A plain value.
struct Production {
    bool isQuiet = false; ///< a good board has no box
    QString boardLog; ///< the file that gets a line for each board; empty: none
    std::optional<SerialNumber> serial;

    /// Why no board may be written with it, in a sentence for the user; empty when boards may.
    QString fault;

    /// Whether it says nothing.
    [[nodiscard]] bool isPlain() const { return !isQuiet && boardLog.isEmpty() && !serial && fault.isEmpty(); }

    /// Reads the profile's file at @p path for boards that are written with @p settings.
    [[nodiscard]] static Production read(const QString& path, const SettingsRecord& settings);
};
