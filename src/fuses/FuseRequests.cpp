#include "fuses/FuseRequests.h"

#include "app/record/Identifier.h"
#include "base/ShownText.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int longestName = 40; // characters

/// @p operation is "w" or "v". The value goes out as "0x3f": no leading zeros.
QString valueRequest(const FuseByte& byte, QLatin1String operation)
{
    return QStringLiteral("-U%1:%2:0x%3:m").arg(byte.id, operation, QString::number(byte.currentValue, 16));
}

/// Empty when no request is made for @p byte.
QString fileName(const FuseByte& byte)
{
    return isIdentifier(byte.id) ? byte.id + QLatin1String(".hex") : QString();
}

} // namespace

FuseBytes FuseRequests::sent(FuseBytes bytes)
{
    bytes.erase(std::remove_if(bytes.begin(), bytes.end(), [](const FuseByte& byte) { return !isIdentifier(byte.id); }),
                bytes.end());
    return bytes;
}

QString FuseRequests::leftOut(const FuseBytes& bytes)
{
    QStringList names;
    for (const FuseByte& byte : bytes) {
        if (!isIdentifier(byte.id))
            names += shownText(byte.name, longestName) + QLatin1String(" ( ") + shownText(byte.id, longestName)
                + QLatin1String(" )");
    }
    return names.isEmpty() ? QString()
                           : QCoreApplication::translate("FuseRequests", "Not sent, as no fuse byte is called so: %1")
                                 .arg(names.join(QLatin1String(", ")));
}

QStringList FuseRequests::write(const FuseBytes& bytes)
{
    QStringList requests;
    QString lock;
    for (const FuseByte& byte : sent(bytes)) {
        const QString request = valueRequest(byte, QLatin1String("w"));
        if (byte.id.startsWith(QLatin1String("lock")))
            lock += request;
        else
            requests += request;
    }
    requests += lock; // even when it is empty; avrdude passes over it
    return requests;
}

QStringList FuseRequests::verify(const FuseBytes& bytes)
{
    QStringList requests;
    for (const FuseByte& byte : sent(bytes))
        requests += valueRequest(byte, QLatin1String("v"));
    return requests;
}

QStringList FuseRequests::read(const FuseBytes& bytes)
{
    QStringList requests;
    for (const FuseByte& byte : sent(bytes))
        requests += QStringLiteral("-U%1:r:%2:r").arg(byte.id, fileName(byte));
    return requests;
}

QStringList FuseRequests::files(const FuseBytes& bytes)
{
    QStringList names;
    for (const FuseByte& byte : bytes)
        names += fileName(byte);
    return names;
}

QString FuseRequests::remark(const FuseBytes& bytes)
{
    return bytes.isEmpty() ? QCoreApplication::translate("FuseRequests", "There is no fuse byte here: none was sent.")
                           : leftOut(bytes);
}
