#pragma once

#include <QString>
#include <QVector>

#include <array>

/// One bit of a fuse or lock byte. Values follow the datasheets: 0 is programmed, 1 is unprogrammed.
struct FuseBit {
    int bitNumber = 0; ///< 0 to 7; informational, the place in FuseByte::fuseBits is what counts
    bool enabled = false; ///< false: the user may not change the bit
    QString name = QStringLiteral("NOT USED"); ///< this very name marks a bit that typing a value never changes
    quint32 defaultBitValue = 0; ///< 0 or 1, from the datasheet
    quint32 currentBitValue = 0; ///< 0 or 1

    /// Whether the part has the bit.
    [[nodiscard]] bool isUsed() const { return name != QLatin1String("NOT USED"); }
};

/// One fuse or lock byte of a microcontroller. A plain value, copied whole with the list that holds it.
struct FuseByte {
    QString name; ///< shown to the user
    QString id; ///< avrdude's name of the memory ("lfuse"); "lock..." marks the lock byte
    std::array<FuseBit, 8> fuseBits; ///< index 0 is the least significant bit
    quint32 defaultValue = 0; ///< 0 to 255, from the datasheet
    quint32 currentValue = 0; ///< 0 to 255; what is written, verified and shown
};

/// In the order of the description file.
using FuseBytes = QVector<FuseByte>;
