#pragma once

#include "ChipState.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

struct Description;

/// What the virtual chip has to know about one part that is programmed by ISP. The table of parts is constant and lives
/// as long as the program.
struct Part {
    enum Fuse { LowFuse, HighFuse, ExtendedFuse, FuseCount };

    using FuseBit = ChipState::FuseBit;

    QString name; ///< as the vendor writes it
    std::array<quint8, 3> signature;
    int flashSize; ///< bytes, a power of two
    int flashPageSize; ///< bytes, a power of two; 0: as the programmer is told, and 1 or less then for none
    int eepromSize; ///< bytes, a power of two; 0: the part has none
    int eepromPageSize; ///< bytes, a power of two; 0: the part has no instructions for EEPROM pages
    int calibrationSize; ///< number of calibration bytes
    std::array<quint8, FuseCount> factoryFuses;
    std::array<quint8, FuseCount> fuseBits; ///< the bits that exist; 0: the part does not have that fuse byte
    quint8 lockBits; ///< the bits of the lock byte that exist
    FuseBit spien; ///< serial programming enabled
    FuseBit eesave; ///< EEPROM survives a chip erase
    quint8 resetPin; ///< RSTDISBL and DWEN in the high fuse, those of them that exist
    quint8 ckdiv8; ///< CKDIV8 in the low fuse; 0: the part does not have it
    quint8 cksel; ///< CKSEL in the low fuse, from bit 0
    std::array<int, 16> oscillators; ///< Hz that each value of CKSEL gives; 0: the clock comes from outside

    [[nodiscard]] ChipShape shape() const;

    /// The part of that name in upper or lower case, or nullptr when there is none.
    [[nodiscard]] static const Part* find(const QString& name);

    /// One made of the description of a part with ISP, which tells less: it always has a clock, and only the fuses by
    /// which it is programmed over ISP can take that away. Nothing where it is programmed in another way.
    [[nodiscard]] static std::optional<Part> described(const Description& description);

    /// The names of all parts, in the order of the table.
    [[nodiscard]] static QStringList names();
};
