#include "app/KorvelApp.h"
#include "app/Startup.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"

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

        folder.write(file, R"({"fusesBytes": [7, {"fuseBits": [{}, {}, {}, {}, {}, {}, {}, {}, {"name": "ninth"}]}]})");
        QVERIFY(record.loadFromFile(file) && record.fusesBytes.at(1).fuseBits[7].name == "NOT USED");
    }

    void startWithStoredSettings()
    {
        const WorkFolder folder;
        BoxAnswerer boxes;
        QStringList told {Startup::language()};
        QString log;
        for (const QByteArray& content : QByteArrayList {m_full.chopped(4), "[1]", "{\"language\": 5}", m_full}) {
            folder.write(file, content);
            told += Startup::language();
            KorvelApp window;
            log += window.findChild<Avrdude*>()->log().toPlainText().remove(QDir::toNativeSeparators(QDir::currentPath() + '/'))
                + '\n';
            window.close();
            told += boxes.take();
        }
        const QString failed = "Korvel: Failed to load settings from file: save.json";
        QCOMPARE(told, QStringList({"English", "English", failed, "English", failed, "", "Русский"}));
        // What could not be read is kept, each under a name of its own.
        QCOMPARE(folder.read("save.damaged-1.json") + folder.read("save.damaged-2.json"), m_full.chopped(4) + "[1]");
        const QString empty = "Nothing found in the folder mcu.\nNothing found in the folder programmer.\n";
        const QString kept = failed.mid(8) + " (%2)\nThe file is kept as save.damaged-%1.json.\n";
        QCOMPARE(log,
                 empty + kept.arg(1).arg("unterminated object") + empty + kept.arg(2).arg("no JSON object") + empty
                     + empty);
        // No catalogue here: the stored programmer is in no list, and still nothing of it is lost.
        for (const QString key : {"mcuName", "programmer", "arguments", "files", "language"})
            QCOMPARE(QJsonDocument::fromJson(folder.read(file))[key], QJsonDocument::fromJson(m_full)[key]);
#ifdef Q_OS_LINUX
        QVERIFY(QFile::remove(file) && ::mkfifo("save.json", 0600) == 0); // nobody ever writes into it
        KorvelApp();
        QCOMPARE(boxes.take() + QDir().entryList({"save.damaged-3*"}), QStringList {failed});
#endif
    }

    void startShowsWhatIsUsed()
    {
        const WorkFolder folder;
        BoxAnswerer boxes;
        folder.write("programmer/USBasp.json", R"({"id": "usbasp", "arguments": "-F", "port": "usb"})"); // edited
        folder.write("programmer/Mine.json", R"({"id": "avrisp", "port": "com"})");
        QStringList seen;
        for (const QByteArray& settings : {QByteArray(), QByteArray("{}"), m_full}) {
            if (!settings.isEmpty())
                folder.write(file, settings);
            const KorvelApp window;
            const SettingsRecord& record = window.findChild<Avrdude*>()->settings();
            for (int i = 0; i < 2; ++i) // programmer and port
                seen += window.findChild<SettingsView*>()->findChildren<QComboBox*>()[i]->currentText();
            seen += {record.programmer.id, record.arguments};
            folder.write("programmer/USBasp.json", settings.isEmpty() ? R"({"port": "usb"})" : "{"); // broken
        }
        QCOMPARE((seen + boxes.take()).join('|'), QString("USBasp|usb|usbasp|-F|USBasp|usb|||Mine||avrisp|"));
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
#else
            QVERIFY(window.close());
#endif
        }
        QCOMPARE(boxes.take(), QStringList {"Korvel: Failed to save settings to file: save.json"});
    }

private:
    /// Every key holds something else than any default or fallback, but for profiles' flags, which are all false.
    const QByteArray m_full = WorkFolder::read(TEST_FOLDER "/data/settings.json");
};

QTEST_MAIN(tst_App)
#include "tst_app.moc"
