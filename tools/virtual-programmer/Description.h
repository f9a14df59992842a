#pragma once

#include "ChipState.h"

#include <QHash>

/// What is read of the description of a microcontroller that ships with Korvel, whichever way the part is programmed.
/// A plain value.
struct Description {
    /// A fuse byte or the lock byte.
    struct Byte {
        quint8 factory = 0; ///< its value
        quint8 bits = 0; ///< those that exist
        QHash<QString, quint8> masks; ///< of these, by name
    };

    QString name; ///< as the vendor writes it
    QStringList interfaces;
    QByteArray signature; ///< three bytes
    int flashSize = 0; ///< bytes, up to 1 MiB; of a part with ISP a power of two
    int eepromSize = 0; ///< bytes; 0: the part has none; of a part with ISP a power of two
    QHash<QString, Byte> bytes; ///< by avrdude's name

    /// The description of the part called `name`, in upper or lower case, in the first of `folders` that has one.
    /// Nothing where none has, and where it is damaged or another part's; `error` says that.
    [[nodiscard]] static std::optional<Description> read(const QString& name, const QStringList& folders,
                                                         QString& error);

    /// The bit called `bit` in the first of the fuse bytes `ids` that has it.
    [[nodiscard]] ChipState::FuseBit findBit(const QStringList& ids, const QString& bit) const;
};
