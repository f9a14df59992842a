#include "memory/MemoryKind.h"

#include <QFileInfo>
#include <QHash>

const MemoryKind MemoryKind::flash {
    "flash",
    "FLASH",
    QT_TRANSLATE_NOOP("Memory", "FLASH written successfully."),
    QT_TRANSLATE_NOOP("Memory", "FLASH verified successfully."),
    QT_TRANSLATE_NOOP("Memory", "FLASH read successfully."),
    &SettingsRecord::flashWrite,
    &SettingsRecord::flashRead,
    &SettingsRecord::cmdFlashWrite,
    &SettingsRecord::flashEnable,
    true,
};

const MemoryKind MemoryKind::eeprom {
    "eeprom",
    "EEPROM",
    QT_TRANSLATE_NOOP("Memory", "EEPROM written successfully."),
    QT_TRANSLATE_NOOP("Memory", "EEPROM verified successfully."),
    QT_TRANSLATE_NOOP("Memory", "EEPROM read successfully."),
    &SettingsRecord::eepromWrite,
    &SettingsRecord::eepromRead,
    &SettingsRecord::cmdEepromWrite,
    &SettingsRecord::eepromEnable,
    false,
};

QString MemoryKind::formatOf(const QString& suffix) const
{
    // Those of Intel hex, raw and ELF files are avrdude's own. "m" for S-records is not (there it is a value on the
    // command line, and S-records are "s"), so that avrdude refuses them. Deliberate: the guide tells the way out.
    static const QHash<QString, QString> formats {
        {QStringLiteral("hex"), QStringLiteral("i")},  {QStringLiteral("eep"), QStringLiteral("i")},
        {QStringLiteral("bin"), QStringLiteral("r")},  {QStringLiteral("s19"), QStringLiteral("m")},
        {QStringLiteral("srec"), QStringLiteral("m")}, {QStringLiteral("elf"), QStringLiteral("e")},
    };
    // Deliberate: no code of avrdude's own, but passed on unchanged, for the flash only.
    if (passesA90 && suffix == QLatin1String("a90"))
        return suffix;
    return formats.value(suffix, QStringLiteral("a"));
}

MemoryRequest MemoryKind::request(const char* operation, const QString& path) const
{
    return {QLatin1String(memory), QLatin1String(operation), path, formatOf(QFileInfo(path).suffix().toLower())};
}

std::optional<QStringList> MemoryKind::commandFor(const SettingsRecord& settings) const
{
    const QStringList& prepared = settings.*writeCommand;
    const QString& file = settings.*writeFile;
    const MemoryRequest request = MemoryRequest::from(prepared);
    const MemoryRequest fromFile = this->request("w", file);
    // A format of one letter is avrdude's, whichever: a longer one would be taken for a part of the path.
    const bool writesFile = request.memory == fromFile.memory && request.operation == fromFile.operation
        && !request.file.isEmpty() && (file.isEmpty() || request.file == file)
        && (request.format.size() == 1 || request.format == formatOf(request.format));
    if (writesFile || (prepared.isEmpty() && file.isEmpty()))
        return prepared;
    return file.isEmpty() ? std::nullopt : std::optional(fromFile.arguments());
}
