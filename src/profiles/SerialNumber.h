#pragma once

#include <QByteArray>
#include <QString>

class QJsonValue;
struct SettingsRecord;

/// A number that each board gets of its own: where it goes, how it is written there, and which is next. A plain value,
/// the "serial" of a profile's file.
struct SerialNumber {
    QString memory; ///< avrdude's name: "eeprom" or "flash"
    qint64 address = 0; ///< of its first byte
    int bytes = 0; ///< that it takes
    QString format; ///< "little" or "big" endian, "decimal" or "hex" in ASCII digits
    qint64 next = 0;

    /// What a profile's file has, whatever that is.
    [[nodiscard]] static SerialNumber from(const QJsonValue& json);

    /// Why no board can get the number with @p settings, in a sentence for the user; empty when it can.
    [[nodiscard]] QString fault(const SettingsRecord& settings) const;

    /// The number as it stands on the chip. Empty when it does not fit.
    [[nodiscard]] QByteArray image() const;

    /// The same in a file for avrdude, which holds nothing else.
    [[nodiscard]] QByteArray intelHex() const;

    /// Gives the number to a board: the profile's file at @p path gets the next one, and nothing else in it changes.
    /// From then on no other board gets it. Returns false when the file has another number by now or cannot be written.
    [[nodiscard]] bool take(const QString& path) const { return replace(path, next, next + 1); }

    /// Takes it back from a board that has failed, unless a later one has been given.
    [[nodiscard]] bool giveBack(const QString& path) const { return replace(path, next + 1, next); }

private:
    static bool replace(const QString& path, qint64 from, qint64 to);
};
