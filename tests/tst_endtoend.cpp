// The real window, the real avrdude and the virtual programmer: what a person with a chip on the bench would see.

#include "app/KorvelApp.h"
#include "avrdude/Avrdude.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteView.h"
#include "mcu/AttributesView.h"
#include "memory/FlashView.h"
#include "profiles/ProgrammingView.h"
#include "settings/SettingsView.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

/// Copies what ships into the working folder.
void ship(const WorkFolder& folder, const QStringList& files)
{
    for (const QString& file : files)
        folder.write(file, folder.read(DATA_FOLDER "/" + file));
}

/// A virtual programmer with a fresh chip in it, listening on a free port for as long as the object lives.
struct Programmer {
    explicit Programmer(const WorkFolder& folder, const QStringList& arguments = {})
    {
        process.start(VIRTUAL_PROGRAMMER, QStringList {"--port", "0"} + arguments);
        process.waitForReadyRead();
        port = QRegularExpression(":(\\d+)").match(process.readAllStandardOutput()).captured(1).toUtf8();
        const QString entry = "programmer/Virtual programmer.json"; // what ships, with the port that was free
        folder.write(entry, folder.read(DATA_FOLDER "/" + entry).replace("7016", port));
    }

    /// Runs avrdude behind the window's back.
    int avrdude(const QStringList& arguments) const
    {
        return QProcess::execute(
            "avrdude", QStringList {"-p", "m16", "-c", "stk500v1", "-P", "net:127.0.0.1:" + port} + arguments);
    }

    QProcess process;
    QByteArray port;
};

/// The main window with the virtual programmer chosen; closed, with its settings saved, at the end.
struct Window : KorvelApp {
    Window()
    {
        show();
        auto* programmers = findChild<SettingsView*>()->programmer();
        programmers->setCurrentIndex(-1);
        boxes.take(); // no programmer has no entry, says a box
        programmers->setCurrentText("Virtual programmer");
    }

    ~Window() override { close(); }

    /// The values in the Fuses tab, joined; editors on their way out do not count.
    QString fuses() const
    {
        QString values;
        for (const FusesByteView* view : findChild<Fuses*>()->findChildren<FusesByteView*>())
            values += view->parentWidget()->isHidden() ? "" : view->value()->text();
        return values;
    }

    /// Clicks, waits for the end of the run, and returns the boxes that told it.
    QString boxAfter(QPushButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        const QStringList told = boxes.wait(30000);
        return told.isEmpty() ? "no box; the log says: " + avrdude.logText() : told.join(" | ");
    }

    BoxAnswerer boxes;
    Avrdude& avrdude = *findChild<Avrdude*>();
};

} // namespace

