#include "memory/MemoryRequest.h"

QStringList MemoryRequest::arguments() const
{
    return {QStringLiteral("-U"), QStringLiteral("%1:%2:%3:%4").arg(memory, operation, file, format)};
}

MemoryRequest MemoryRequest::from(const QStringList& arguments)
{
    constexpr int parts = 4; // with colons between them, of which only the file may hold further ones
    const QLatin1Char colon(':');
    const QString text = arguments.value(1);
    if (arguments.size() != 2 || arguments.first() != QLatin1String("-U") || text.count(colon) < parts - 1)
        return {};
    return {text.section(colon, 0, 0), text.section(colon, 1, 1), text.section(colon, 2, -2), text.section(colon, -1)};
}
