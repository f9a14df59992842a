#include "advice/Advice.h"

#include "advice/Aftermath.h"
#include "advice/Surroundings.h"
#include "mcu/description/BytesModel.h"
#include "mcu/description/SignatureIndex.h"
#include "settings/SettingsModel.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QVariant>

#include <algorithm>
#include <iterator>

namespace {

QString say(const char* sentence)
{
    return QCoreApplication::translate("Advice", sentence);
}

QString join(const QStringList& names)
{
    return names.join(QLatin1String(", "));
}

/// A failed run with all that is known around it.
struct Case {
    const FailedRun& run;
    const Surroundings& around;
    QJsonObject part; ///< its description; empty when there is none
    ProgrammerEntry programmer; ///< of the catalogue; empty when it is another's

    [[nodiscard]] QStringList partInterfaces() const
    {
        return QVariant(part.value(QLatin1String("interfaces")).toArray().toVariantList()).toStringList();
    }
    [[nodiscard]] bool isBootLoader() const { return programmer.interfaces.value(0) == QLatin1String("bootloader"); }
};

bool fits(const QStringList& some, const QStringList& others)
{
    return std::any_of(some.begin(), some.end(), [&others](const QString& one) { return others.contains(one); });
}

QStringList usbPermission(const Case& of)
{
    QStringList lines {say(QT_TRANSLATE_NOOP("Advice", "Your account may not use the programmer."))};
    if (of.around.system != Surroundings::System::Linux || of.programmer.usb.isEmpty())
        return lines;
    const QStringList numbers = of.programmer.usb.constFirst().split(QLatin1Char(':'));
    lines += say(QT_TRANSLATE_NOOP("Advice", "Write this line into %1 and plug the programmer in again:"))
                 .arg(QStringLiteral("/etc/udev/rules.d/60-korvel.rules"));
    lines += QStringLiteral("SUBSYSTEM==\"usb\", ATTR{idVendor}==\"%1\", ATTR{idProduct}==\"%2\", TAG+=\"uaccess\"")
                 .arg(numbers.value(0), numbers.value(1));
    return lines;
}

QStringList portPermission(const Case& of)
{
    QStringList lines {
        say(QT_TRANSLATE_NOOP("Advice", "Your account may not use the port %1.")).arg(of.run.settings.port)};
    if (!of.around.portGroup.isEmpty())
        lines += say(QT_TRANSLATE_NOOP("Advice", "In a terminal: %1. Then log out and in again."))
                     .arg(QStringLiteral("sudo adduser $USER ") + of.around.portGroup);
    return lines;
}

QStringList usbMissing(const Case& of)
{
    QStringList lines {
        say(QT_TRANSLATE_NOOP("Advice", "Is the programmer plugged in? Try another cable, and another socket."))};
    if (of.around.system == Surroundings::System::Windows)
        lines += say(QT_TRANSLATE_NOOP("Advice", "On Windows it needs its driver: the guide tells which."));
    if (!of.around.knowsUsb)
        return lines;
    QStringList present;
    for (const QString& name : SettingsModel().programmerList()) {
        if (fits(SettingsModel::programmerEntry(name).usb, of.around.usbDevices))
            present += name;
    }
    present.sort();
    constexpr int some = 4;
    lines += present.isEmpty()
        ? say(QT_TRANSLATE_NOOP("Advice", "Nothing is plugged in that the list has."))
        : say(QT_TRANSLATE_NOOP("Advice", "What is plugged in may be: %1.")).arg(join(present.mid(0, some)));
    return lines;
}

QString presentPorts(const Case& of)
{
    return of.around.serialPorts.isEmpty()
        ? say(QT_TRANSLATE_NOOP("Advice", "There is no serial port now."))
        : say(QT_TRANSLATE_NOOP("Advice", "Ports that are there now: %1.")).arg(join(of.around.serialPorts));
}

QStringList portMissing(const Case& of)
{
    return {say(QT_TRANSLATE_NOOP("Advice", "There is no port %1.")).arg(of.run.settings.port), presentPorts(of)};
}

QStringList portBusy(const Case& of)
{
    return {say(QT_TRANSLATE_NOOP("Advice", "Another program uses the port %1: close it, such as a serial monitor."))
                .arg(of.run.settings.port)};
}

QStringList portRefused(const Case&)
{
    return {say(QT_TRANSLATE_NOOP("Advice", "Nothing listens there: is it started, and is that the right address?"))};
}

QStringList noAnswer(const Case& of)
{
    if (of.isBootLoader())
        return {say(QT_TRANSLATE_NOOP("Advice", "Press the board's reset button just before.")),
                say(QT_TRANSLATE_NOOP("Advice",
                                      "Try the other entry for the board in the list: boot loaders differ in speed."))};
    return {say(QT_TRANSLATE_NOOP("Advice", "Is %1 the right port, and the programmer of the kind that is chosen?"))
                .arg(of.run.settings.port),
            presentPorts(of)};
}

QStringList noChip(const Case&)
{
    return {
        say(QT_TRANSLATE_NOOP("Advice", "Is the plug the right way round, and does the chip have power?")),
        say(QT_TRANSLATE_NOOP("Advice", "The speed has to be below a quarter of the chip's clock: try a lower one.")),
        say(QT_TRANSLATE_NOOP("Advice",
                              "Its fuses may ask for a clock that is not there, or use the reset pin as an "
                              "ordinary one."))};
}

QStringList mismatch(const Case&)
{
    return {say(QT_TRANSLATE_NOOP("Advice", "After Write: check contacts and supply, and try a lower speed.")),
            say(QT_TRANSLATE_NOOP("Advice", "A chip whose lock bits are set does not show what it holds."))};
}

QStringList fuseWithBootLoader(const Case&)
{
    return {say(QT_TRANSLATE_NOOP("Advice", "A boot loader cannot write fuse and lock bytes. A programmer can."))};
}

QStringList lockedChip(const Case&)
{
    return {say(QT_TRANSLATE_NOOP("Advice", "The chip is locked: Erase all frees it, and takes what it holds."))};
}

QString unknownTo(const QString& name, const QString& version)
{
    const char* known =
        QT_TRANSLATE_NOOP("Advice", "%1 needs avrdude %2 or newer; the one that is installed does not know it.");
    const char* other = QT_TRANSLATE_NOOP("Advice", "The avrdude that is installed does not know %1.");
    return version.isEmpty() ? say(other).arg(name) : say(known).arg(name, version);
}

QStringList unknownPart(const Case& of)
{
    return {unknownTo(of.run.settings.mcuName, of.part.value(QLatin1String("avrdude")).toString())};
}

QStringList unknownProgrammer(const Case& of)
{
    return {unknownTo(of.run.settings.programmer.name, of.programmer.avrdude)};
}

/// From what avrdude prints to what to do. The first row that matches wins; more special ones come first.
struct Row {
    const char* seen; ///< pattern; a letter's case does not count
    QStringList (*advice)(const Case& of);
};

constexpr Row rows[] = {
    {"(can'?t|cannot|could not|unable to) open (port|device) \"?(/dev/|COM).*(permission denied|not permitted)",
     portPermission},
    {"permission denied|access denied|insufficient permission|error_access|not permitted", usbPermission},
    {"(resource busy|access is denied|in use)", portBusy},
    {"connection refused|connect failed", portRefused},
    {"(can'?t|cannot|could not|unable to) open (port|device) \"?\\S+\"?: (no such|the system cannot find)",
     portMissing},
    {"not find usb|no matching usb device|did not find any|no device found|cannot open ftdi|usb device .*not found|"
     "avrftdi_open|not find usbtiny",
     usbMissing},
    {"part \"?\\S+\"? not found|valid parts are", unknownPart},
    {"find programmer id", unknownProgrammer},
    {"not in sync|not responding|failed to synchronize|getsync\\(\\)|timeout", noAnswer},
    {"device is locked", lockedChip},
    {"mismatch|verification error", mismatch},
    {"initialization failed|no device$|target does(n't| not) answer|target doesn|invalid device signature|"
     "signature = (0x|)(ff ?ff ?ff|00 ?00 ?00)",
     noChip},
};

/// The three bytes that avrdude has read, "1E 94 03"; empty when it has read none that a chip can have.
QString signatureIn(const QString& output)
{
    static const QRegularExpression read(
        QStringLiteral("signature = (?:0x)?([0-9a-f]{2}) ?([0-9a-f]{2}) ?([0-9a-f]{2})"),
        QRegularExpression::CaseInsensitiveOption);
    const QStringList bytes = read.match(output).capturedTexts().mid(1);
    const QString signature = bytes.join(QLatin1Char(' ')).toUpper();
    const bool isNone = signature == QLatin1String("FF FF FF") || signature == QLatin1String("00 00 00");
    return isNone ? QString() : signature;
}

/// Another chip than the one that was chosen.
Explanation otherChip(const QString& signature)
{
    const QStringList names = SignatureIndex::namesOf(signature);
    if (names.isEmpty())
        return {{say(QT_TRANSLATE_NOOP("Advice", "The chip has the signature %1, which nothing in the list has."))
                     .arg(signature)},
                {}};
    constexpr int buttons = 3;
    return {{say(QT_TRANSLATE_NOOP("Advice", "The chip says that it is: %1.")).arg(join(names))},
            names.size() > buttons ? QStringList() : names};
}

/// A part that is programmed in another way than the programmer does.
QStringList wrongInterface(const Case& of)
{
    const QStringList needed = of.partInterfaces();
    const QStringList spoken = of.programmer.interfaces;
    if (needed.isEmpty() || spoken.isEmpty() || of.isBootLoader() || fits(needed, spoken))
        return {};
    QStringList fitting;
    for (const QString& name : SettingsModel().programmerList()) {
        if (fits(SettingsModel::programmerEntry(name).interfaces, needed))
            fitting += name;
    }
    fitting.sort();
    constexpr int some = 4;
    return {
        say(QT_TRANSLATE_NOOP("Advice", "%1 is programmed by %2, and this programmer speaks %3."))
            .arg(of.run.settings.mcuName, join(needed), join(spoken)),
        say(QT_TRANSLATE_NOOP("Advice", "Of the list there fit, among others: %1.")).arg(join(fitting.mid(0, some)))};
}

/// The first line in which avrdude tells of an error.
QString firstError(const QString& output)
{
    static const QRegularExpression error(
        QStringLiteral("^.*(error|can't|cannot|could not|failed|invalid|unknown|not found).*$"),
        QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
    return error.match(output).captured().trimmed();
}

QStringList notStarted(const Case& of)
{
    QStringList lines;
    if (of.around.system == Surroundings::System::Linux)
        lines += say(QT_TRANSLATE_NOOP("Advice", "avrdude is in the system's packages: %1"))
                     .arg(QStringLiteral("sudo apt install avrdude"));
    lines += say(QT_TRANSLATE_NOOP("Advice",
                                   "Korvel looks for %1. Another program, or a whole path, may stand in save.json, as "
                                   "\"avrdude\"."))
                 .arg(of.run.settings.avrdude);
    lines += say(QT_TRANSLATE_NOOP("Advice", "Then start Korvel again."));
    return lines;
}

Explanation adviceFor(const Case& of)
{
    const QString& output = of.run.output;
    const QString signature = signatureIn(output);
    if (output.contains(QLatin1String("xpected signature for")) && !signature.isEmpty())
        return otherChip(signature);
    const bool isFuses = of.run.arguments.join(QLatin1Char(' '))
                             .contains(QRegularExpression(QStringLiteral("-U ?\\w*(fuse|lock)\\w*:w")));
    if (isFuses && of.isBootLoader() && !signature.isEmpty())
        return {fuseWithBootLoader(of), {}};
    const auto* const row = std::find_if(std::begin(rows), std::end(rows), [&output](const Row& candidate) {
        return output.contains(
            QRegularExpression(QLatin1String(candidate.seen),
                               QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption));
    });
    const bool isReached = row == std::end(rows) || row->advice == noChip; // the programmer, but not the chip
    const QStringList other = isReached ? wrongInterface(of) : QStringList();
    if (!other.isEmpty())
        return {other, {}};
    if (row != std::end(rows))
        return {row->advice(of), {}};
    const QString line = firstError(output);
    return {line.isEmpty() ? QStringList() : QStringList {QLatin1Char('"') + line + QLatin1Char('"')}, {}};
}

} // namespace

Explanation Advice::explain(const FailedRun& run, const Surroundings& surroundings)
{
    ProgrammerEntry programmer = SettingsModel::programmerEntry(run.settings.programmer.name);
    if (programmer.id != run.settings.programmer.id)
        programmer = {};
    const Case of {run, surroundings, BytesModel::description(run.settings), programmer};
    if (!run.isStarted)
        return {notStarted(of), {}};
    Explanation explanation = run.isStopped ? Explanation() : adviceFor(of);
    const QString operation = run.isStopped ? QString() : Aftermath::operation(run);
    QStringList lines = QStringList {operation, Aftermath::chip(run)}.filter(QRegularExpression(QStringLiteral(".")));
    if (!lines.isEmpty() && !explanation.lines.isEmpty())
        lines += QString();
    explanation.lines = lines + explanation.lines;
    return explanation;
}
