#include "memory/FileCheck.h"

#include "app/record/SettingsRecord.h"
#include "base/Box.h"
#include "mcu/description/BytesModel.h"
#include "memory/FirmwareFile.h"
#include "memory/MemoryRequest.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QString say(const char* sentence)
{
    return QCoreApplication::translate("FileCheck", sentence);
}

/// Whether avrdude gets the option @p letter, which takes no value, alone or among others in one argument.
bool hasOption(const SettingsRecord& settings, char letter)
{
    const QRegularExpression option(QStringLiteral("(^| )-[?ADFOVenqrstuvy]*%1").arg(QLatin1Char(letter)));
    return settings.arguments.contains(option);
}

/// Whether avrdude erases the chip before it reads the file of @p request, for the sake of that file.
bool erasesFirst(const SettingsRecord& settings, const MemoryRequest& request)
{
    if (request.memory != QLatin1String("flash") || request.operation != QLatin1String("w") || hasOption(settings, 'n'))
        return false;
    // Of an ATxmega, whose identifiers all begin so, avrdude by itself erases no more than the pages that it writes.
    const bool isXmega = settings.mcuId.startsWith(QLatin1Char('x'));
    return hasOption(settings, 'e') || !(isXmega || hasOption(settings, 'D'));
}

} // namespace

bool FileCheck::passes(QWidget* parent, const SettingsRecord& settings, const MemoryRequest& request)
{
    if (request.operation == QLatin1String("r"))
        return true;
    const qint64 memorySize = BytesModel::memorySize(settings, request.memory);
    const QString title = request.memory.toUpper();
    const qint64 fileSize = QFileInfo(request.file).size();
    if (request.format == QLatin1String("r") && memorySize > 0 && fileSize > memorySize) {
        const char* tooLarge = QT_TRANSLATE_NOOP("FileCheck", "The file has %1 bytes, the memory only %2.");
        Box::tell(parent, title, say(tooLarge).arg(fileSize).arg(memorySize));
        return false;
    }
    if (!erasesFirst(settings, request))
        return true;
    const QString fault = FirmwareFile::read(request.file, request.format, request.memory, memorySize).fault;
    return fault.isEmpty()
        || Box::ask(parent, title, fault,
                    say(QT_TRANSLATE_NOOP(
                        "FileCheck", "The chip would be erased for nothing.\nDo you want to go on all the same?")));
}
