#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"
#include "support/LogCapture.h"

#include <QComboBox>
#include <QDir>
#include <QtTest>

namespace {

/// The panel over a catalogue of two programmers and with serial ports of the test's choice.
struct Panel : Bench {
    Panel()
    {
        folder.write("programmer/USBasp.json", R"({"id": "usbasp", "arguments": "", "port": "usb"})");
        folder.write("programmer/Serial.json", R"({"id": "stk500v1", "arguments": "-b 19200", "port": "com"})");
        for (const char* language : {"Old", "New"})
            folder.write(QString("Languages/%1.json").arg(language), "{}");
    }

    void build()
    {
        presenter = std::make_unique<SettingsPresenter>(avrdude, model, view);
        view.programmer()->setCurrentIndex(-1); // so that picking any entry is a change
        boxes.take();
    }

    QStringList portTexts() const
    {
        QStringList texts;
        for (int i = 0; i < view.port()->count(); ++i)
            texts += view.port()->itemText(i);
        return texts;
    }

    SettingsRecord& settings = avrdude.settings();
    QVector<SerialPort> ports {{"ttyS0", "", 0x1234, "/dev/ttyS0"},
                               {"ttyUSB0", "FT232R", 0x0403, "/dev/ttyUSB0"},
                               {"ttyAMA0", "Onboard", 0, "/dev/ttyAMA0"},
                               {"ttyACM0", "", 0x2341, "/dev/ttyACM0"}};
    SettingsModel model {nullptr, [this] { return ports; }};
    SettingsView view;
    std::unique_ptr<SettingsPresenter> presenter;
};

} // namespace

class tst_Settings : public QObject
{
    Q_OBJECT

private slots:
    void lists()
    {
        Panel panel;
        panel.folder.write("programmer/my.isp.json", "{}");
        panel.folder.write("programmer/folder.json/x", "");
        panel.folder.write("programmer/readme.txt", "");
        QStringList names = panel.model.programmerList();
        names.sort();
        QCOMPARE(names, QStringList({"Serial", "USBasp", "my"}));
        panel.settings.programmer.id = "kept";
        panel.presenter = std::make_unique<SettingsPresenter>(panel.avrdude, panel.model, panel.view);
        QCOMPARE(panel.settings.speed + panel.settings.programmer.id, QString("-B 4kept")); // filling wrote nothing
        QCOMPARE(panel.view.speed()->count(), 12);
        panel.view.speed()->setCurrentIndex(4);
        QCOMPARE(panel.settings.speed, QString("93.75 kHz (-B 8)"));

        QDir("programmer").removeRecursively();
        QDir("Languages").removeRecursively();
        QVERIFY(panel.model.programmerList().isEmpty() && panel.model.languageList().isEmpty());
    }

    void picking_data()
    {
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<QStringList>("record"); // id, arguments, port
        QTest::addColumn<QStringList>("ports");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("usb") << QByteArray(R"({"id": "a", "arguments": "-F", "port": "usb"})")
                             << QStringList {"a", "-F", "usb"} << QStringList {"usb"} << false;
        QTest::newRow("com") << QByteArray(R"({"id": "b", "port": "com"})") << QStringList {"b", "", "/dev/ttyUSB0"}
                             << QStringList {"ttyUSB0 (FT232R)", "ttyACM0"} << true;
        QTest::newRow("upper case") << QByteArray(R"({"id": "c", "port": "USB"})") << QStringList {"c", "", "before"}
                                    << QStringList() << true;
        QTest::newRow("mistyped") << QByteArray(R"({"id": 1, "arguments": [], "port": true})")
                                  << QStringList {"", "", "before"} << QStringList() << true;
    }

    void picking()
    {
        QFETCH(QByteArray, entry);
        QFETCH(QStringList, record);
        QFETCH(QStringList, ports);
        QFETCH(bool, enabled);
        Panel panel;
        panel.folder.write("programmer/New.json", entry);
        panel.build();
        panel.view.port()->addItem("old");
        panel.settings.port = "before";
        panel.view.programmer()->setCurrentText("New");
        QCOMPARE(QStringList({panel.settings.programmer.id, panel.settings.arguments, panel.settings.port}), record);
        QCOMPARE(panel.settings.programmer.name, QString("New"));
        QCOMPARE(panel.portTexts(), ports);
        QCOMPARE(panel.view.port()->isEnabled(), enabled);
        QCOMPARE(panel.boxes.take(), QStringList());
    }

