#include "memory/FileCheck.h"

#include "app/record/SettingsRecord.h"
#include "avrdude/ExtraArguments.h"
#include "base/Box.h"
#include "base/ShownText.h"
#include "mcu/description/BytesModel.h"
#include "memory/FirmwareFile.h"
#include "memory/MemoryRequest.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int longestShown = 300; // characters of a path, in a box

QString say(const char* sentence)
{
    return QCoreApplication::translate("FileCheck", sentence);
}

/// Whether avrdude erases the chip before it reads the file of @p request, for the sake of that file.
bool erasesFirst(const SettingsRecord& settings, const MemoryRequest& request)
{
    const ExtraArguments arguments(settings.arguments);
    if (request.memory != QLatin1String("flash") || request.operation != QLatin1String("w") || arguments.has('n'))
        return false;
    // Of an ATxmega, whose identifiers all begin so, avrdude by itself erases no more than the pages that it writes.
    const bool isXmega = settings.mcuId.startsWith(QLatin1Char('x'));
    return arguments.has('e') || !(isXmega || arguments.has('D'));
}

/// Whether avrdude takes @p path for that of a file, and for the one that is shown. Blanks, colons and a minus sign at
/// its beginning are no harm: it comes in one argument with what stands before and behind it.
bool staysPath(const QString& path)
{
    // "-" is what avrdude reads from and prints to; of "urboot:" and more 8.x makes a boot loader.
    return path != QLatin1String("-") && !path.startsWith(QLatin1String("urboot:")) && !hasHidden(path)
        && QFile::decodeName(QFile::encodeName(path)) == path;
}

} // namespace

bool FileCheck::passes(QWidget* parent, const SettingsRecord& settings, const MemoryRequest& request)
{
    const QString title = request.memory.toUpper();
    if (!staysPath(request.file)) {
        Box::tell(parent, title,
                  say(QT_TRANSLATE_NOOP("FileCheck", "avrdude would not take this for the path of a file:")),
                  shownText(request.file, longestShown));
        return false;
    }
    if (request.operation == QLatin1String("r"))
        return true;
    const qint64 memorySize = BytesModel::memorySize(settings, request.memory);
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
