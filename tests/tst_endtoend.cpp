// The real window, the real avrdude and the virtual programmer: what a person with a chip on the bench would see.

#include "app/KorvelApp.h"
#include "avrdude/Avrdude.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteView.h"
#include "mcu/AttributesView.h"
#include "memory/EepromView.h"
#include "memory/FlashView.h"
#include "profiles/ProgrammingView.h"
#include "settings/SettingsView.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

/// A virtual programmer with a fresh chip in it, listening on a free port for as long as the object lives.
class Programmer
{
public:
    explicit Programmer(const WorkFolder& folder, const QStringList& arguments = {})
    {
        m_process.start(VIRTUAL_PROGRAMMER, QStringList {"--port", "0"} + arguments);
        m_process.waitForReadyRead();
        m_port = QRegularExpression(":(\\d+)").match(m_process.readAllStandardOutput()).captured(1);
        QFile entry(DATA_FOLDER "/programmer/Virtual programmer.json"); // what ships, with the port that was free
        if (m_port.isEmpty() || !entry.open(QIODevice::ReadOnly))
            qFatal("no virtual programmer: %s", m_process.readAllStandardError().constData());
        folder.write("programmer/Virtual programmer.json", entry.readAll().replace("7016", m_port.toUtf8()));
    }

    /// Runs avrdude behind the window's back.
    void avrdude(const QStringList& arguments) const
    {
        const QStringList frame {"-p", "m16", "-c", "stk500v1", "-P", "net:127.0.0.1:" + m_port};
        QCOMPARE(QProcess::execute("avrdude", frame + arguments), 0);
    }

    ~Programmer()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QString m_port;
};

/// The main window with the virtual programmer chosen; closed, with its settings saved, at the end.
class Window : public KorvelApp
{
public:
    explicit Window(BoxAnswerer& boxAnswerer)
        : boxes(boxAnswerer)
    {
        show();
        auto* programmers = findChild<SettingsView*>()->programmer();
        programmers->setCurrentIndex(-1);
        boxes.take(); // no programmer has no entry, says a box
        programmers->setCurrentText("Virtual programmer");
    }

    /// Picks a microcontroller as the user does.
    void pick(const QString& part)
    {
        emit findChild<AttributesView*>()->mcuList()->textActivated(part);
        boxes.take();
    }

    /// The values in the Fuses tab, joined; editors on their way out do not count.
    QString fuses() const
    {
        QString values;
        for (const FusesByteView* view : findChild<Fuses*>()->findChildren<FusesByteView*>())
            values += view->parentWidget()->isHidden() ? "" : view->value()->text();
        return values;
    }

    ~Window() override { close(); }

    Avrdude& avrdude() { return *findChild<Avrdude*>(); }

    /// Clicks, waits for the end of the run, and returns the boxes that told it.
    QString boxAfter(QPushButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        const QStringList told = boxes.wait(30000);
        return told.isEmpty() ? "no box; the log says: " + avrdude().logText() : told.join(" | ");
    }

    BoxAnswerer& boxes;
};

} // namespace

