#include "base/ListComboBox.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"
#include "support/Table.h"

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
    void findingInAList_data() { casesFrom("searches.txt", {"typed", "keys", "picked", "search"}); }

    void findingInAList()
    {
        QFETCH(QString, typed);
        QFETCH(QString, keys);
        ListComboBox list(ListComboBox::Width::Any);
        list.addItems({"first", "ATmega1608", "ATmega16", "ATmega328P"});
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QString picked;
        connect(&list, &QComboBox::textActivated, this, [&picked](const QString& name) { picked += name; });
        list.setFocus();
        QWidget* target = &list;
        for (const QChar letter : typed) {
            QTest::keyClick(target, letter.toLatin1());
            target = list.findChild<QLineEdit*>();
        }
        for (const QString& key : keys.split(','))
            QTest::keySequence(target, QKeySequence(key));
        QTEST(picked, "picked");
        QCOMPARE(list.currentText(), picked.isEmpty() ? "first" : picked);
        QTEST(QString(target->isVisible() ? "open" : "over"), "search");
    }

    void aListChangesByAFinishedChoiceAlone()
    {
        ListComboBox list(ListComboBox::Width::Any);
        list.addItems({"first", "ATmega1608"});
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        const QPoint inside(5, 5);
        QWheelEvent wheel(inside, list.mapToGlobal(inside), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list, &wheel);
        QVERIFY(!wheel.isAccepted()); // so the page scrolls
        QTest::keyClick(&list, Qt::Key_A, Qt::AltModifier); // a shortcut of the window's, not "ATmega1608"
        QCOMPARE(list.currentText(), QString("first"));
        QHelpEvent hover(QEvent::ToolTip, inside, inside);
        QCoreApplication::sendEvent(&list, &hover);
        QCOMPARE(list.toolTip(), QString("first")); // a long one is not shown whole
        QTest::keyClick(&list, Qt::Key_Space);
        QVERIFY(list.view()->isVisible());
        QTest::keyClick(list.view(), Qt::Key_3); // begins a search too
        QCOMPARE(list.findChild<QLineEdit*>()->text(), QString("3"));
        QVERIFY(!list.view()->isVisible());
    }

    void bitClocks()
    {
        const Panel panel;
        QCOMPARE(panel.view.speed()->count(), 12);
        for (int i = 0; i < 12; ++i) {
            panel.view.speed()->setCurrentIndex(-1); // the first is a choice too
            panel.view.speed()->setCurrentIndex(i);
            const double option = 0.5 * (1 << i);
            const QStringList words = panel.settings.speed.split(' '); // of "375 kHz (-B 2)"
            // Its period in microseconds times its frequency in kHz is 512 to 750 for all of them.
            const double product = option * words[0].toDouble() * (words[1] == "MHz" ? 1000 : 1);
            QCOMPARE(words.mid(2), QStringList({"(-B", QString::number(option) + ')'}));
            QVERIFY2(product > 500 && product < 760, qPrintable(words.join(' '))); // a neighbour's: half or twice that
        }
    }

    void choosing()
    {
        Panel panel;
        for (const auto& [programmer, expected] :
             {std::pair("USBasp", "USBasp|usbasp|-F|usb|usb, fixed|"),
              {"Serial", "Serial|stk500v1||*|"}, // "-F" is gone; * stands for the first port, stored and shown
              {"none", "Serial|stk500v1||*|JSON FILE NOT FOUND: JSON FILE NOT FOUND"}, // all but the box stays
              {"Broken", "Serial|stk500v1||*|JSON FILE ERROR: JSON FILE ERROR"}}) {
            panel.view.programmer()->setCurrentText(programmer);
            const SettingsRecord& now = panel.settings;
            const QString state = now.programmer.name + '|' + now.programmer.id + '|' + now.arguments + '|' + now.port
                + '|' + panel.view.port()->currentText() + (panel.view.port()->isEnabled() ? "|" : ", fixed|");
            QCOMPARE(panel.view.programmer()->currentText(), now.programmer.name);
            QCOMPARE(state + panel.boxes.take().join('|'), QString(expected).replace('*', firstPort));
        }

        const QString english = "Please restart the application to apply language changes.";
        qputenv("APPIMAGE", QDir::current().filePath("package/Korvel.AppImage").toUtf8());
        for (const QString& content : {"{\"" + english + "\": \"Neu starten.\"}", QString("{}"), QString("{")}) {
            panel.folder.write("package/Languages/Deutsch.json", content.toUtf8());
            panel.presenter->setLanguage("Deutsch");
        }
        qunsetenv("APPIMAGE");
        panel.view.language()->setCurrentText("New"); // listed from the working folder, looked for beside the package
        QCOMPARE(panel.boxes.take().join('|').replace(english, "*"),
                 QString("Korvel: Neu starten.|Korvel: *|Korvel: *|Korvel: *"));
        QCOMPARE(panel.settings.language, QString("New"));
    }

    void refresh()
    {
        Panel panel;
        panel.settings.language = "New";
        for (const auto& [programmer, stored, expected] :
             {std::array {"Serial", "/dev/ttyUSB7", "Serial|Serial|/dev/ttyUSB7|"}, // not plugged in
#ifdef Q_OS_WIN
              {"Serial", "ttyACM0", "Serial|Serial|ttyACM0|ttyACM0"},
#else
              {"Serial", "/dev/ttyACM0", "Serial|Serial|/dev/ttyACM0|ttyACM0"},
              {"Serial", "ttyUSB0", "Serial|Serial|/dev/ttyUSB0|ttyUSB0 (FT232R)"}, // found by its name
#endif
              {"Sold", "/dev/ttyUSB0", "|Sold|/dev/ttyUSB0|"}, // not in the catalogue: is offered no ports
              {"USBasp", "COM1", "USBasp|USBasp|usb|usb"}}) {
            panel.settings.programmer.name = programmer;
            panel.settings.port = stored;
            panel.presenter->refreshFromSettings();
            const SettingsRecord& now = panel.settings; // programmer shown|stored|port stored|shown
            const QString port = "|" + now.port + '|' + panel.view.port()->currentText();
            QCOMPARE(panel.view.programmer()->currentText() + '|' + now.programmer.name + port, QString(expected));
            QCOMPARE(now.speed, QString("-B 4")); // a new record's, which the list does not have
            QCOMPARE(panel.view.language()->currentText(), QString("New"));
            QCOMPARE(panel.boxes.take(), QStringList()); // none tells to restart
        }
    }
};

QTEST_MAIN(tst_Settings)
#include "tst_settings.moc"
