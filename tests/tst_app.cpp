#include "about/AboutView.h"
#include "app/KorvelApp.h"
#include "app/Startup.h"
#include "app/log/RunBar.h"
#include "fuses/FusesByteView.h"
#include "fuses/FusesTextView.h"
#include "mcu/AttributesView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"
#include "support/Table.h"

#include <cmath>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

const QString file = QStringLiteral("save.json");

class tst_App : public QObject
{
    Q_OBJECT

private slots:
    void settingsRoundTrip()
    {
        const WorkFolder folder;
        SettingsRecord record;
        for (auto flag = m_full.indexOf("false"); flag > 0; flag = m_full.indexOf("false", flag + 1)) {
            const QByteArray expected = QByteArray(m_full).replace(flag, 5, "true");
            // The extra names come in under another key than they go out by.
            folder.write(file, QByteArray(expected).replace("configurationList", "profilesList"));
            QVERIFY(record.loadFromFile(file) && record.saveToFile(file));
            QCOMPARE(folder.read(file), QJsonDocument::fromJson(expected).toJson());
        }
#ifdef Q_OS_LINUX
        // A disk that is full when half of the file is written.
        const QByteArray before = folder.read(file);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit {};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit half {static_cast<rlim_t>(before.size() / 2), limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &half);
        const bool isSaved = record.saveToFile(file);
        setrlimit(RLIMIT_FSIZE, &limit);
        QVERIFY(!isSaved && folder.read(file) == before);
#endif
    }

