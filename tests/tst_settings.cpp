#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"
#include "support/LogCapture.h"

#include <QComboBox>
#include <QDir>
#include <QtTest>

namespace {

/// The panel over a catalogue of the test's choice, with serial ports that are not there.
struct Panel : Bench {
    Panel()
    {
        folder.write("programmer/USBasp.json", R"({"id": "usbasp", "arguments": "-F", "port": "usb"})");
        folder.write("programmer/Serial.json", R"({"id": "stk500v1", "port": "com"})");
        folder.write("programmer/Broken.json", "{\"id\": ");
        folder.write("Languages/New.json", "{}");
        for (QComboBox* list : {view.programmer(), view.language()})
            list->addItem("none"); // stands first, in whatever order the folders are read
        presenter = std::make_unique<SettingsPresenter>(avrdude, model, view);
    }

    SettingsRecord& settings = avrdude.settings();
    QVector<SerialPort> ports {{"ttyS0", "", 0x1234, "/dev/ttyS0"},
                               {"ttyAMA0", "Onboard", 0, "/dev/ttyAMA0"},
                               {"ttyUSB0", "FT232R", 0x0403, "/dev/ttyUSB0"},
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
    void choosing()
    {
        Panel panel;
        for (const auto& [programmer, expected] :
             {std::pair("Serial", "Serial|stk500v1||/dev/ttyUSB0|ttyUSB0 (FT232R)"),
              {"USBasp", "USBasp|usbasp|-F|usb|usb, fixed"},
              {"Serial", "Serial|stk500v1||/dev/ttyUSB0|ttyUSB0 (FT232R)"},
              {"none", "Serial|stk500v1||/dev/ttyUSB0|ttyUSB0 (FT232R)JSON FILE NOT FOUND: JSON FILE NOT FOUND"},
              {"Broken", "Serial|stk500v1||/dev/ttyUSB0|ttyUSB0 (FT232R)JSON FILE ERROR: JSON FILE ERROR"}}) {
            panel.view.programmer()->setCurrentText(programmer);
            const SettingsRecord& now = panel.settings;
            const QString state = now.programmer.name + '|' + now.programmer.id + '|' + now.arguments + '|' + now.port
                + '|' + panel.view.port()->currentText() + (panel.view.port()->isEnabled() ? "" : ", fixed");
            QCOMPARE(state + panel.boxes.take().join('|'), QString(expected));
        }

        const LogCapture log;
        const QString english = "Please restart the application to apply language changes.";
        qputenv("APPIMAGE", QDir::current().filePath("package/Korvel.AppImage").toUtf8());
        for (const QString& content : {"{\"" + english + "\": \"Neu starten.\"}", QString("{}"), QString("{")}) {
            panel.folder.write("package/Languages/Deutsch.json", content.toUtf8());
            panel.presenter->setLanguage("Deutsch");
        }
        panel.view.language()->setCurrentText("New"); // listed from the working folder, looked for beside the package
        QCOMPARE(panel.boxes.take().join('|').replace(english, "*"),
                 QString("Korvel: Neu starten.|Korvel: *|Korvel: *|Korvel: *"));
        QCOMPARE(log.lines().value(0), QString("Language file parse error12: unterminated object"));
        panel.view.speed()->setCurrentIndex(4);
        QCOMPARE(panel.settings.language + panel.settings.speed, QString("New93.75 kHz (-B 8)"));
    }

    void refresh()
    {
        for (const auto& [stored, expected] : {std::pair("/dev/ttyACM0", "/dev/ttyACM0|ttyACM0"),
                                               {"ttyACM0", "/dev/ttyACM0|ttyACM0"}, // found by its name
                                               {"/dev/ttyUSB7", "/dev/ttyUSB7|ttyUSB0 (FT232R)"}}) { // not plugged in
            Panel panel;
            panel.settings.programmer.name = "Serial";
            panel.settings.port = stored;
            panel.settings.language = "New";
            panel.presenter->refreshFromSettings();
            // The speed is in no entry, and is kept nevertheless. No box tells to restart.
            const QString shown = panel.view.port()->currentText() + '|' + panel.view.language()->currentText();
            QCOMPARE(panel.settings.port + '|' + shown + panel.settings.speed + panel.boxes.take().join('|'),
                     expected + QString("|New-B 4"));
        }
    }
};

QTEST_MAIN(tst_Settings)
#include "tst_settings.moc"
