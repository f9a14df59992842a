#include "base/ListComboBox.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"
#include "support/LogCapture.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QtTest>

namespace {

#ifdef Q_OS_WIN
const QString firstPort = "COM1|COM1"; // Windows lists all of them
#else
const QString firstPort = "/dev/ttyUSB0|ttyUSB0 (FT232R)";
#endif

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
    QVector<SerialPort> ports {{"COM1", "Onboard", 0, "\\\\.\\COM1"},
                               {"ttyS0", "", 0x1234, "/dev/ttyS0"},
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
    void findingInAList()
    {
        ListComboBox list(ListComboBox::Width::Any);
        list.addItems({"first", "ATmega1608", "ATmega16", "ATmega328P"});
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QStringList picked;
        connect(&list, &QComboBox::textActivated, this, [&picked](const QString& name) { picked += name; });
        QWheelEvent wheel({5, 5}, list.mapToGlobal(QPointF(5, 5).toPoint()), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list, &wheel);
        QCOMPARE(list.currentText(), QString("first"));
        // Typed at the closed list, at the open one, or found nowhere; the exact name, a part of one, or given up.
        for (const QString row : {"|ATmega16|ATmega16", "open|328p|ATmega328P", "|mega|ATmega1608", "|a~|ATmega1608",
                                  "open|1~|ATmega1608", "|xyz~|ATmega1608", "|3<|ATmega1608", "open|first|first"}) {
            const QStringList parts = row.split('|');
            list.setFocus();
            QWidget* target = &list;
            if (parts[0] == "open") {
                QTest::keyClick(&list, Qt::Key_Down);
                target = list.view();
            }
            for (const QChar key : parts[1]) {
                if (key == '<')
                    QTest::keyClick(target, Qt::Key_Backspace);
                else if (key != '~')
                    QTest::keyClick(target, key.toLatin1());
                target = list.findChild<QLineEdit*>();
            }
            QTest::keyClick(target, parts[1].endsWith('~') ? Qt::Key_Escape : Qt::Key_Return);
            QCOMPARE(row + list.currentText(), row + parts[2]);
        }
        QTest::keyClick(&list, Qt::Key_A, Qt::AltModifier);
        QCOMPARE(list.currentText(), QString("first"));
        QCOMPARE(picked, QStringList({"ATmega16", "ATmega328P", "ATmega1608", "first"}));
    }

    void choosing()
    {
        Panel panel;
        for (const auto& [programmer, expected] :
             {std::pair("Serial", "Serial|stk500v1||*"),
              {"USBasp", "USBasp|usbasp|-F|usb|usb, fixed"},
              {"Serial", "Serial|stk500v1||*"},
              {"none", "Serial|stk500v1||*JSON FILE NOT FOUND: JSON FILE NOT FOUND"},
              {"Broken", "Serial|stk500v1||*JSON FILE ERROR: JSON FILE ERROR"}}) {
            panel.view.programmer()->setCurrentText(programmer);
            const SettingsRecord& now = panel.settings;
            const QString state = now.programmer.name + '|' + now.programmer.id + '|' + now.arguments + '|' + now.port
                + '|' + panel.view.port()->currentText() + (panel.view.port()->isEnabled() ? "" : ", fixed");
            QCOMPARE(panel.view.programmer()->currentText(), now.programmer.name);
            QCOMPARE(state + panel.boxes.take().join('|'), QString(expected).replace('*', firstPort));
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
        Panel panel;
        panel.settings.language = "New";
        for (const auto& [programmer, stored, expected] :
             {std::array {"Serial", "/dev/ttyUSB7", "Serial Serial /dev/ttyUSB7|"}, // not plugged in
#ifdef Q_OS_WIN
              {"Serial", "ttyACM0", "Serial Serial ttyACM0|ttyACM0"},
#else
              {"Serial", "/dev/ttyACM0", "Serial Serial /dev/ttyACM0|ttyACM0"},
              {"Serial", "ttyUSB0", "Serial Serial /dev/ttyUSB0|ttyUSB0 (FT232R)"}, // found by its name
#endif
              {"USBasp", "COM1", "USBasp USBasp usb|usb"},
              {"Sold", "usb", " Sold usb|"}, // not in the catalogue
              {"Sold", "/dev/ttyUSB0", " Sold /dev/ttyUSB0|"}}) {
            panel.settings.programmer.name = programmer;
            panel.settings.port = stored;
            panel.presenter->refreshFromSettings();
            // The speed is in no entry, and is kept nevertheless. No box tells to restart.
            const SettingsRecord& now = panel.settings;
            const QString port = now.port + '|' + panel.view.port()->currentText() + '|';
            QCOMPARE(panel.view.programmer()->currentText() + ' ' + now.programmer.name + ' ' + port
                         + panel.view.language()->currentText() + now.speed + panel.boxes.take().join('|'),
                     expected + QString("|New-B 4"));
        }
    }
};

QTEST_MAIN(tst_Settings)
#include "tst_settings.moc"
