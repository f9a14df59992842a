#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"
#include "support/LogCapture.h"

#include <QComboBox>
#include <QDir>
#include <QRegularExpression>
#include <QtTest>

namespace {

/// The panel over a catalogue of the test's choice, with serial ports that are not there.
struct Panel : Bench {
    Panel()
    {
        folder.write("programmer/USBasp.json", R"({"id": "usbasp", "arguments": "-F", "port": "usb"})");
        folder.write("programmer/Serial.json", R"({"id": "stk500v1", "port": "com"})");
        folder.write("programmer/Upper.json", R"({"id": "c", "port": "USB"})");
        folder.write("programmer/Mistyped.json", R"({"id": 1, "arguments": [], "port": true})");
        folder.write("programmer/my.isp.json", "{}");
        folder.write("programmer/folder.json/x", "");
        folder.write("programmer/Broken.json", "{\"id\": ");
        for (const char* language : {"Old", "New"})
            folder.write(QString("Languages/%1.json").arg(language), "{}");
        settings.programmer.id = "kept";
        settings.language = "Old";
        presenter = std::make_unique<SettingsPresenter>(avrdude, model, view);
    }

    void pick(const QString& programmer) const
    {
        QSignalBlocker(view.programmer()), view.programmer()->setCurrentIndex(-1);
        view.programmer()->setCurrentText(programmer);
    }

    QString record() const { return settings.programmer.id + '|' + settings.arguments + '|' + settings.port; }

    QString portList() const
    {
        QString texts;
        for (int i = 0; i < view.port()->count(); ++i)
            texts += view.port()->itemText(i) + '|';
        return texts + (view.port()->isEnabled() ? "enabled" : "disabled");
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
        QStringList names = panel.model.programmerList();
        names.sort();
        QCOMPARE(names, QStringList({"Broken", "Mistyped", "Serial", "USBasp", "Upper", "my"}));
        QCOMPARE(panel.settings.speed + panel.settings.programmer.id, QString("-B 4kept")); // filling wrote nothing
        QCOMPARE(panel.view.speed()->count(), 12);
        panel.view.speed()->setCurrentIndex(4);
        QCOMPARE(panel.settings.speed, QString("93.75 kHz (-B 8)"));
        QVERIFY(QDir("programmer").removeRecursively() && panel.model.programmerList().isEmpty());
    }

    void picking()
    {
        Panel panel;
        const QString usbPorts = "usb|disabled";
        const QString comPorts = "ttyUSB0 (FT232R)|ttyACM0|enabled";
        panel.pick("USBasp");
        QCOMPARE(panel.record() + panel.portList(), "usbasp|-F|usb" + usbPorts);
        panel.pick("Serial");
        QCOMPARE(panel.record() + panel.portList(), "stk500v1||/dev/ttyUSB0" + comPorts);
        panel.view.port()->setCurrentText("ttyACM0");
        panel.pick("Upper");
        QCOMPARE(panel.record() + panel.portList(), QString("c||/dev/ttyACM0enabled"));
        panel.pick("Mistyped");
        QCOMPARE(panel.record() + panel.portList(), QString("||/dev/ttyACM0enabled"));
        QVERIFY(panel.boxes.take().isEmpty() && panel.settings.programmer.name == "Mistyped");

        panel.pick("USBasp");
        panel.pick("my"); // listed up to the first dot, looked for by that name
        panel.pick("Broken");
        panel.presenter->loadProgrammer("folder");
        QCOMPARE(panel.boxes.take(),
                 QStringList({"JSON FILE NOT FOUND: JSON FILE NOT FOUND", "JSON FILE ERROR: JSON FILE ERROR",
                              "Cannot open file: Cannot open file"}));
        QCOMPARE(panel.record() + panel.portList(), "usbasp|-F|usb" + usbPorts);
    }

    void refresh()
    {
        Panel panel;
        for (const auto& [stored, port] : {std::pair("/dev/ttyACM0", "/dev/ttyACM0"),
                                           {"ttyACM0", "/dev/ttyACM0"}, // found by its name
                                           {"/dev/ttyUSB7", "/dev/ttyUSB7"}}) { // not plugged in: still stored
            panel.pick("USBasp");
            panel.settings.programmer.name = "Serial";
            panel.settings.port = stored;
            panel.presenter->refreshFromSettings();
            QCOMPARE(panel.settings.port, QString(port));
            QCOMPARE(panel.view.port()->currentText(), QString(port[8] == 'A' ? "ttyACM0" : "ttyUSB0 (FT232R)"));
        }
        panel.settings.programmer.id = "kept"; // nothing is loaded for the programmer that is shown already
        panel.settings.speed = "-B 4"; // in no entry
        panel.presenter->refreshFromSettings();
        QCOMPARE(panel.view.speed()->currentText(), QString("1.5 MHz (-B 0.5)"));
        QCOMPARE(panel.settings.speed + panel.settings.programmer.id, QString("-B 4kept"));
        QCOMPARE(panel.view.language()->currentText(), QString("Old"));
        QVERIFY(panel.boxes.take().isEmpty()); // no restart notice

        panel.ports = {{"COM1", "", 0, "\\\\.\\COM1"}, {"COM3", "CH340", 0x1a86, "\\\\.\\COM3"}};
        panel.settings.port = "COM3";
        QComboBox comboBox;
        panel.presenter->availableComPortsWin(&comboBox);
        QCOMPARE(comboBox.itemText(0) + comboBox.currentText() + comboBox.currentData().toString(),
                 QString("COM1COM3COM3"));
    }

    void languageNotice()
    {
        const QString english = "Please restart the application to apply language changes.";
        struct Row {
            QByteArray content;
            QString notice, logged;
        };
        for (const Row& row : {
                 Row {"{\"" + english.toUtf8() + "\": \"Neu starten.\"}", "Neu starten.", ""},
                 {"{}", english, ""},
                 {"{", english, "Language file parse error12: unterminated object"},
                 {{}, english, "Language file not found: .*/Languages/New.json\nSearched in directory: .*package"},
             }) {
            Panel panel; // languages are listed from the working folder, read from beside the package
            if (!row.content.isNull())
                panel.folder.write("package/Languages/New.json", row.content);
            qputenv("APPIMAGE", QDir::current().filePath("package/Korvel.AppImage").toUtf8());
            panel.presenter->refreshFromSettings();
            const LogCapture log;
            panel.view.language()->setCurrentText("New");
            qunsetenv("APPIMAGE");
            QCOMPARE(panel.boxes.take(), QStringList {"Korvel: " + row.notice});
            QCOMPARE(panel.settings.language, QString("New"));
            const QRegularExpression lines(QRegularExpression::anchoredPattern(row.logged));
            QVERIFY2(lines.match(log.lines().join('\n')).hasMatch(), qPrintable(log.lines().join('\n')));
        }
    }
};

QTEST_MAIN(tst_Settings)
#include "tst_settings.moc"
