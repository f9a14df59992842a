#pragma once

#include <QString>
#include <QStringList>
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

/// One fuse or lock byte of a microcontroller. A plain value, copied whole with the list that holds it. Its value is
/// there twice, as a number and as bits: who reads a description or a file fills both. setValue(), setBit() and
/// bringTogether() keep them together; the other functions below change the number alone, and bringTogether() is due
/// after them. Nothing else changes either.
struct FuseByte {
    static constexpr int most = 64; ///< of a part; those that there are have up to twelve

    QString name; ///< shown to the user
    QString id; ///< avrdude's name of the memory ("lfuse"); "lock..." marks the lock byte
    std::array<FuseBit, 8> fuseBits; ///< index 0 is the least significant bit
    quint32 defaultValue = 0; ///< 0 to 255, from the datasheet
    quint32 currentValue = 0; ///< 0 to 255; what is written, verified and shown
};

/// In the order of the description file.
using FuseBytes = QVector<FuseByte>;

/// Takes over those bits of @p value that the user may change and that have a name; the byte's value becomes what all
/// eight bits then say. So a locked bit cannot be typed away.
void setValue(FuseByte& byte, quint32 value);

/// Programs the bit @p number (0 to 7) when @p isProgrammed, whatever its name, and unprograms it otherwise; the byte's
/// value follows. Another number changes nothing.
void setBit(FuseByte& byte, int number, bool isProgrammed);

/// Brings the bits of every byte in line with its value, as setValue() does. Due once a list was replaced, or after the
/// two functions below, which leave the bits alone.
void bringTogether(FuseBytes& bytes);

/// Gives every byte its default value.
void restoreDefaults(FuseBytes& bytes);

/// Gives the bytes the values read from the chip, in order, as far as both lists go. @p texts are hexadecimal, two
/// digits each; any other leaves its byte as it is: the chip has no such memory, or what came is none. Returns the
/// names of the bytes so left.
[[nodiscard]] QStringList takeReadValues(FuseBytes& bytes, const QStringList& texts);
