#pragma once

#include "app/record/SettingsRecord.h"
#include "memory/MemoryRequest.h"

#include <optional>

/// What tells one memory from the other, and the requests that follow from it. There are two, for as long as the
/// program runs.
struct MemoryKind {
    static const MemoryKind flash;
    static const MemoryKind eeprom;

    const char* memory; ///< avrdude's name of the memory
    const char* title; ///< of the boxes, untranslated
    const char* written; ///< texts of the boxes, translated in the context "Memory" when shown
    const char* verified;
    const char* read;
    QString SettingsRecord::*writeFile;
    QString SettingsRecord::*readFile;
    QStringList SettingsRecord::*writeCommand;
    bool SettingsRecord::*enable;
    bool passesA90; ///< the suffix "a90" goes to avrdude as its own format code

    /// avrdude's format code for a lower-case file @p suffix; "a" (detect) for an unknown one.
    [[nodiscard]] QString formatOf(const QString& suffix) const;

    /// What does @p operation ("r", "w", "v") with the file at @p path.
    [[nodiscard]] MemoryRequest request(const char* operation, const QString& path) const;

    /// The arguments that write the memory with @p settings: the prepared command if all that it does is to write the
    /// record's file, or some file while the record names none; otherwise one made of the record's file. Nothing when
    /// there is none either: what a stranger prepared is not run unseen. A record with neither has no arguments.
    [[nodiscard]] std::optional<QStringList> commandFor(const SettingsRecord& settings) const;
};
