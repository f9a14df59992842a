#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

struct ChipShape;

/// What a chip remembers without power: flash, EEPROM, fuse bytes, lock and, where it has one, user row. A plain value.
///
/// Its file is a JSON object with the keys "part", "flash", "eeprom", "fuses" and "lock", and "userRow" where there is
/// one. Flash, EEPROM and user row are objects of address to bytes, both hexadecimal; what is not listed is erased
/// (0xFF).
struct ChipState {
    /// One bit of one fuse byte.
    struct FuseBit {
        int fuse = 0; ///< which byte
        quint8 mask = 0; ///< 0: the part does not have the bit
    };

    QByteArray flash;
    QByteArray eeprom;
    QVector<quint8> fuses;
    QByteArray lock; ///< one byte, or the four of a key
    QByteArray userRow;

    /// The state that the file at `path` holds. Nothing, and `error` says why, when it cannot be read, is no
    /// complete state or belongs to another part.
    [[nodiscard]] static std::optional<ChipState> load(const QString& path, const ChipShape& shape, QString& error);

    /// Replaces the file at `path` as a whole. False, and `error` says why, when that fails; the file is then as
    /// before.
    [[nodiscard]] bool save(const QString& path, const ChipShape& shape, QString& error) const;

    /// Whether a bit of the fuses is 1, which one that the part does not have never is.
    [[nodiscard]] bool isSet(const FuseBit& bit) const { return (fuses[bit.fuse] & bit.mask) != 0; }

    bool operator==(const ChipState& other) const;
};

/// What of a part its state depends on. A plain value.
struct ChipShape {
    QString part; ///< its name
    ChipState factory; ///< as the vendor delivers it, which also tells all sizes
    QStringList fuseNames; ///< in the file
    QVector<quint8> fuseBits; ///< the bits that exist; 0: the part does not have that fuse byte
    QByteArray lockBits; ///< the same for the lock
};
