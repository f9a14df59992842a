#include "memory/RawFile.h"

#include "app/record/SettingsRecord.h"
#include "mcu/description/BytesModel.h"
#include "memory/MemoryRequest.h"

#include <QCoreApplication>
#include <QFileInfo>

QString RawFile::fault(const SettingsRecord& settings, const MemoryRequest& request)
{
    if (request.operation == QLatin1String("r") || request.format != QLatin1String("r"))
        return {};
    const qint64 fileSize = QFileInfo(request.file).size();
    const qint64 memorySize = BytesModel::memorySize(settings, request.memory);
    if (memorySize <= 0 || fileSize <= memorySize)
        return {};
    return QCoreApplication::translate("RawFile", "The file has %1 bytes, the memory only %2.")
        .arg(fileSize)
        .arg(memorySize);
}
