#include "memory/RawFile.h"

#include "app/record/SettingsRecord.h"
#include "mcu/description/BytesModel.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>

bool RawFile::fits(const SettingsRecord& settings, const QStringList& request, QWidget* parent)
{
    // "flash:w:C:/fw/app.bin:r": only the path may hold colons.
    const QString operation = request.value(1);
    const QString memory = operation.section(QLatin1Char(':'), 0, 0);
    const bool isRead = operation.section(QLatin1Char(':'), 1, 1) == QLatin1String("r");
    const bool isRaw = operation.section(QLatin1Char(':'), -1) == QLatin1String("r");
    if (isRead || !isRaw)
        return true;

    const qint64 fileSize = QFileInfo(operation.section(QLatin1Char(':'), 2, -2)).size();
    const qint64 memorySize = BytesModel::memorySize(settings, memory);
    if (memorySize <= 0 || fileSize <= memorySize)
        return true;
    QMessageBox::information(parent, memory.toUpper(),
                             QCoreApplication::translate("RawFile", "The file has %1 bytes, the memory only %2.")
                                 .arg(fileSize)
                                 .arg(memorySize));
    return false;
}
