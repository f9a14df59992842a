#include "memory/MemoryRequest.h"

QStringList MemoryRequest::arguments() const
{
    return {QStringLiteral("-U"), QStringLiteral("%1:%2:%3:%4").arg(memory, operation, file, format)};
}

MemoryRequest MemoryRequest::from(const QStringList& arguments)
{
    const QString text = arguments.value(1);
    const QLatin1Char colon(':'); // only the file may hold further ones
    return {text.section(colon, 0, 0), text.section(colon, 1, 1), text.section(colon, 2, -2), text.section(colon, -1)};
}
