#pragma once

#include "app/record/FuseByte.h"

#include <QObject>

class QJsonObject;
struct SettingsRecord;

/// Loads the description of one microcontroller, with the datasheet's defaults of its fuse bytes, into the settings
/// record. Descriptions are the files of the folder "mcu" in the working directory, each named after what it describes.
/// Owned by the Fuses tab; the record outlives it.
class BytesModel : public QObject
{
    Q_OBJECT

public:
    explicit BytesModel(SettingsRecord& settings, QObject* parent = nullptr);

    /// The folder of the descriptions.
    [[nodiscard]] static QString folder();

    /// The description of the microcontroller in @p settings. Empty when it cannot be read, or is another part's than
    /// the one that avrdude is told.
    [[nodiscard]] static QJsonObject description(const SettingsRecord& settings);

    /// The fuse bytes of @p description, all at the datasheet's defaults.
    [[nodiscard]] static FuseBytes fuseBytes(const QJsonObject& description);

    /// Size in bytes of the memory that descriptions call @p memory ("flash", "eeprom"), of the microcontroller in
    /// @p settings. 0 or less when it is not known: there is no description, or no such key in it.
    [[nodiscard]] static qint64 memorySize(const SettingsRecord& settings, const QString& memory);

    /// Loads the microcontroller called @p name and replaces the record's name, identifier, signature and fuse bytes.
    /// A file that is missing or no JSON is told in a box and leaves the record as it was. Returns 0.
    int load(const QString& name);

private:
    SettingsRecord& m_settings;
};
