#include "Chip.h"
#include "Description.h"
#include "JtagMkII.h"
#include "Stk500.h"
#include "VirtualProgrammer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <limits>
#include <memory>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;
constexpr int fastestClock = 20000000; // Hz; no part takes more

/// After a double click on Windows the console closes with the program: leaves time to read what stands in it.
void awaitReader()
{
#ifdef Q_OS_WIN
    DWORD process = 0;
    DWORD mode = 0;
    // Others in the console, such as a command line, keep it open; a message that goes to a file has no reader here.
    if (GetConsoleProcessList(&process, 1) == 1 && GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode)) {
        QTextStream(stderr) << "Press Enter to close this window." << Qt::endl;
        QTextStream(stdin).readLine();
    }
#endif
}

int fail(int status, const QString& message)
{
    QTextStream(stderr) << message << Qt::endl;
    awaitReader();
    return status;
}

/// Where the descriptions of microcontrollers may be: in the work folder, or where they were installed.
QStringList descriptionFolders()
{
    const QString here = QCoreApplication::applicationDirPath();
    return {QStringLiteral("mcu"), here + QStringLiteral("/mcu"), here + QStringLiteral("/../share/korvel/mcu")};
}

/// The chip that `name` stands for, with the programmer for it.
struct Bench {
    explicit Bench(const QString& name)
    {
        const Part* part = Part::find(name);
        const auto description = part ? std::nullopt : Description::read(name, descriptionFolders(), error);
        if (description)
            described = Part::described(*description);
        if (part || described) {
            auto classic = std::make_unique<Chip>(part ? *part : *described);
            withClock = part ? classic.get() : nullptr;
            protocol = std::make_unique<Stk500>(*classic);
            chip = std::move(classic);
        } else if (const auto mapped = description ? MappedPart::described(*description) : std::nullopt) {
            auto modern = std::make_unique<MappedChip>(*mapped);
            programmer = mapped->isUpdi ? "jtag2updi" : "jtag2pdi";
            protocol = std::make_unique<JtagMkII>(*modern);
            chip = std::move(modern);
        }
    }

    std::optional<Part> described; ///< that the chip refers to
    std::unique_ptr<Target> chip; ///< null: there is no such part, or `error` says what else
    QString error;
    std::unique_ptr<Protocol> protocol;
    Chip* withClock = nullptr; ///< the same chip, if it can have a clock from outside
    const char* programmer = "stk500v1"; ///< avrdude's "-c"
};