class tst_EndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void writeVerifyRead()
    {
        for (const QString name : {"FLASH", "EEPROM"}) {
            const int size = name == "FLASH" ? 5001 : 301;
            const auto view = [&name](const Window& window) {
                return window.findChildren<MemoryView*>().at(name == "FLASH" ? 0 : 1);
            };
            const QString verified = name + " verified successfully.";
            const QString written = name + ": " + name + " written successfully.\n" + verified;
            const QString readBack = name + ": " + name + " read successfully.";
            const WorkFolder folder;
            QByteArray firmware;
            for (int i = 0; i < size; ++i)
                firmware.append(static_cast<char>(i * i / 7 + i));
            folder.write("my firmware.bin", firmware);
            {
                const Programmer programmer(folder);
                Window window;
                const MemoryView* memory = view(window);
                memory->writePath()->setText("my firmware.bin");
                QCOMPARE(window.boxAfter(memory->writeButton()), written);
                QCOMPARE(window.boxAfter(memory->writeVerifyButton()), name + ": " + verified);
                memory->readPath()->setText("back.hex");
                QCOMPARE(window.boxAfter(memory->readButton()), readBack);
                QVERIFY(folder.read("back.hex").startsWith(":"));
                QCOMPARE(window.boxAfter(memory->readVerifyButton()), name + ": " + verified);
            }
            // What was read as Intel hex goes into a fresh chip and comes back as raw bytes. The window is new, too.
            const Programmer programmer(folder);
            Window window;
            const MemoryView* memory = view(window);
            QCOMPARE(window.boxAfter(memory->writeVerifyButton()), QString("AVRDUDE: Verification error."));
            memory->writePath()->setText("back.hex");
            QCOMPARE(window.boxAfter(memory->writeButton()), written);
            memory->readPath()->setText("back.bin");
            QCOMPARE(window.boxAfter(memory->readButton()), readBack);
            const QByteArray back = folder.read("back.bin");
            QCOMPARE(back.left(size), firmware);
            QCOMPARE(back.mid(size).count('\xff'), back.size() - size);
        }
    }

    void fusesAndWholeChip()
    {
        const WorkFolder folder;
        ship(folder, {"mcu/ATmega16.json"});
        const QString read = "Calibration Byte: Calibration byte read successfully.";
        {
            const Programmer programmer(folder, {"--state", "chip"});
            Window window;
            const auto* attributes = window.findChild<AttributesView*>();
            emit attributes->mcuList()->textActivated("ATmega16");
            window.boxes.take();
            const auto* buttons = window.findChild<FusesButtonsView*>();
            const auto chip = [&folder] {
                const auto state = QJsonDocument::fromJson(folder.read("chip")).object();
                return state["fuses"]["low"].toString() + state["fuses"]["high"].toString() + state["lock"].toString();
            };
            const auto editors = window.findChild<Fuses*>()->findChildren<FusesByteView*>();
            QTest::keyClicks(editors[0]->value(), "e4");
            editors[2]->fusesBit()[0]->click(); // LB1
            QCOMPARE(window.boxAfter(buttons->writeButton()), QString("Information: Fuse bytes written successfully."));
            QCOMPARE(chip(), QString("0xE40x990xFE"));
            QCOMPARE(window.boxAfter(buttons->verifyButton()), QString("FUSES: Fuse bytes verified successfully."));
            QCOMPARE(window.boxAfter(attributes->eraseButton()), QString("MCU: MCU erased successfully."));
            QCOMPARE(chip(), QString("0xE40x990xFF"));
            QCOMPARE(programmer.avrdude({"-Ulfuse:w:0xd1:m", "-Uhfuse:w:0x91:m"}), 0);
            QCOMPARE(window.boxAfter(buttons->verifyButton()), QString("AVRDUDE: Verification error."));
            QCOMPARE(window.boxAfter(buttons->readButton()), QString("FUSES: Fuse bytes read successfully."));
            QCOMPARE(window.fuses(), QString("D191FF"));
            QCOMPARE(window.boxAfter(attributes->readButton()), read);
            QCOMPARE(attributes->calibrationByte()->text(), QString("A9 A4 A2 9F"));
        }
        const Programmer programmer(folder, {"--part", "ATtiny85"});
        Window window;
        window.avrdude.settings().mcuId = "t85";
        QCOMPARE(window.boxAfter(window.findChild<AttributesView*>()->readButton()), read);
        QCOMPARE(window.findChild<AttributesView*>()->calibrationByte()->text(), QString("A9"));
    }

    void profiles()
    {
        const WorkFolder folder;
        ship(folder, {"mcu/ATmega16.json", "profiles/Blink complete.json", "demo/blink.hex", "demo/greeting.eep"});
        QByteArray states[2];
        for (QByteArray& state : states) { // a board, and the next board
            QFile::remove("chip");
            const Programmer programmer(folder, {"--state", "chip"});
            Window window;
            // The profile brings the fixed port of the entry that ships; this one is on another.
            const QString arguments = window.avrdude.settings().arguments;
            const auto* view = window.findChild<ProgrammingView*>();
            emit view->profiles()->textActivated("Blink complete");
            window.avrdude.settings().arguments = arguments;
            QCOMPARE(window.findChild<FlashView*>()->writePath()->text(), QString("demo/blink.hex"));
            QCOMPARE(window.fuses(), QString("E1D9FF"));
            QCOMPARE(window.boxAfter(view->writeButton()),
                     QString("Profiles: Flash write successfully.\nFlash verify successfully.\n"
                             "Eeprom write successfully.\nEeprom verify successfully.\n"
                             "Fuse bits write successfully.\nFuse bits verify successfully."));
            QCOMPARE(window.avrdude.logText().count("Korvel: avrdude"), 3);
            state = folder.read("chip");
            QCOMPARE(programmer.avrdude({"-Uflash:v:demo/blink.hex:i", "-Ueeprom:v:demo/greeting.eep:i",
                                         "-Ulfuse:v:0xe1:m", "-Uhfuse:v:0xd9:m", "-Ulock:v:0xff:m"}),
                     0);
        }
        QVERIFY(states[0].contains("0c942a00") && states[0] == states[1]);
    }

    void failures()
    {
        using Row = std::array<const char*, 4>;
        for (const auto& [programmer, part, path, message] :
             {Row {"", "m328p", "fw.bin", "Wrong microcontroller selected."},
              {"", "m16", "none.hex", "No such file or directory."},
              {"", "m16", "garbage.hex", "See the message in the dialog box."},
              {"--silent", "m16", "fw.bin", "Programmer not found."},
              {"--flip=0x10", "m16", "fw.bin", "Verification error."},
              {"--unplug-after=50", "m16", "fw.bin", "Programmer not found."}}) {
            const WorkFolder folder;
            folder.write("fw.bin", QByteArray(100, 'x'));
            folder.write("garbage.hex", "this is no hex file\n");
            const Programmer started(folder, QString(programmer).split(' ', Qt::SkipEmptyParts));
            Window window;
            window.avrdude.settings().mcuId = part;
            auto* flash = window.findChild<FlashView*>();
            flash->writePath()->setText(path);
            QCOMPARE(path + window.boxAfter(flash->writeButton()), path + QString("AVRDUDE: ") + message);
        }
    }
};

QTEST_MAIN(tst_EndToEnd)
#include "tst_endtoend.moc"
