#pragma once

#include <QString>
#include <QStringList>

/// One operation on a memory with a file, as avrdude is asked for it. A plain value; the settings record holds requests
/// as the arguments that they make.
struct MemoryRequest {
    QString memory; ///< avrdude's name of it: "flash", "eeprom"
    QString operation; ///< "w" writes the file, "v" verifies against it, "r" reads into it
    QString file; ///< path, as avrdude gets it
    QString format; ///< avrdude's code of the file's format, "i" for Intel hex

    /// "-U" and the operation in avrdude's words, "flash:w:C:/fw/app.hex:i".
    [[nodiscard]] QStringList arguments() const;

    /// The request that makes @p arguments. All fields are empty when they are not one such request.
    [[nodiscard]] static MemoryRequest from(const QStringList& arguments);
};
