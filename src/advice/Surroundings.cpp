#include "advice/Surroundings.h"

#include "settings/SerialPort.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#ifdef Q_OS_LINUX
namespace {

/// The content of a small file of the system's.
QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()).trimmed() : QString();
}

} // namespace
#endif

Surroundings Surroundings::now(const QString& port)
{
    Surroundings found;
#if defined(Q_OS_LINUX)
    found.system = System::Linux;
    const QDir devices(QStringLiteral("/sys/bus/usb/devices"));
    found.knowsUsb = devices.exists();
    const auto names = devices.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        const QString vendor = textOf(devices.filePath(name + QLatin1String("/idVendor")));
        const QString product = textOf(devices.filePath(name + QLatin1String("/idProduct")));
        if (!vendor.isEmpty() && !product.isEmpty())
            found.usbDevices += vendor + QLatin1Char(':') + product;
    }
#elif defined(Q_OS_WIN)
    found.system = System::Windows;
#endif
    const auto ports = systemSerialPorts();
    for (const SerialPort& serial : ports) {
        if (!serial.name.startsWith(QLatin1String("ttyS"))) // built in, and mostly without a plug
            found.serialPorts += serial.name;
    }
    found.searchPath = qEnvironmentVariable("PATH");
    // Nobody is to be told to join the group of whatever file a profile calls its port.
    static const QRegularExpression device(QStringLiteral("^/dev/(tty[A-Z]|cu[.aU]|rfcomm|parport|spidev|gpiochip)"));
    if (QFileInfo(port).canonicalFilePath().contains(device))
        found.portGroup = QFileInfo(port).group();
    return found;
}
