#include "advice/Advice.h"

#include "advice/Aftermath.h"
#include "advice/Surroundings.h"
#include "avrdude/ExtraArguments.h"
#include "avrdude/FailedRun.h"
#include "avrdude/Message.h"
#include "base/JsonFile.h"
#include "base/ShownText.h"
#include "mcu/description/BytesModel.h"
#include "mcu/description/SignatureIndex.h"
#include "settings/SettingsModel.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

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

/// A name from a profile or a description, which must not read like advice of ours.
QString nameFrom(const QString& name)
{
    constexpr int longest = 60; // characters
    return shownText(name, longest).remove(QLatin1Char('\n'));
}

/// A failed run with all that is known around it.
struct Case {
    const FailedRun& run;
    const Surroundings& around;
    QJsonObject part; ///< its description; empty when there is none
    ProgrammerEntry programmer; ///< of the catalogue; empty when it is another's

    [[nodiscard]] QStringList partInterfaces() const { return jsonTexts(part.value(QLatin1String("interfaces"))); }
    [[nodiscard]] bool isBootLoader() const { return programmer.interfaces.value(0) == QLatin1String("bootloader"); }
};

bool fits(const QStringList& some, const QStringList& others)
{
    return std::any_of(some.begin(), some.end(), [&others](const QString& one) { return others.contains(one); });
}

/// The programmers of the catalogue whose entry is @p meant, by name.
template <class Meant> QStringList programmersWhere(Meant meant)
{
    QStringList names;
    const auto all = SettingsModel().programmerList();
    for (const QString& name : all) {
        if (meant(name, SettingsModel::programmerEntry(name)))
            names += name;
    }
    names.sort();
    return names;
}

/// The first of those of which @p list has one of @p wanted.
QString programmersWith(QStringList ProgrammerEntry::*list, const QStringList& wanted)
{
    constexpr int some = 4;
    return join(programmersWhere([&](const QString&, const ProgrammerEntry& entry) {
                    return fits(entry.*list, wanted);
                }).mid(0, some));
}

