#pragma once

#include "Part.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

/// What a chip remembers without power: flash, EEPROM, fuse bytes and lock byte. A plain value.
///
/// Its file is a JSON object with the keys "part", "flash", "eeprom", "fuses" and "lock". Flash and EEPROM are
/// objects of address to bytes, both hexadecimal; what is not listed is erased (0xFF).
struct ChipState {
    QByteArray flash;
    QByteArray eeprom;
    std::array<quint8, Part::FuseCount> fuses;
    quint8 lock;

    /// The state in which the vendor delivers the part.
    [[nodiscard]] static ChipState factory(const Part& part);

    /// The state that the file at `path` holds. Nothing, and `error` says why, when it cannot be read, is no
    /// complete state or belongs to another part.
    [[nodiscard]] static std::optional<ChipState> load(const QString& path, const Part& part, QString& error);

    /// Replaces the file at `path` as a whole. False, and `error` says why, when that fails; the file is then as
    /// before.
    [[nodiscard]] bool save(const QString& path, const Part& part, QString& error) const;

    bool operator==(const ChipState& other) const;
};