/// The number that `text` stands for, decimal or hexadecimal with 0x, from `minimum` to `maximum`.
std::optional<int> number(const QString& text, int minimum, int maximum)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber, text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) ? 16 : 10);
    return isNumber && value >= minimum && value <= maximum ? std::optional(value) : std::nullopt;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);

    const QCommandLineOption portOption(QStringLiteral("port"),
                                        QStringLiteral("Listen on this port of 127.0.0.1; 0 picks a free one."),
                                        QStringLiteral("port"), QStringLiteral("7016"));
    const QCommandLineOption partOption(QStringLiteral("part"),
                                        QStringLiteral("The chip: %1, or any with ISP, UPDI or PDI that Korvel has a "
                                                       "description of, such as ATtiny1614.")
                                            .arg(Part::names().join(QStringLiteral(", "))),
                                        QStringLiteral("part"), QStringLiteral("ATmega16"));
    const QCommandLineOption stateOption(QStringLiteral("state"),
                                         QStringLiteral("Keep the memories of the chip in this file across starts."),
                                         QStringLiteral("file"));
    const QCommandLineOption clockOption(
        QStringLiteral("clock"),
        QStringLiteral("Connect a crystal or generator of this frequency, for fuses that take the clock from outside "
                       "the chip, whichever kind and range they name. Without it there is none."),
        QStringLiteral("hertz"));
    const QCommandLineOption rescueOption(
        QStringLiteral("rescue"),
        QStringLiteral("Start the chip with factory fuses, as after high-voltage programming. A chip whose lock keeps "
                       "programmers from writing is erased first; any other keeps its memories."));
    const QCommandLineOption silentOption(QStringLiteral("silent"),
                                          QStringLiteral("Accept connections and never answer."));
    const QCommandLineOption flipOption(QStringLiteral("flip"),
                                        QStringLiteral("Write one bit of the flash byte at this address wrongly."),
                                        QStringLiteral("address"));
    const QCommandLineOption unplugOption(
        QStringLiteral("unplug-after"),
        QStringLiteral("Close each connection after this many bytes of flash page data."), QStringLiteral("bytes"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A programmer and an AVR chip in one, for avrdude's\n"
                                                    "-c stk500v1 -P net:127.0.0.1:7016, with UPDI -c jtag2updi,\n"
                                                    "with PDI -c jtag2pdi"));
    const QCommandLineOption helpOption = parser.addHelpOption();
    parser.addOptions(
        {portOption, partOption, stateOption, clockOption, rescueOption, silentOption, flipOption, unplugOption});
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(exitUsage, parser.errorText());
    if (parser.isSet(helpOption))
        parser.showHelp();
    if (!parser.positionalArguments().isEmpty())
        return fail(exitUsage,
                    QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));

    const Bench bench(parser.value(partOption));
    if (!bench.error.isEmpty())
        return fail(exitUsage, bench.error);
    if (!bench.chip)
        return fail(
            exitUsage,
            QStringLiteral("Unknown part '%1'. Known parts: %2, and those with ISP, UPDI or PDI whose descriptions "
                           "are in the folder mcu.")
                .arg(parser.value(partOption), Part::names().join(QStringLiteral(", "))));
    const std::optional<int> port = number(parser.value(portOption), 0, std::numeric_limits<quint16>::max());
    if (!port)
        return fail(exitUsage, QStringLiteral("'%1' is no port.").arg(parser.value(portOption)));

    Target& chip = *bench.chip;
    const QString name = chip.shape().part;
    VirtualProgrammer programmer(chip, *bench.protocol);
    programmer.setSilent(parser.isSet(silentOption));
    if (parser.isSet(flipOption)) {
        const std::optional<int> address =
            number(parser.value(flipOption), 0, static_cast<int>(chip.state().flash.size()) - 1);
        if (!address)
            return fail(exitUsage,
                        QStringLiteral("'%1' is no flash address of %2.").arg(parser.value(flipOption), name));
        chip.setFaultyAddress(*address);
    }
    if (parser.isSet(unplugOption)) {
        const std::optional<int> bytes = number(parser.value(unplugOption), 1, std::numeric_limits<int>::max());
        if (!bytes)
            return fail(exitUsage, QStringLiteral("'%1' is no number of bytes.").arg(parser.value(unplugOption)));
        programmer.setUnplugAfter(*bytes);
    }
    if (parser.isSet(clockOption)) {
        const std::optional<int> frequency = number(parser.value(clockOption), 1, fastestClock);
        if (!frequency)
            return fail(exitUsage,
                        QStringLiteral("'%1' is no clock frequency in Hz, from 1 to %2.")
                            .arg(parser.value(clockOption))
                            .arg(fastestClock));
        if (!bench.withClock)
            return fail(exitUsage, QStringLiteral("%1 takes no clock from outside here.").arg(name));
        bench.withClock->setClockInput(*frequency);
    }
    QString error;
    if (parser.isSet(stateOption) && !programmer.setStateFile(parser.value(stateOption), error))
        return fail(exitFailure, error);
    if (parser.isSet(rescueOption))
        programmer.rescueChip();
    if (!programmer.listen(static_cast<quint16>(*port)))
        return fail(exitFailure,
                    QStringLiteral("Cannot listen on 127.0.0.1:%1: %2").arg(*port).arg(programmer.errorString()));

    QString listening = QStringLiteral("Listening on 127.0.0.1:%1, part %2").arg(programmer.port()).arg(name);
    if (QLatin1String(bench.programmer) != QLatin1String("stk500v1"))
        listening += QStringLiteral(", avrdude's programmer %1").arg(QLatin1String(bench.programmer));
    QTextStream(stdout) << listening << Qt::endl;
    return QCoreApplication::exec();
}