    void settingsFallbacks()
    {
        const WorkFolder folder;
        folder.write("full.json", m_full);
        SettingsRecord record;
        record.mcuName = record.language = QString();
        QVERIFY(record.saveToFile("fallbacks.json") && folder.read("fallbacks.json").contains("\"speed\": \"-B 4\""));
        folder.write(file,
                     R"({"avrdude": 1, "mcuId": [], "programmer": "x", "fusesBytes": {}, "profiles": {"name": 2}})");
        QVERIFY(record.loadFromFile("full.json") && record.loadFromFile(file) && record.saveToFile(file));
        QCOMPARE(folder.read(file), folder.read("fallbacks.json"));

        // As with a description, values are bytes and bits, and there are eight of these.
        folder.write(file, R"({"fusesBytes": [7, {"defaultValue": 257, "currentValue": -1, "fuseBits": [
            {"defaultBitValue": -2, "currentBitValue": 7}, {}, {}, {}, {}, {}, {}, {}, {"name": "ninth"}]}]})");
        QVERIFY(record.loadFromFile(file));
        const FuseByte& byte = record.fusesBytes.at(1);
        QVERIFY(byte.defaultValue == 1 && byte.currentValue == 0xFF && byte.fuseBits[7].name == "NOT USED");
        QVERIFY(byte.fuseBits[0].defaultBitValue == 1 && byte.fuseBits[0].currentBitValue == 1);
    }

    void damagedSettingsAreKept()
    {
        const WorkFolder folder;
        BoxAnswerer boxes;
        for (const auto& [content, reason, kept, language] :
             {std::tuple(m_full.chopped(4), "unterminated object", "save.damaged-1.json", "English"),
              {QByteArray("[1]"), "not a JSON object", "save.damaged-2.json", "English"}}) {
            folder.write(file, content);
            QCOMPARE(Startup::language(), QString(language));
            KorvelApp window;
            QCOMPARE(boxes.take(), QStringList {"Korvel, warning: Failed to load settings from file: save.json"});
            QCOMPARE(folder.read(kept), content);
            const QString path = QDir::toNativeSeparators(QDir().absoluteFilePath(kept));
            QVERIFY(window.findChild<Avrdude*>()->log().toPlainText().contains(
                QString("save.json (%1)\nThe file is kept as %2.\n").arg(reason, path)));
            window.close();
            QVERIFY(SettingsRecord().loadFromFile(file)); // a new one
        }
        QCOMPARE(folder.read("save.damaged-1.json"), m_full.chopped(4));
#ifdef Q_OS_LINUX
        QVERIFY(QFile::remove(file) && ::mkfifo("save.json", 0600) == 0); // nobody ever writes into it
        KorvelApp();
        QCOMPARE(boxes.take().size() + QDir().entryList({"save.damaged-3*"}).size(), 1);
#endif
    }

    void languageOfTheStart()
    {
        const WorkFolder folder;
        QCOMPARE(Startup::language(), QString("English")); // without a file
        for (const auto& [content, language] : {std::pair(m_full, "Русский"), {"{\"language\": 5}", ""}}) {
            folder.write(file, content);
            QCOMPARE(Startup::language(), QString(language));
        }
    }

    void whatIsInNoListIsNotLost()
    {
        const WorkFolder folder; // without microcontrollers, programmers and languages
        folder.write(file, m_full);
        KorvelApp window;
        QCOMPARE(window.findChild<Avrdude*>()->log().toPlainText().count("Nothing found in the folder "), 2);
        window.close();
        for (const QString key : {"mcuName", "programmer", "arguments", "files", "language"})
            QCOMPARE(QJsonDocument::fromJson(folder.read(file))[key], QJsonDocument::fromJson(m_full)[key]);
    }

    void startShowsWhatIsUsed_data()
    {
        casesFrom("starts.txt", {"settings", "usbasp", "used"});
    }

    void startShowsWhatIsUsed()
    {
        const WorkFolder folder;
        BoxAnswerer boxes;
        folder.write("programmer/USBasp.json", cell("usbasp").toUtf8());
        folder.write("programmer/Mine.json", R"({"id": "avrisp", "port": "com"})");
        if (!cell("settings").isEmpty())
            folder.write(file, cell("settings").toUtf8());
        const KorvelApp window;
        const auto* view = window.findChild<SettingsView*>();
        const SettingsRecord& record = window.findChild<Avrdude*>()->settings();
        QTEST(QString("%1, %2, %3, %4")
                  .arg(view->programmer()->currentText(), view->port()->currentText(), record.programmer.id,
                       record.arguments)
                  .trimmed(),
              "used");
        QCOMPARE(boxes.take(), QStringList());
    }

    void aLoadedProfileIsShown()
    {
        const WorkFolder folder;
        const BoxAnswerer boxes;
        folder.write("programmer/Mine.json", R"({"id": "avrisp", "port": "usb"})");
        for (const QString list : {"mcu/ATtiny85.json", "Languages/Русский.json"})
            folder.write(list, "{}");
        const QByteArray board = QByteArray(m_full).replace("/dev/none", "usb");
        folder.write("profiles/Board.json", board);
        folder.write("profiles/Other.json", QByteArray(board).replace("\"L\"", "\"Other\""));
        const KorvelApp window;
        for (const QString name : {"Other", "Board"})
            emit window.findChild<ProgrammingView*>()->profiles()->textActivated(name);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QStringList shown; // as it is read out to who cannot see it
        for (const auto* list : window.findChildren<QComboBox*>())
            shown += list->accessibleName() + ": " + list->currentText();
        for (const auto* field : window.findChildren<QLineEdit*>())
            shown += field->accessibleName() + ": " + field->text();
        shown.sort();
        QCOMPARE(shown,
                 QStringList({"Calibration Byte: 5A", "Description (optional): Rev. B", "EEPROM: Read: d.eep",
                              "EEPROM: Write: c.eep", "FLASH: Read: b.hex", "FLASH: Write: a.hex", "L ( lfuse ): E2",
                              "Language: Русский", "MCU: ATtiny85", "Port: usb", "Profile name: Name",
                              "Profiles: Board", "Programmer: Mine", "Speed ( New MCU -> 185kHz ): 1 kHz (-B 512)"}));
    }

    void everythingIsFoundByItsOwnName()
    {
        const WorkFolder folder;
        const BoxAnswerer boxes;
        folder.write("mcu/ATtiny85.json", "{}");
        folder.write(file, m_full);
        KorvelApp window;
        window.show();
        auto* tabs = window.findChild<QTabWidget*>();
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            QStringList names;
            for (auto* widget : window.findChildren<QWidget*>()) {
                if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0
                    || widget->inherits("QScrollArea") || widget->focusProxy())
                    continue;
                const QAccessibleInterface* found = QAccessible::queryAccessibleInterface(widget);
                const QString name = found->text(QAccessible::Name);
                QVERIFY2(!name.isEmpty() || !widget->isEnabled(), widget->metaObject()->className());
                names += QString("%1 %2").arg(found->role()).arg(name);
                if (auto* list = qobject_cast<QComboBox*>(widget))
                    QVERIFY(found->text(QAccessible::Description).startsWith(list->currentText()));
            }
            QVERIFY(names.size() > 5);
            QCOMPARE(names.removeDuplicates(), 0);
        }
        QMessageBox box(QMessageBox::NoIcon, "title", "text");
        box.setInformativeText("below");
        QCOMPARE(QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Description), QString("text. below"));
    }

    void aRunIsFollowedAndStopped()
    {
        const WorkFolder folder;
        BoxAnswerer boxes;
        KorvelApp window;
        window.show();
        auto* avrdude = window.findChild<Avrdude*>();
        avrdude->settings().avrdude = STAND_IN;
        const auto* bar = window.findChild<RunBar*>();
        QStringList seen;
        connect(avrdude, &Avrdude::progressed, bar,
                [&](const QString& activity, int percent) { seen += QString("%1 %2").arg(activity).arg(percent); });
        avrdude->execute({}); // over before the bar would come
        QTRY_VERIFY(!avrdude->isBusy());
        QTest::qWait(350);
        QVERIFY(!bar->isVisible());
        folder.write("half", "avrdude: erasing chip\navrdude: writing 9 bytes flash ...\n\nWriting | #############");
        folder.write("rest", "###### | 100% 1.0s\n\navrdude: verifying flash memory against a.hex\n\nReading | ##");
        folder.write("script", "print half\nawait go\nprint rest\nwait 60000");
        avrdude->execute({}, [] { QFAIL("called back"); });
        QTRY_VERIFY(bar->isVisible());
        QCOMPARE(bar->findChild<QProgressBar*>()->text(), QString("Writing 26%"));
        const QSignalSpy turnedAway(avrdude, &Avrdude::turnedAway);
        window.findChild<AttributesView*>()->eraseButton()->click();
        QCOMPARE(turnedAway.count(), 1);
        folder.write("go", "");
        QTRY_COMPARE(bar->findChild<QProgressBar*>()->text(), QString("Verifying 4%"));
        QCOMPARE(bar->findChild<QProgressBar*>()->accessibleName(), QString("Verifying"));
        bar->findChild<QPushButton*>()->click();
        QCOMPARE(boxes.wait(),
                 QStringList {"Korvel, warning: avrdude was stopped. + Writing had begun: the chip may hold "
                              "a part of the file."});
        QVERIFY(!bar->isVisible() && !avrdude->isBusy());
        QCOMPARE(folder.runs().size(), 2);
    }

    void closingByHand()
    {
        const WorkFolder folder;
        folder.write("script", "err busy\nawait go");
        BoxAnswerer boxes;
        KorvelApp window;
        auto* avrdude = window.findChild<Avrdude*>();
        avrdude->settings().avrdude = STAND_IN;
        window.show();
        const auto close = [&window] {
            QCloseEvent event;
            QSpontaneKeyEvent::setSpontaneous(&event); // from the system
            qApp->notify(&window, &event);
            return event.isAccepted();
        };
        const QString question = "Korvel, by default No: avrdude is still working on the chip.";
        QVERIFY(close() && QFile::remove(file)); // nothing runs
        avrdude->execute({});
        QTRY_VERIFY(avrdude->log().toPlainText().contains("busy"));
        for (const auto& [answer, isOpen] : {std::pair(QMessageBox::No, true), {QMessageBox::Yes, false}}) {
            boxes.button = answer;
            QVERIFY(!close() && QFile::remove(file)); // saved first
            QVERIFY(boxes.wait().join('|').startsWith(question));
            QCOMPARE(window.isVisible(), isOpen);
        }
        boxes.onOpen = [&folder] {
            folder.write("go", "");
            QTRY_VERIFY(!QApplication::activeModalWidget()); // avrdude was quicker than the answer
        };
        QVERIFY(!close() && boxes.wait().join('|').startsWith(question));
        QTRY_VERIFY(!avrdude->isBusy());
        boxes.take();
        avrdude->settings().avrdude = "no such program";
        avrdude->execute({});
        QVERIFY(avrdude->isBusy() && close()); // nothing runs, now and for good
        QCOMPARE(boxes.take(), QStringList());
    }

    void whatFollowsTheClosingOfABox_data()
    {
        casesFrom("strays.txt", {"events", "heard"});
    }

    void whatFollowsTheClosingOfABox()
    {
        const WorkFolder folder;
        KorvelApp window;
        window.show();
        QLineEdit under(&window);
        QMessageBox box(&window);
        const auto send = [&](QEvent&& event) {
            QSpontaneKeyEvent::setSpontaneous(&event);
            QWidget* receiver = &under;
            if (box.isVisible())
                receiver = &box;
            return qApp->notify(receiver, &event) && event.isAccepted();
        };
        struct Ears : QObject { // what gets through to the field, and the presses that get through to the box
            bool eventFilter(QObject* object, QEvent* event) override
            {
                const auto type = event->type();
                if (qobject_cast<QMessageBox*>(object)) {
                    heard += type == QEvent::MouseButtonPress ? QString("box:%1 ").arg(number) : QString();
                    return false;
                }
                if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
                    || type == QEvent::MouseButtonDblClick || type == QEvent::KeyPress)
                    heard += QString::number(number) + ' ';
                return true;
            }
            int number = 0;
            QString heard;
        } ears;
        under.installEventFilter(&ears);
        box.installEventFilter(&ears);
        for (const QString& word : cell("events").split(' ')) {
            ++ears.number;
            const QStringList parts = word.split('@'); // what, when and where
            const ulong time = parts.value(1).toULong();
            const QPointF point(parts.value(2).toInt(), parts.value(2).toInt());
            static const QHash<QString, QEvent::Type> types {{"press", QEvent::MouseButtonPress},
                                                             {"double", QEvent::MouseButtonDblClick},
                                                             {"release", QEvent::MouseButtonRelease},
                                                             {"down", QEvent::KeyPress},
                                                             {"repeat", QEvent::KeyPress},
                                                             {"up", QEvent::KeyRelease},
                                                             {"other", QEvent::KeyRelease},
                                                             {"letter", QEvent::KeyPress},
                                                             {"shortcut", QEvent::ShortcutOverride}};
            const QEvent::Type type = types.value(parts[0].section('-', 0, 0));
            if (parts[0] == "show") {
                box.show();
            } else if (parts[0] == "close") {
                box.accept();
            } else if (parts[0] == "begin") {
                emit window.findChild<Profiles*>()->writePressed();
            } else if (type <= QEvent::MouseButtonDblClick) {
                QMouseEvent event(type, point, point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
                event.setTimestamp(time);
                send(std::move(event));
            } else {
                static const QHash<QString, Qt::Key> codes {{"other", Qt::Key_Alt}, {"letter", Qt::Key_A}};
                const auto code = codes.value(parts[0], Qt::Key_Return);
                QKeyEvent event(type, code, Qt::NoModifier, {}, word.contains("repeat"));
                event.setTimestamp(time);
                event.ignore();
                if (send(std::move(event)) && type == QEvent::ShortcutOverride)
                    ears.heard += "taken ";
            }
        }
        QCOMPARE(ears.heard.trimmed(), cell("heard"));
    }

    void everythingFollowsTheDesktop()
    {
        const WorkFolder folder;
        folder.copy({"mcu/ATmega16.json"});
        BoxAnswerer boxes;
        KorvelApp window;
        emit window.findChild<Avrdude*>()->partChosen("ATmega16");
        const auto* about = window.findChild<AboutView*>(); // stays light
        const auto faintest = [](const QWidget& legendOrBit) { // of what is disabled, as WCAG counts contrast
            const auto luminance = [](const QColor& color) {
                const auto linear = [](double part) {
                    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
                };
                return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
            };
            const double ground = luminance(legendOrBit.palette().color(QPalette::Window)) + 0.05;
            const double text = luminance(legendOrBit.palette().color(QPalette::Disabled, QPalette::WindowText)) + 0.05;
            return std::max(ground, text) / std::min(ground, text);
        };
        const QPalette light = QApplication::palette();
        for (const QPalette& desktop : {QPalette(QColor(0x31363b)), light}) {
            QApplication::setPalette(desktop);
            QCoreApplication::processEvents(); // Qt 6 tells of it only then
            QStringList left;
            for (const QWidget* widget : window.findChildren<QWidget*>()) {
                for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
                    const bool follows = widget->palette().color(QPalette::Active, role) == desktop.color(role);
                    if (!follows && widget != about && !about->isAncestorOf(widget))
                        left += widget->metaObject()->className();
                }
            }
            QCOMPARE(left, QStringList());
            QVERIFY(faintest(*window.findChild<FusesTextView*>()) > 4.5);
            QVERIFY(faintest(*window.findChild<FusesByteView*>()->fusesBit()[0]) > 3);
        }
    }

    void withKeysAlone()
    {
        const WorkFolder folder;
        folder.copy({"mcu/ATmega16.json", "mcu/ATtiny9.json"});
        BoxAnswerer boxes;
        KorvelApp window;
        for (const QString part : {"ATmega16", "ATtiny9"}) // the editors are made anew for each
            emit window.findChild<Avrdude*>()->partChosen(part);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto press = [&window](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            QTest::keyClick(window.focusWidget(), Qt::Key(key), modifiers);
        };
        const auto here = [&window] { // in one word
            const auto* button = qobject_cast<QAbstractButton*>(window.focusWidget());
            const QString name = window.focusWidget()->accessibleName();
            return (button && name.isEmpty() ? button->text() : name).section(' ', 0, 0);
        };
        press(Qt::Key_2, Qt::AltModifier);
        QStringList forth;
        QStringList back;
        do {
            press(Qt::Key_Tab);
            forth += here();
        } while (!here().isEmpty());
        do {
            back.prepend(here());
            press(Qt::Key_Backtab, Qt::ShiftModifier);
        } while (!here().isEmpty()); // as it is on the tab bar
        QCOMPARE(forth.join('|'),
                 QString("CKOUT|WDTON|RSTDISBL|Fuse|NVLB2|NVLB1|Lock|Write|Verify|Read|Default|"
                         "Programmer|Port|Speed|Language|avrdude|Website|Telegram|YouTube|"));
        QCOMPARE(back, forth);

        for (int i = 0; i < 4; ++i)
            press(Qt::Key_Tab);
        press(Qt::Key_1, Qt::AltModifier); // types a digit into the byte
        press(Qt::Key_Return); // does nothing there
        QCOMPARE(here(), QString("Fuse"));
        for (int i = 0; i < 7; ++i)
            press(Qt::Key_Tab);
        boxes.take();
        for (const bool isRepeat : {false, true, true}) { // held down on "Default"
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", isRepeat);
            QSpontaneKeyEvent::setSpontaneous(&key);
            qApp->notify(window.focusWidget(), &key);
        }
        QCOMPARE(boxes.take().size(), 1);

        QApplication::setActiveWindow(&window);
        QString title;
        QTimer::singleShot(100, &window, [&title] {
            title = QApplication::activeModalWidget()->windowTitle();
            QApplication::activeModalWidget()->close();
        });
        window.findChild<AvrdudeMessage*>()->setFocus();
        press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(title, QString("SELECT FLASH FILE FOR WRITING"));
        QCOMPARE(here(), QString("SELECT"));
    }

    void closingDuringARun()
    {
        const WorkFolder folder;
        folder.write("script", "err busy\nwait 60000");
        BoxAnswerer boxes;
        {
            KorvelApp window;
            auto* avrdude = window.findChild<Avrdude*>();
            avrdude->settings().avrdude = STAND_IN;
            window.findChild<QTabWidget*>()->setCurrentIndex(2); // Profiles
            QVERIFY(!window.findChild<SelectView*>()->eeprom()->isEnabled()); // there is no file
            avrdude->execute({}, [] { QFAIL("called back"); });
            QTRY_VERIFY(avrdude->log().toPlainText().contains("busy"));
            QVERIFY(QApplication::overrideCursor());
            QVERIFY(QDir().mkdir(file)); // in the way of the settings
#ifdef Q_OS_LINUX
            window.show();
            Startup::closeOnRequest();
            QTimer::singleShot(0, this, [] { std::raise(SIGTERM); });
            QDialog(&window).exec(); // open until the signal
            QVERIFY(!window.isVisible());
            QCOMPARE(boxes.take(), QStringList()); // nobody is there to read one
#endif
            window.show(); // Qt 6 closes no window twice
            QVERIFY(window.close());
        }
        QCOMPARE(boxes.take(), QStringList {"Korvel, warning: Failed to save settings to file: save.json"});
    }

private:
    /// Every key holds something else than any default or fallback, but for profiles' flags, which are all false.
    const QByteArray m_full = WorkFolder::read(TEST_FOLDER "/data/settings.json");
};

QTEST_MAIN(tst_App)
#include "tst_app.moc"