class tst_EndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void writeVerifyRead_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("FLASH") << 5001;
        QTest::newRow("EEPROM") << 301;
    }

    void writeVerifyRead()
    {
        QFETCH(int, size);
        const QString name = QTest::currentDataTag();
        const auto view = [&name](Window& window) -> MemoryView* {
            return name == "FLASH" ? static_cast<MemoryView*>(window.findChild<FlashView*>())
                                   : window.findChild<EepromView*>();
        };
        const QString written = QString("%1: %1 written successfully.\n%1 verified successfully.").arg(name);
        const QString verified = QString("%1: %1 verified successfully.").arg(name);
        const QString readBack = QString("%1: %1 read successfully.").arg(name);
        const WorkFolder folder;
        BoxAnswerer boxes;
        QByteArray firmware;
        for (int i = 0; i < size; ++i)
            firmware.append(static_cast<char>(i * i / 7 + i));
        folder.write("my firmware.bin", firmware);
        {
            const Programmer programmer(folder);
            Window window(boxes);
            MemoryView* memory = view(window);
            memory->writePath()->setText("my firmware.bin");
            QCOMPARE(window.boxAfter(memory->writeButton()), written);
            QCOMPARE(window.boxAfter(memory->writeVerifyButton()), verified);
            memory->readPath()->setText("back.hex");
            QCOMPARE(window.boxAfter(memory->readButton()), readBack);
            QVERIFY(folder.read("back.hex").startsWith(":"));
            QCOMPARE(window.boxAfter(memory->readVerifyButton()), verified);
        }
        // What was read as Intel hex goes into a fresh chip and comes back as raw bytes. The window is a new one too.
        const Programmer programmer(folder);
        Window window(boxes);
        MemoryView* memory = view(window);
        QCOMPARE(window.boxAfter(memory->writeVerifyButton()), QString("AVRDUDE: Verification error."));
        memory->writePath()->setText("back.hex");
        QCOMPARE(window.boxAfter(memory->writeButton()), written);
        memory->readPath()->setText("back.bin");
        QCOMPARE(window.boxAfter(memory->readButton()), readBack);
        const QByteArray back = folder.read("back.bin");
        QCOMPARE(back.left(size), firmware);
        QCOMPARE(back.mid(size).count('\xff'), back.size() - size);
    }

    void fusesAndWholeChip()
    {
        const WorkFolder folder;
        QVERIFY(QDir().mkdir("mcu") && QFile::copy(DATA_FOLDER "/mcu/ATmega16.json", "mcu/ATmega16.json"));
        const Programmer programmer(folder, {"--state", "chip"});
        BoxAnswerer boxes;
        Window window(boxes);
        window.pick("ATmega16");
        const auto* buttons = window.findChild<FusesButtonsView*>();
        const auto chip = [&folder](const char* what) {
            const QJsonObject state = QJsonDocument::fromJson(folder.read("chip")).object();
            const QJsonObject fuses = state["fuses"].toObject();
            return (fuses.contains(what) ? fuses[what] : state[what]).toString();
        };
        const auto editors = window.findChild<Fuses*>()->findChildren<FusesByteView*>();
        QTest::keyClicks(editors[0]->value(), "e4");
        editors[2]->fusesBit()[0]->click(); // LB1
        QCOMPARE(window.boxAfter(buttons->writeButton()), QString("Information: Fuse bytes written successfully."));
        QCOMPARE(chip("low") + chip("high") + chip("lock"), QString("0xE40x990xFE"));
        QCOMPARE(window.boxAfter(buttons->verifyButton()), QString("FUSES: Fuse bytes verified successfully."));

        const auto* attributes = window.findChild<AttributesView*>();
        QCOMPARE(window.boxAfter(attributes->eraseButton()), QString("MCU: MCU erased successfully."));
        QCOMPARE(chip("lock"), QString("0xFF"));
        programmer.avrdude({"-Ulfuse:w:0xd1:m", "-Uhfuse:w:0x91:m"});
        QCOMPARE(window.boxAfter(buttons->verifyButton()), QString("AVRDUDE: Verification error."));
        QCOMPARE(window.boxAfter(buttons->readButton()), QString("FUSES: Fuse bytes read successfully."));
        QCOMPARE(window.fuses(), QString("D191FF"));

        const QString read = "Calibration Byte: Calibration byte read successfully.";
        QCOMPARE(window.boxAfter(attributes->readButton()), read);
        QCOMPARE(attributes->calibrationByte()->text(), QString("A9 A4 A2 9F"));
        const Programmer one(folder, {"--part", "ATtiny85"});
        Window other(boxes);
        other.avrdude().settings().mcuId = "t85";
        QCOMPARE(other.boxAfter(other.findChild<AttributesView*>()->readButton()), read);
        QCOMPARE(other.findChild<AttributesView*>()->calibrationByte()->text(), QString("A9"));
    }

    void profiles()
    {
        const WorkFolder folder;
        for (const QString path :
             {"mcu/ATmega16.json", "profiles/Blink complete.json", "demo/blink.hex", "demo/greeting.eep"}) {
            QVERIFY(QDir().mkpath(QFileInfo(path).path()));
            QVERIFY(QFile::copy(DATA_FOLDER "/" + path, path));
        }
        BoxAnswerer boxes;
        QByteArray states[2];
        for (QByteArray& state : states) { // a board, and the next board
            QFile::remove("chip");
            const Programmer programmer(folder, {"--state", "chip"});
            Window window(boxes);
            // The profile brings the fixed port of the entry that ships; this one is on another.
            const QString arguments = window.avrdude().settings().arguments;
            const auto* view = window.findChild<ProgrammingView*>();
            emit view->profiles()->textActivated("Blink complete");
            window.avrdude().settings().arguments = arguments;
            QCOMPARE(window.findChild<FlashView*>()->writePath()->text(), QString("demo/blink.hex"));
            QCOMPARE(window.fuses(), QString("E1D9FF"));
            QCOMPARE(window.boxAfter(view->writeButton()),
                     QString("Profiles: Flash write successfully.\nFlash verify successfully.\n"
                             "Eeprom write successfully.\nEeprom verify successfully.\n"
                             "Fuse bits write successfully.\nFuse bits verify successfully."));
            QCOMPARE(window.avrdude().logText().count("Korvel: avrdude"), 3);
            state = folder.read("chip");
            programmer.avrdude({"-Uflash:v:demo/blink.hex:i", "-Ueeprom:v:demo/greeting.eep:i", "-Ulfuse:v:0xe1:m",
                                "-Uhfuse:v:0xd9:m", "-Ulock:v:0xff:m"});
        }
        QVERIFY(states[0].contains("0c942a00") && states[0] == states[1]);
    }

    void failures_data()
    {
        QTest::addColumn<QStringList>("programmer");
        QTest::addColumn<QString>("part");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("box");
        const QStringList plain;
        QTest::newRow("wrong part") << plain << "m328p"
                                    << "fw.bin"
                                    << "Wrong microcontroller selected.";
        QTest::newRow("missing file") << plain << "m16"
                                      << "none.hex"
                                      << "No such file or directory.";
        QTest::newRow("garbage") << plain << "m16"
                                 << "garbage.hex"
                                 << "See the message in the dialog box.";
        QTest::newRow("silent") << QStringList {"--silent"} << "m16"
                                << "fw.bin"
                                << "Programmer not found.";
        QTest::newRow("flip") << QStringList {"--flip", "0x10"} << "m16"
                              << "fw.bin"
                              << "Verification error.";
        QTest::newRow("unplugged") << QStringList {"--unplug-after", "50"} << "m16"
                                   << "fw.bin"
                                   << "Programmer not found.";
    }

    void failures()
    {
        QFETCH(QStringList, programmer);
        QFETCH(QString, part);
        QFETCH(QString, path);
        QFETCH(QString, box);
        const WorkFolder folder;
        folder.write("fw.bin", QByteArray(100, 'x'));
        folder.write("garbage.hex", "this is no hex file\n");
        const Programmer started(folder, programmer);
        BoxAnswerer boxes;
        Window window(boxes);
        window.avrdude().settings().mcuId = part;
        auto* flash = window.findChild<FlashView*>();
        flash->writePath()->setText(path);
        QCOMPARE(window.boxAfter(flash->writeButton()), "AVRDUDE: " + box);
    }
};

QTEST_MAIN(tst_EndToEnd)
#include "tst_endtoend.moc"
