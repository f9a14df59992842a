#pragma once

#include <QString>

/// What avrdude will find in a file for a memory, found beforehand: avrdude reads it only after it has erased the chip.
/// A plain value. Goes by avrdude 7.1, and passes what other versions are known to take.
struct FirmwareFile {
    /// Why avrdude would refuse the file or write nothing of it, in a sentence for the user; empty when it would write
    /// it, as far as known.
    QString fault;

    /// How much it brings to the memory; -1: not known. With a fault only what came before that.
    qint64 bytes = -1;

    /// Reads the file at @p path as avrdude does when it gets the code @p format: "i", "r", "e", "m", or "a" to look at
    /// the content. @p memory is avrdude's name of it, @p memorySize its size in bytes; 0 or less: not known. Nothing
    /// is known with another code, nor of a file that cannot be read: avrdude says that in time, but for "m".
    [[nodiscard]] static FirmwareFile read(const QString& path, const QString& format, const QString& memory,
                                           qint64 memorySize);
};