/// The first line in which avrdude tells of an error, else of a trouble, in quotation marks.
QStringList quote(const Case& of)
{
    for (const char* seen :
         {"^(?!.*warning).*error.*$", "^.*(can't|cannot|could not|failed|invalid|unknown|not found).*$"}) {
        const QRegularExpression line(QLatin1String(seen),
                                      QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
        const QString found = line.match(of.run.output).captured().trimmed();
        if (!found.isEmpty())
            return {QLatin1Char('"') + found + QLatin1Char('"')};
    }
    return {};
}

bool isUsb(const Case& of)
{
    return Advice::portOf(of.run).startsWith(QLatin1String("usb"));
}

QStringList heldProgrammer()
{
    return {say(QT_TRANSLATE_NOOP(
        "Advice", "Unplug the programmer and plug it in again, and close other programs that may use it."))};
}

QStringList usbPermission(const Case& of)
{
    QStringList lines {say(QT_TRANSLATE_NOOP("Advice", "Your account may not use the programmer."))};
    if (of.around.system != Surroundings::System::Linux || of.programmer.usb.isEmpty())
        return lines;
    QString device = of.programmer.usb.constFirst();
    for (const QString& present : of.around.usbDevices) {
        if (of.programmer.usb.contains(present))
            device = present;
    }
    lines += say(QT_TRANSLATE_NOOP("Advice", "Write this line into %1 and plug the programmer in again:"))
                 .arg(QStringLiteral("/etc/udev/rules.d/60-korvel.rules"));
    lines += QStringLiteral("SUBSYSTEM==\"usb\", ATTR{idVendor}==\"%1\", ATTR{idProduct}==\"%2\", TAG+=\"uaccess\"")
                 .arg(device.section(QLatin1Char(':'), 0, 0), device.section(QLatin1Char(':'), 1));
    return lines;
}

QStringList portPermission(const Case& of)
{
    QStringList lines {
        say(QT_TRANSLATE_NOOP("Advice", "Your account may not use the port %1.")).arg(Advice::portOf(of.run))};
    if (!of.around.portGroup.isEmpty() && of.around.portGroup != QLatin1String("root"))
        lines += say(QT_TRANSLATE_NOOP("Advice", "In a terminal: %1. Then log out and in again."))
                     .arg(QStringLiteral("sudo usermod -aG %1 $USER").arg(of.around.portGroup));
    return lines;
}

QStringList usbMissing(const Case& of)
{
    if (fits(of.programmer.usb, of.around.usbDevices))
        return usbPermission(of); // it is there
    QStringList lines {
        say(QT_TRANSLATE_NOOP("Advice", "Is the programmer plugged in? Try another cable, and another socket."))};
    if (of.around.system == Surroundings::System::Windows)
        lines += say(QT_TRANSLATE_NOOP("Advice", "On Windows it needs its driver: the guide tells which."));
    if (!of.around.knowsUsb)
        return lines;
    const QString present = programmersWith(&ProgrammerEntry::usb, of.around.usbDevices);
    lines += present.isEmpty() ? say(QT_TRANSLATE_NOOP("Advice", "Nothing is plugged in that the list has."))
                               : say(QT_TRANSLATE_NOOP("Advice", "What is plugged in may be: %1.")).arg(present);
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
    return {say(QT_TRANSLATE_NOOP("Advice", "There is no port %1.")).arg(Advice::portOf(of.run)), presentPorts(of)};
}

QStringList portFailed(const Case& of)
{
    return quote(of) + QStringList {presentPorts(of)}; // the system's own words may be in any language
}

QStringList portBusy(const Case& of)
{
    if (isUsb(of))
        return heldProgrammer();
    return {say(QT_TRANSLATE_NOOP("Advice", "Another program uses the port %1: close it, such as a serial monitor."))
                .arg(Advice::portOf(of.run))};
}

QStringList portRefused(const Case& of)
{
    return {say(QT_TRANSLATE_NOOP("Advice", "Nothing listens at %1: is it started, and is that the right address?"))
                .arg(Advice::portOf(of.run))};
}

/// The other entries of the catalogue that speak the same language.
QStringList entriesLike(const Case& of)
{
    return programmersWhere([&of](const QString& name, const ProgrammerEntry& entry) {
        return entry.id == of.programmer.id && name != of.run.settings.programmer.name;
    });
}

/// What is appended to a sentence that it makes concrete.
QString inBrackets(const QString& text)
{
    return text.isEmpty() ? text : QStringLiteral(" (%1)").arg(text);
}

QStringList noAnswer(const Case& of)
{
    if (of.isBootLoader())
        return {say(QT_TRANSLATE_NOOP("Advice", "Press the board's reset button just before.")),
                say(QT_TRANSLATE_NOOP("Advice",
                                      "Try the other entry for the board in the list: boot loaders differ in speed."))
                    + inBrackets(join(entriesLike(of)))};
    const bool hasAnswered = of.run.output.contains(QLatin1String("ready to accept instructions"));
    if (isUsb(of) || hasAnswered)
        return heldProgrammer();
    return {say(QT_TRANSLATE_NOOP("Advice", "Is %1 the right port, and the programmer of the kind that is chosen?"))
                .arg(Advice::portOf(of.run)),
            presentPorts(of)};
}

QString tooFast(const Case& of)
{
    if (fits(of.partInterfaces(), {QStringLiteral("PDI"), QStringLiteral("TPI")}))
        return {}; // these bring the clock along
    const QString& slowest = of.programmer.slowestChip;
    if (!slowest.isEmpty())
        return say(QT_TRANSLATE_NOOP("Advice",
                                     "The speed of this programmer is fixed: the chip's clock has to be above %1, and "
                                     "a new chip's is mostly 1 MHz."))
            .arg(nameFrom(slowest));
    const QString& speed = of.run.settings.speed;
    if (speed == SettingsModel().speedList().constLast())
        return {}; // there is none below
    return say(QT_TRANSLATE_NOOP("Advice",
                                 "The speed has to be below a quarter of the chip's clock: try one below %1."))
        .arg((speed.isEmpty() ? SettingsRecord().speed : speed).section(QStringLiteral(" ("), 0, 0));
}

/// A chip with UPDI, which needs no clock, but its pin and an open lock.
QStringList noUpdiChip(const Case& of)
{
    QStringList lines {
        say(QT_TRANSLATE_NOOP("Advice", "Is the plug the right way round, and does the chip have power?")),
        say(QT_TRANSLATE_NOOP("Advice",
                              "Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI "
                              "brings it back."))};
    if (of.programmer.id == QLatin1String("jtag2updi") || of.programmer.id == QLatin1String("nanoevery"))
        lines += say(QT_TRANSLATE_NOOP("Advice",
                                       "It may be locked: with this programmer no avrdude frees it, with SerialUPDI or "
                                       "Atmel-ICE Erase all does."));
    return lines;
}

/// What the fuses of the part can have done to it. All of it where its description does not say what its bits are for.
QStringList fusesBehind(const Case& of)
{
    const QJsonArray bytes = of.part.value(QLatin1String("FuseBytes")).toArray();
    QStringList fields;
    for (const QJsonValue& byte : bytes) {
        const QJsonObject listed = byte[QLatin1String("fields")].toObject();
        for (const QJsonValue& field : listed)
            fields += field.toString();
    }
    const bool isKnown = !fields.isEmpty() || (!of.part.isEmpty() && bytes.isEmpty());
    const auto has = [&](const char* field) {
        return !isKnown || !fields.filter(QRegularExpression(QLatin1String(field))).isEmpty();
    };
    QStringList lines;
    if (has("^((sut_)?cksel|rcen)\\b"))
        lines += say(QT_TRANSLATE_NOOP(
            "Advice", "Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin."));
    if (has("^(rstdisbl|dwen)\\b"))
        lines += say(QT_TRANSLATE_NOOP("Advice",
                                       "Its fuses may use the reset pin for something else: a high-voltage programmer "
                                       "brings it back."));
    return lines;
}

QStringList noChip(const Case& of)
{
    if (of.partInterfaces().contains(QLatin1String("UPDI")))
        return noUpdiChip(of);
    QStringList lines {
        say(QT_TRANSLATE_NOOP("Advice", "Is the plug the right way round, and does the chip have power?")),
        tooFast(of)};
    lines.removeAll({});
    return lines + fusesBehind(of);
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
    return {unknownTo(nameFrom(of.run.settings.mcuName), nameFrom(of.part.value(QLatin1String("avrdude")).toString()))};
}

QStringList unknownProgrammer(const Case& of)
{
    return {unknownTo(nameFrom(of.run.settings.programmer.name), nameFrom(of.programmer.avrdude))};
}

/// From what avrdude prints to what to do. The first row that matches wins; more special ones come first.
struct Row {
    const char* seen; ///< pattern; a letter's case does not count
    QStringList (*advice)(const Case& of);
};

constexpr Row rows[] = {
    {"is not (readable|writeable)|open (input|output) file", quote},
    {"(/dev/\\S+?|COM\\d+)\"?: (permission denied|operation not permitted)", portPermission},
    {"permission denied|access denied|insufficient permission|inappropriate permission|error_access|not permitted",
     usbPermission},
    {"resource busy|access is denied|driver is not in use", portBusy},
    {"connection refused|connect failed", portRefused},
    {"(/dev/\\S+?|COM\\d+)\"?: (no such|the system cannot find)", portMissing},
    {"(cannot|can't) open (port|device) ", portFailed},
    {"not find (usb|pickit|device with)|no matching usb device|did not find any|no device found|cannot open ftdi|"
     "usb device .*not found|usb_open|avrftdi_open|open programmer \\S+ on port usb|open port usb",
     usbMissing},
    {"part \"?\\S+\"? not found|valid parts are", unknownPart},
    {"find programmer id", unknownProgrammer},
    {"device (is )?locked|for device to unlock", lockedChip},
    {"rsp_illegal_mcu_state|rsp_no_target_power|initialization failed|no device\\r?$|target does(n't| not) "
     "answer|invalid device signature|"
     "responding to program enable|device not responding|signature = (0x|)(ff ?ff ?ff|00 ?00 ?00)",
     noChip},
    {"not in sync|not responding|failed to synchronize|getsync\\(\\)|\\(\\): timeout|error: timeout|timeout/error",
     noAnswer},
    {"mismatch|verification error", mismatch},
};

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
    return {say(QT_TRANSLATE_NOOP("Advice", "%1 is programmed by %2, and this programmer speaks %3."))
                .arg(nameFrom(of.run.settings.mcuName), nameFrom(join(needed)), nameFrom(join(spoken))),
            say(QT_TRANSLATE_NOOP("Advice", "Of the list there fit, among others: %1."))
                .arg(programmersWith(&ProgrammerEntry::interfaces, needed))};
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
    if (!of.run.settings.avrdude.contains(QLatin1Char('/')) && !of.around.searchPath.isEmpty())
        lines += say(QT_TRANSLATE_NOOP("Advice", "Folders that are searched for it: %1")).arg(of.around.searchPath);
    lines += say(QT_TRANSLATE_NOOP("Advice", "Then start Korvel again."));
    return lines;
}

