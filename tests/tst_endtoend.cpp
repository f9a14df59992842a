// The real window, the real avrdude and the virtual programmer: what a person with a chip on the bench would see.

#include "app/KorvelApp.h"
#include "avrdude/Avrdude.h"
#include "memory/EepromView.h"
#include "memory/FlashView.h"
#include "settings/SettingsView.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"

#include <QComboBox>
#include <QDir>
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
        const QString port = QRegularExpression(":(\\d+)").match(m_process.readAllStandardOutput()).captured(1);
        QFile entry(DATA_FOLDER "/programmer/Virtual programmer.json"); // what ships, with the port that was free
        if (port.isEmpty() || !entry.open(QIODevice::ReadOnly))
            qFatal("no virtual programmer: %s", m_process.readAllStandardError().constData());
        folder.write("programmer/Virtual programmer.json", entry.readAll().replace("7016", port.toUtf8()));
    }

    ~Programmer()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
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
