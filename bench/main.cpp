// Prints one table: what is measured, beside what, both figures, their ratio, and the ratio to reach. Everything is
// measured in turns within one run, and medians are compared, so that the machine's mood hits both sides alike.

#include "app/KorvelApp.h"
#include "avrdude/Avrdude.h"
#include "fuses/Fuses.h"
#include "memory/FirmwareFile.h"
#include "memory/FlashView.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>
#include <cstdio>

namespace {

using Samples = QVector<double>;

double median(Samples samples)
{
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

void row(const char* what, const char* beside, double ours, double theirs, const char* unit, double toReach)
{
    std::printf("%-44s %-34s %9.1f %9.1f %-4s %6.2f  %5.2f  %s\n", what, beside, ours, theirs, unit, ours / theirs,
                toReach, ours / theirs <= toReach ? "reached" : "MISSED");
    std::fflush(stdout);
}

/// Copies the files of a folder, each @p times under names of its own; the folder is made even if that is never.
void copyFolder(const QString& from, const QString& to, int times = 1)
{
    QDir().mkpath(to);
    for (const QString& name : QDir(from).entryList(QDir::Files)) {
        for (int i = 0; i < times; ++i)
            QFile::copy(from + '/' + name, to + '/' + (i ? QString::number(i) : QString()) + name);
    }
}

/// Lays what ships into the working folder, each description as often as told.
void shipData(int descriptions = 1)
{
    copyFolder(DATA_FOLDER "/mcu", "mcu", descriptions);
    for (const QString folder : {"programmer", "profiles", "demo"})
        copyFolder(QString(DATA_FOLDER) + '/' + folder, folder);
    copyFolder(LANGUAGES, "Languages");
    QFile::copy(DATA_FOLDER "/save.json", "save.json");
}

struct Start {
    double time = 0; ///< processor time in milliseconds
    double memory = 0; ///< peak, in MiB
};

/// Runs a program in the working folder up to its first painted window. Returns all that it prints.
QString run(const QString& program, const QStringList& arguments = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_PLUGIN_PATH", PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "first-paint");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(-1);
    return process.readAll();
}

/// @p withOpenGl: as the toolkit does where it is not told otherwise.
Start startOnce(const QString& program, bool withOpenGl = true)
{
    withOpenGl ? qunsetenv("QT_XCB_GL_INTEGRATION") : qputenv("QT_XCB_GL_INTEGRATION", "none");
    const auto figures =
        QRegularExpression("^([\\d.]+) (\\d+)$", QRegularExpression::MultilineOption).match(run(program));
    if (!figures.hasMatch())
        qFatal("%s was not painted", qPrintable(program));
    return {figures.captured(1).toDouble(), figures.captured(2).toDouble() / 1024};
}

void benchStart()
{
    constexpr int repetitions = 21;
    const WorkFolder folder;
    shipData();
    Samples ours, theirs, ourMemory, theirMemory, theirsWithoutOpenGl;
    for (int i = 0; i <= repetitions; ++i) {
        const Start empty = startOnce(EMPTY_WINDOW);
        const Start korvel = startOnce(KORVEL);
        const Start emptyWithoutOpenGl = startOnce(EMPTY_WINDOW, false);
        if (i == 0)
            continue; // warms the disk
        ours += korvel.time;
        theirs += empty.time;
        ourMemory += korvel.memory;
        theirMemory += empty.memory;
        theirsWithoutOpenGl += emptyWithoutOpenGl.time;
    }
    row("start to first painted window, CPU time", "empty window with four tabs", median(ours), median(theirs), "ms",
        1.3);
    row("the same, peak memory", "the same", median(ourMemory), median(theirMemory), "MiB", 1.12);
    row("the same, CPU time", "empty window without OpenGL", median(ours), median(theirsWithoutOpenGl), "ms", 2);
}

/// How many instructions a start takes, in millions. Unlike times, which sway more than some files cost, it is the same
/// in every run.
double countedStart()
{
    const QString log = run("valgrind", {"--tool=callgrind", "--callgrind-out-file=/dev/null", KORVEL});
    double most = 0; // the toolkit may have forked, and each process reports
    for (auto count = QRegularExpression("Collected : (\\d+)").globalMatch(log); count.hasNext();)
        most = std::max(most, count.next().captured(1).toDouble() / 1e6);
    return most;
}

void benchManyDescriptions()
{
    constexpr int times = 10;
    constexpr double sorting = 1.01; // the list is sorted, which grows a little faster than the files
    Samples counts;
    for (const int descriptions : {0, 1, times}) {
        const WorkFolder folder;
        shipData(descriptions);
        counts += countedStart();
    }
    row("start with ten times the descriptions, added", "what the shipped ones add", counts[2] - counts[0],
        counts[1] - counts[0], "Mi", times * sorting);
}

void benchWrite()
{
    constexpr int repetitions = 9;
    constexpr int flashSize = 32 * 1024;
    const WorkFolder folder;
    shipData();
    QByteArray firmware;
    for (int i = 0; i < flashSize; ++i)
        firmware += static_cast<char>(i * 2654435761U >> 13);
    folder.write("firmware.bin", firmware);
    QProcess programmer;
    programmer.start(VIRTUAL_PROGRAMMER, {"--port", "0", "--part", "ATmega328P"});
    programmer.waitForReadyRead();
    const QString port = QRegularExpression(":(\\d+)").match(programmer.readAllStandardOutput()).captured(1);
    const QStringList arguments {"-p", "m328p", "-c", "stk500v1", "-P", "net:127.0.0.1:" + port, "-B 4"};
    const QStringList request {"-U", "flash:w:firmware.bin:r"};

    BoxAnswerer boxes;
    KorvelApp window;
    window.show();
    auto& avrdude = *window.findChild<Avrdude*>();
    avrdude.settings().mcuId = "m328p";
    avrdude.settings().programmer.id = "stk500v1";
    avrdude.settings().port = arguments[5];
    avrdude.settings().arguments.clear();
    auto* view = window.findChild<FlashView*>();
    view->writePath()->setText("firmware.bin");

    Samples ours, theirs;
    for (int i = 0; i < repetitions; ++i) {
        QElapsedTimer timer;
        timer.start();
        QProcess alone;
        alone.start("avrdude", arguments + request);
        alone.waitForFinished();
        theirs += static_cast<double>(timer.nsecsElapsed()) / 1e6;
        timer.start();
        view->writeButton()->click();
        QStringList told;
        while ((told = boxes.take()).isEmpty())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ours += static_cast<double>(timer.nsecsElapsed()) / 1e6;
        if (told != QStringList("FLASH: FLASH written successfully.\nFLASH verified successfully."))
            qFatal("%s", qPrintable(told.join('|')));
    }
    row("Write clicked to success box, 32 KiB flash", "avrdude alone, same arguments", median(ours), median(theirs),
        "ms", 1.03);
    programmer.kill();
    programmer.waitForFinished();
}

/// Streams avrdude output of @p size bytes into the log. Returns the milliseconds that it took; @p longestWait becomes
/// the longest time that an event had to wait.
double stream(const WorkFolder& folder, Avrdude& avrdude, int size, double& longestWait)
{
    QByteArray output;
    while (output.size() < size)
        output += "avrdude: writing flash (1234 bytes) at 0x0000 .................\n";
    folder.write("output", output);
    folder.write("script", "print output");
    bool isDone = false;
    QElapsedTimer timer;
    QElapsedTimer sinceEvent;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, &heartbeat, [&] {
        longestWait = std::max(longestWait, static_cast<double>(sinceEvent.nsecsElapsed()) / 1e6);
        sinceEvent.start();
    });
    sinceEvent.start();
    heartbeat.start(0);
    timer.start();
    avrdude.execute({}, [&] { isDone = true; });
    while (!isDone)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void benchLog()
{
    constexpr int repetitions = 5;
    constexpr int size = 5'000'000;
    constexpr double patience = 50; // milliseconds
    const WorkFolder folder;
    shipData();
    KorvelApp window;
    window.show();
    auto& avrdude = *window.findChild<Avrdude*>();
    avrdude.settings().avrdude = STAND_IN;
    double longestWait = 0;
    Samples once, twice;
    for (int i = 0; i < repetitions; ++i) {
        once += stream(folder, avrdude, size, longestWait);
        twice += stream(folder, avrdude, 2 * size, longestWait);
    }
    row("10 MB of avrdude output into the log", "5 MB of it", median(twice), median(once), "ms", 2.2);
    row("the same, longest wait of an event", "50 ms", longestWait, patience, "ms", 1);
}

/// A file of 1 MB, which is three times as much as the largest microcontroller takes.
void benchFile()
{
    constexpr int repetitions = 21;
    constexpr double patience = 50; // milliseconds, between a click on Write and the start of avrdude
    const WorkFolder folder;
    QByteArray records;
    while (records.size() < 1'000'000)
        records += ":10000000000102030405060708090A0B0C0D0E0F78\n";
    for (const auto& [what, content] : {std::pair("looking through 1 MB of Intel hex", records),
                                        {"looking through 1 MB without a line break", QByteArray(1'000'000, '\0')}}) {
        folder.write("a.hex", content);
        Samples samples;
        for (int i = 0; i < repetitions; ++i) {
            QElapsedTimer timer;
            timer.start();
            static_cast<void>(FirmwareFile::read("a.hex", "i", "flash", 1024));
            samples += static_cast<double>(timer.nsecsElapsed()) / 1e6;
        }
        row(what, "50 ms", median(samples), patience, "ms", 1);
    }
}

void benchPicking()
{
    constexpr int repetitions = 5;
    constexpr double frame = 16; // milliseconds, at 60 Hz
    const WorkFolder folder;
    shipData();
    KorvelApp window;
    window.show();
    auto* tabs = window.findChild<QTabWidget*>();
    auto* fuses = window.findChild<Fuses*>();
    tabs->setCurrentWidget(fuses);
    const QStringList names = QDir("mcu").entryList(QDir::Files);
    QVector<Samples> times(names.size());
    for (int i = 0; i < repetitions; ++i) {
        for (int part = 0; part < names.size(); ++part) {
            QCoreApplication::processEvents();
            QElapsedTimer timer;
            timer.start();
            fuses->loadMcu(names[part].chopped(5));
            fuses->rebuild();
            QCoreApplication::processEvents(); // lays out and paints
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the part before: no loop runs here
            times[part] += static_cast<double>(timer.nsecsElapsed()) / 1e6;
        }
    }
    Samples samples;
    for (const Samples& ofPart : times)
        samples += median(ofPart);
    row("picking a microcontroller, median of all", "one frame", median(samples), frame, "ms", 1);
    row("the same, slowest of all", "half a frame", *std::max_element(samples.begin(), samples.end()), frame / 2, "ms",
        1);
}

constexpr char saveForever[] = "--save-forever";

/// The settings with a text of @p size characters in them, as file content.
SettingsRecord settingsOf(int size)
{
    SettingsRecord settings;
    settings.description = QString(size, 'x');
    return settings;
}

/// Kills a program while it saves the settings, again and again: the file must be whole each time.
void benchKills()
{
    constexpr int kills = 1000;
    constexpr int longestSave = 3; // milliseconds, with room to spare
    const WorkFolder folder;
    const QStringList contents = [&folder] {
        QStringList both;
        for (const int size : {10, 100'000}) {
            if (!settingsOf(size).saveToFile("save.json"))
                qFatal("cannot save");
            both += folder.read("save.json");
        }
        return both;
    }();
    int whole = 0;
    for (int i = 0; i < kills; ++i) {
        QProcess saver;
        saver.start(QCoreApplication::applicationFilePath(), {saveForever});
        saver.waitForReadyRead();
        QTest::qSleep(1 + i % longestSave);
        saver.kill();
        saver.waitForFinished();
        whole += contents.contains(folder.read("save.json"));
    }
    row("kills while saving", "settings file whole after it", kills, whole, "", 1);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc == 2 && argv[1] == QByteArray(saveForever)) {
        std::puts("saving");
        std::fflush(stdout);
        for (int i = 0;; ++i) {
            if (!settingsOf(i % 2 ? 10 : 100'000).saveToFile("save.json"))
                return 1;
        }
    }
    QApplication application(argc, argv);
    std::printf("%-44s %-34s %9s %9s %-4s %6s  %5s\n", "what", "beside", "ours", "theirs", "", "ratio", "reach");
    const QStringList only = QApplication::arguments().mid(1);
    const QVector<QPair<QString, void (*)()>> benches {
        {"start", benchStart},     {"descriptions", benchManyDescriptions},
        {"write", benchWrite},     {"log", benchLog},
        {"picking", benchPicking}, {"file", benchFile},
        {"kills", benchKills}};
    for (const auto& [name, bench] : benches) {
        if (only.isEmpty() || only.contains(name))
            bench();
    }
    return 0;
}