Explanation adviceFor(const Case& of)
{
    const QString& output = of.run.output;
    const auto has = [&output](const char* seen) {
        return output.contains(QRegularExpression(
            QLatin1String(seen), QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption));
    };
    const QString signature = Message::signatureIn(output);
    if (has("expected signature for") && !signature.isEmpty())
        return otherChip(signature);
    const auto* const row =
        std::find_if(std::begin(rows), std::end(rows), [&has](const Row& candidate) { return has(candidate.seen); });
    const auto advice = row == std::end(rows) ? quote : row->advice;
    static const QRegularExpression fuseWrite(QStringLiteral("-U ?\\w*(fuse|lock)\\w*:w"));
    const bool isFuses = of.run.arguments.join(QLatin1Char(' ')).contains(fuseWrite);
    if (isFuses && of.isBootLoader() && (advice == quote || advice == mismatch))
        return {fuseWithBootLoader(of), {}};
    if (advice == noChip || has("read operation not supported|does not support|unable to read signature")) {
        const QStringList other = wrongInterface(of);
        if (!other.isEmpty())
            return {other, {}};
    }
    return {advice(of), {}};
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
    QStringList lines {operation, Aftermath::chip(run, of.isBootLoader())};
    lines.removeAll({});
    if (!lines.isEmpty() && !explanation.lines.isEmpty())
        lines += QString();
    explanation.lines = lines + explanation.lines;
    return explanation;
}

QString Advice::portOf(const FailedRun& run)
{
    const QString own = ExtraArguments(run.settings.arguments).value('P');
    return own.isNull() ? run.settings.port : own;
}
