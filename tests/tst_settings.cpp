#include "base/JsonFile.h"
#include "base/ListComboBox.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"
#include "support/Table.h"

namespace {

#ifdef Q_OS_WIN
const QString device = "COM1", listed = device, dev = ""; // Windows lists all of them
#else
const QString device = "/dev/ttyUSB0", listed = "ttyUSB0 (FT232R)", dev = "/dev/";
#endif

/// The panel over a catalogue of the test's choice, with serial ports that are not there.
struct Panel : Bench {
    Panel()
    {
        folder.write("programmer/USBasp.json", R"({"id": "usbasp", "arguments": "-F", "port": "usb"})");
        folder.write("programmer/Serial.json", R"({"id": "stk500v1", "port": "com"})");
        folder.write("programmer/Broken.json", "{\"id\": ");
        folder.write("Languages/New.json", "{}");
        for (QComboBox* list : {static_cast<QComboBox*>(view.programmer()), view.language()})
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
    void findingInAList_data() { casesFrom("searches.txt", {"list", "typed", "keys", "picked", "search"}); }

    void findingInAList()
    {
        ListComboBox list(ListComboBox::Width::Any);
        const QString folder = cell("list").isEmpty() ? QString() : QStringLiteral(DATA_FOLDER "/") + cell("list");
        const QStringList names = jsonBaseNames(folder);
        list.addItems(folder.isNull() ? QStringList {"first", "ATmega1608", "ATmega16", "ATmega328P"}
                                      : QStringList {"first"} + names);
        list.setOtherWords([&folder](const QString& name) { return otherNames(folder, name); });
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QString picked;
        connect(&list, &QComboBox::textActivated, &list, [&picked](const QString& name) { picked += name; });
        int changes = 0;
        connect(&list, &QComboBox::currentTextChanged, &list, [&changes] { ++changes; });
        list.setFocus();
        QWidget* target = &list;
        for (const QChar letter : cell("typed")) {
            QTest::keyClick(target, letter.toLatin1());
            target = list.findChild<QLineEdit*>();
        }
        for (const QString& key : cell("keys").split(','))
            QTest::keySequence(target, QKeySequence(key));
        QCOMPARE(folder.isNull() ? picked : picked.left(cell("picked").size()), cell("picked"));
        QCOMPARE(list.currentText(), picked.isEmpty() ? "first" : picked);
        QCOMPARE(changes, picked.isEmpty() ? 0 : 1);
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
        for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}) {
            QTest::keyClick(&list, key);
            QVERIFY2(list.view()->isVisible(), qPrintable(QKeySequence(key).toString()));
            list.hidePopup();
        }
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

    void pickingAndShowing_data()
    {
        casesFrom("programmers.txt", {"steps", "shown", "programmer", "id", "arguments", "port", "listed", "told"});
    }

    void pickingAndShowing()
    {
        const auto text = [](const char* column) {
            return cell(column).replace("{device}", device).replace("{listed}", listed).replace("{dev}", dev);
        };
        Panel panel;
        SettingsRecord& record = panel.settings;
        record.language = "New";
        for (const QString& step : text("steps").split(", ")) {
            const QStringList words = step.split(' ');
            if (words[0] == "pick") {
                panel.view.programmer()->setCurrentText(words[1]);
                continue;
            }
            record.programmer = {words[1], "other"};
            record.port = words[2];
            record.arguments = words.mid(3).join(' ');
            ++record.generation;
            panel.presenter->refreshFromSettings();
            QCOMPARE(panel.view.language()->currentText(), QString("New"));
        }
        QCOMPARE(panel.view.programmer()->currentText(), text("shown"));
        QCOMPARE(record.programmer.name, text("programmer"));
        QCOMPARE(record.programmer.id, text("id"));
        QCOMPARE(record.arguments, text("arguments"));
        QCOMPARE(record.port, text("port"));
        QCOMPARE(panel.view.port()->currentText() + (panel.view.port()->isEnabled() ? "" : " (fixed)"), text("listed"));
        QCOMPARE(panel.boxes.take().join(", "), text("told")); // none tells to restart
        QCOMPARE(record.speed, QString("-B 4")); // a new record's, which the list does not have
    }

    void aPortThatIsTheFormerProgrammersIsAskedAbout()
    {
        const QString question = "Korvel, by default No: No serial port was found for Serial: the port is still usb. + "
                                 "Do you want to use it all "
                                 "the same?";
        for (const auto& [answer, arguments, asked, isRun] : {std::tuple(QMessageBox::No, "", question, false),
                                                              {QMessageBox::Yes, "", question, true},
                                                              {QMessageBox::No, "-F -Pnet:x", QString(), true}}) {
            Panel panel;
            panel.ports.clear();
            panel.boxes.button = answer;
            panel.view.programmer()->setCurrentText("Serial");
            panel.settings.arguments = arguments;
            for (int press = 0; press < 2; ++press)
                panel.run("");
            QCOMPARE(panel.boxes.take().join(QString()), asked.repeated(isRun ? 1 : 2));
            QCOMPARE(panel.requests().size(), isRun ? 2 : 0); // who said yes is not asked again
        }
        Panel panel;
        panel.ports.clear();
        panel.view.programmer()->setCurrentText("Serial");
        QVERIFY(panel.settings.saveToFile("settings") && panel.settings.loadFromFile("settings"));
        panel.presenter->refreshFromSettings(); // with the port that is stored
        panel.run("");
        QCOMPARE(panel.boxes.take(), QStringList());
    }

    void aNewLanguageIsAnnounced_data() { casesFrom("notices.txt", {"file", "content", "told"}); }

    void aNewLanguageIsAnnounced()
    {
        Panel panel;
        qputenv("APPIMAGE", QDir::current().filePath("package/Korvel.AppImage").toUtf8());
        panel.folder.write("package/Languages/" + cell("file"), cell("content").toUtf8());
        panel.view.language()->setCurrentText("New"); // listed from the working folder
        QCOMPARE(panel.boxes.take(), QStringList {cell("told")});
        QCOMPARE(panel.settings.language, QString("New"));
    }

    void cleanup() { qunsetenv("APPIMAGE"); }
};

QTEST_MAIN(tst_Settings)
#include "tst_settings.moc"
