#pragma once

#include "app/record/FuseByte.h"
#include "base/ProductInfo.h"

#include <QString>
#include <QStringList>

/// Every choice of the user that outlives a run: what the panels show, what avrdude is started with, what profiles
/// keep. One instance lives inside the Avrdude runner; panels change it in place.
struct SettingsRecord {
    struct Programmer {
        QString name = QStringLiteral("USBasp");
        QString id = QStringLiteral("usbasp"); ///< avrdude's "-c"
    };

    struct Profile {
        QString name;
    };

    QString avrdude = QStringLiteral("avrdude"); ///< program to start: a name looked up by the system, or a path
    QString mcuName = QStringLiteral("ATmega16");
    QString mcuId = QStringLiteral("m16"); ///< avrdude's "-p"
    QString signature;
    QString callByte; ///< calibration byte as text
    QString language = ProductInfo::defaultLanguage;
    QString flashWrite; ///< file paths are relative to the application's folder when they lie below it
    QString flashRead;
    QString eepromWrite;
    QString eepromRead;
    QStringList cmdFlashWrite; ///< ready argument lists, also used when a profile is written
    QStringList cmdEepromWrite;
    QStringList cmdFuses;
    Programmer programmer;
    QString port = QStringLiteral("usb"); ///< avrdude's "-P"
    QString speed = QStringLiteral("-B 4"); ///< an option, or a text with the option in parentheses
    FuseBytes fusesBytes;
    QString arguments; ///< further avrdude arguments, separated by blanks
    QStringList fileNamesReading; ///< files that the last reading of the fuses asked for
    bool flashCheck = false; ///< ticked: a profile writes this area
    bool eepromCheck = false;
    bool fusesCheck = false;
    bool flashEnable = false; ///< the area has something to write
    bool eepromEnable = false;
    bool fusesEnable = false;
    Profile profile;
    QString description; ///< of the profile
    QStringList configurationList; ///< further profile names to offer
    QString currentlyProfilesList; ///< the profile chosen last

    /// Whether to ask for a newer version. Of the settings file alone: no profile carries it.
    bool updateCheck = true;

    /// Not a choice, and not stored: grows whenever a microcontroller or a file is loaded into the record, so that who
    /// waits for something from the chip can see whether it still belongs to what the record holds.
    int generation = 0;

    /// Not stored either: the port is still that of the programmer before, as there was none to choose for this one.
    bool hasFormerPort = false;

    /// What a file of the record is for: one person's settings, or a profile that goes from bench to bench.
    enum class File { Settings, Profile };

    /// Writes the whole record to @p path. The file is replaced at once or not at all. What a profile's file has beside
    /// the record stays.
    /// Returns false, with the old file untouched, when it cannot be written.
    [[nodiscard]] bool saveToFile(const QString& path, File file = File::Settings) const;

    /// Overwrites the whole record from @p path; a key that is missing or of the wrong type gives the field its
    /// fallback. Returns false, with the record unchanged, when the file cannot be read or holds no JSON object.
    [[nodiscard]] bool loadFromFile(const QString& path, File file = File::Settings);
};