    void brokenEntries()
    {
        Panel panel;
        panel.folder.write("programmer/my.isp.json", "{}");
        panel.folder.write("programmer/Broken.json", "{\"id\": ");
        panel.folder.write("programmer/Folder.json/x", "");
        panel.build();
        panel.view.programmer()->setCurrentText("USBasp");
        panel.view.programmer()->setCurrentText("my"); // listed up to the first dot, looked for by that name
        panel.presenter->loadProgrammer("Broken");
        panel.presenter->loadProgrammer("Folder");
        QCOMPARE(panel.boxes.take(),
                 QStringList({"JSON FILE NOT FOUND: JSON FILE NOT FOUND", "JSON FILE ERROR: JSON FILE ERROR",
                              "Cannot open file: Cannot open file"}));
        QCOMPARE(panel.settings.programmer.name + panel.settings.programmer.id + panel.settings.port,
                 QString("USBaspusbaspusb"));
        QCOMPARE(panel.portTexts(), QStringList {"usb"});
    }

    void portSurvivesARefreshOnly()
    {
        Panel panel;
        panel.build();
        for (const auto& [stored, port] : {std::pair("/dev/ttyACM0", "/dev/ttyACM0"),
                                           {"ttyACM0", "/dev/ttyACM0"}, // found by its name
                                           {"/dev/ttyUSB7", "/dev/ttyUSB7"}}) { // not plugged in: still the stored one
            panel.view.programmer()->setCurrentText("USBasp");
            panel.settings.programmer.name = "Serial";
            panel.settings.port = stored;
            panel.presenter->refreshFromSettings();
            QCOMPARE(panel.settings.port, QString(port));
            QCOMPARE(panel.view.port()->currentText(), port[8] == 'A' ? "ttyACM0" : "ttyUSB0 (FT232R)");
            QVERIFY(panel.view.port()->isEnabled());
        }
        panel.view.port()->setCurrentText("ttyACM0");
        QCOMPARE(panel.settings.port, QString("/dev/ttyACM0"));
        panel.view.programmer()->setCurrentText("USBasp");
        panel.view.programmer()->setCurrentText("Serial");
        QCOMPARE(panel.settings.port, QString("/dev/ttyUSB0"));
    }

    void refresh()
    {
        Panel panel;
        panel.presenter = std::make_unique<SettingsPresenter>(panel.avrdude, panel.model, panel.view);
        panel.settings.language = panel.view.language()->itemText(1);
        panel.settings.programmer.name = panel.view.programmer()->currentText();
        panel.settings.programmer.id = "kept"; // nothing is loaded for the programmer that is shown already
        panel.presenter->refreshFromSettings();
        QCOMPARE(panel.view.language()->currentIndex(), 1);
        QCOMPARE(panel.view.speed()->currentText(), QString("1.5 MHz (-B 0.5)")); // no entry for "-B 4"
        QCOMPARE(panel.settings.speed + panel.settings.programmer.id, QString("-B 4kept"));
        panel.settings.speed = "8 kHz (-B 64)";
        panel.presenter->refreshFromSettings();
        QCOMPARE(panel.view.speed()->currentText(), panel.settings.speed);
        QCOMPARE(panel.boxes.take(), QStringList()); // no restart notice
    }

    void windowsPorts()
    {
        Panel panel;
        panel.build();
        panel.ports = {{"COM1", "", 0, "\\\\.\\COM1"}, {"COM3", "CH340", 0x1a86, "\\\\.\\COM3"}};
        panel.settings.port = "COM3";
        QComboBox comboBox;
        panel.presenter->availableComPortsWin(&comboBox);
        QCOMPARE(comboBox.itemText(0) + comboBox.currentText() + comboBox.currentData().toString(),
                 QString("COM1COM3COM3"));
    }

    void languageNotice_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("notice");
        QTest::addColumn<QString>("lines");
        const QString english = "Please restart the application to apply language changes.";
        QTest::newRow("translated") << "{\"" + english.toUtf8() + "\": \"Neu starten.\"}"
                                    << "Neu starten."
                                    << "";
        QTest::newRow("without the notice") << QByteArray("{}") << english << "";
        QTest::newRow("broken") << QByteArray("{") << english << "Language file parse error12: unterminated object";
        QTest::newRow("missing") << QByteArray() << english
                                 << "Language file not found: .*/Languages/New.json\nSearched in directory: .*package";
    }

    void languageNotice()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, notice);
        QFETCH(QString, lines);
        Panel panel; // languages are listed from the working folder, read from beside the package
        if (!content.isNull())
            panel.folder.write("package/Languages/New.json", content);
        qputenv("APPIMAGE", QDir::current().filePath("package/Korvel.AppImage").toUtf8());
        panel.settings.language = "Old";
        panel.build();
        panel.presenter->refreshFromSettings();
        const LogCapture log;
        panel.view.language()->setCurrentText("New");
        qunsetenv("APPIMAGE");
        QCOMPARE(panel.boxes.take(), QStringList {"Korvel: " + notice});
        QCOMPARE(panel.settings.language, QString("New"));
        const QString logged = log.lines().join('\n');
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(lines)).match(logged).hasMatch(),
                 qPrintable(logged));
    }
};

QTEST_MAIN(tst_Settings)
#include "tst_settings.moc"
