#include "about/SocialLinksWidget.h"
#include "app/KorvelApp.h"
#include "app/Startup.h"
#include "avrdude/Avrdude.h"
#include "profiles/SelectView.h"
#include "support/BoxAnswerer.h"
#include "support/LogCapture.h"
#include "support/WorkFolder.h"

#include <QCheckBox>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTabWidget>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

const QString file = QStringLiteral("save.json");

/// Every key holds something else than any default or fallback.
const QByteArray full =
    QByteArray(R"json({
    "avrdude": "/opt/avrdude", "mcuName": "ATtiny85", "mcuId": "t85", "signature": "1E 93 0B", "callByte": "5A",
    "language": "Русский", "arguments": "-v", "fileNamesReading": ["lfuse.hex", "lock.hex"],
    "files": {
        "flashWrite": "a.hex", "flashRead": "b.hex", "eepromWrite": "c.eep", "eepromRead": "d.eep",
        "cmdFlashWrite": ["-U", "flash:w:a.hex:i"], "cmdEepromWrite": ["-U", "eeprom:w:c.eep:i"], "cmdFuses": ["-Ux"]
    },
    "programmer": { "name": "Mine", "id": "stk500v1", "port": "/dev/ttyUSB0", "speed": "1 kHz (-B 512)" },
    "fusesBytes": [{
        "name": "Low Fuse", "id": "lfuse", "defaultValue": 98, "currentValue": 226,
        "fuseBits": [BIT, BIT, BIT, BIT, BIT, BIT, BIT, BIT]
    }],
    "profiles": {
        "flashCheck": false, "eepromCheck": false, "fusesCheck": false,
        "flashEnable": false, "eepromEnable": false, "fusesEnable": false,
        "name": "Name", "description": "Rev. B", "profilesList": ["one", "two"], "currentlyProfilesList": "Board"
    }
})json")
        .replace("BIT",
                 R"({"bitNumber": 5, "enabled": true, "name": "B", "defaultBitValue": 1, "currentBitValue": 1})");

QJsonObject object(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

class tst_App : public QObject
{
    Q_OBJECT

private slots:
    void settingsRoundTrip()
    {
        const WorkFolder folder;
        folder.write(file, full);
        SettingsRecord record;
        QVERIFY(record.loadFromFile(file));
        QCOMPARE(record.configurationList, QStringList({"one", "two"}));
        QFile old(file); // whoever holds the old file open keeps it: the new one takes its place
        QVERIFY(old.open(QIODevice::ReadOnly));
        QVERIFY(record.saveToFile(file));
        QCOMPARE(old.readAll(), full);
        QCOMPARE(QDir().entryList(QDir::Files), QStringList {file});

        // The extra names go out under another key than they come in by.
        const QByteArray written = folder.read(file).replace("configurationList", "profilesList");
        QCOMPARE(QJsonDocument(object(written)).toJson(), QJsonDocument(object(full)).toJson());

        QVERIFY(record.loadFromFile(file) && record.configurationList.isEmpty());
        QVERIFY(!record.saveToFile("no-such-folder/save.json"));
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

    void settingsFlags()
    {
        const WorkFolder folder;
        for (const QByteArray flag :
             {"flashCheck", "eepromCheck", "fusesCheck", "flashEnable", "eepromEnable", "fusesEnable"}) {
            folder.write(file, QByteArray(full).replace(flag + "\": false", flag + "\": true"));
            SettingsRecord record;
            QVERIFY(record.loadFromFile(file) && record.saveToFile(file));
            QCOMPARE(folder.read(file).count("true"), 9); // this one, and the fuse bits'
            QVERIFY2(folder.read(file).contains(flag + "\": true"), flag);
        }
    }

    void settingsFallbacks()
    {
        const WorkFolder folder;
        folder.write("empty.json", "{}");
        folder.write("wrong.json", R"({
            "avrdude": 1, "mcuName": 2, "mcuId": [], "language": null, "files": {"cmdFlashWrite": "x"}, "programmer": "x",
            "fileNamesReading": [1, true, "x", 2.5], "fusesBytes": {"a": 1}, "profiles": {"flashCheck": 1, "name": {}}
        })");
        folder.write("full.json", full);
        for (const QString name : {"empty.json", "wrong.json"}) {
            SettingsRecord r;
            QVERIFY(!r.flashCheck && r.loadFromFile("full.json") && r.loadFromFile(name));
            const QStringList texts {r.avrdude, r.mcuId, r.programmer.name, r.programmer.id, r.port, r.speed};
            QCOMPARE(texts, QStringList({"avrdude", "m16", "USBasp", "usbasp", "usb", "-B 4"}));
            const QStringList emptied {r.mcuName,      r.signature, r.callByte,    r.language,
                                       r.flashWrite,   r.flashRead, r.eepromWrite, r.eepromRead,
                                       r.profile.name, r.arguments, r.description, r.currentlyProfilesList};
            QCOMPARE(emptied.join(""), QString());
            QVERIFY(r.fusesBytes.isEmpty() && r.cmdFlashWrite.isEmpty() && r.configurationList.isEmpty());
            QCOMPARE(r.fileNamesReading, name[0] == 'e' ? QStringList() : QStringList({"1", "true", "x", "2.5"}));
        }
        folder.write("bits.json", R"({"fusesBytes": [7, {"fuseBits": [{}, {"name": 5}, {}, {}, {}, {}, {},
                                                        {"name": "last"}, {"name": "ninth"}]}]})");
        SettingsRecord record;
        QVERIFY(record.loadFromFile("bits.json") && record.fusesBytes.size() == 2);
        for (const FuseBit& bit : {record.fusesBytes[0].fuseBits[3], record.fusesBytes[1].fuseBits[1]})
            QCOMPARE(bit.name, QString("NOT USED"));
        QCOMPARE(record.fusesBytes[1].fuseBits[7].name, QString("last"));
    }

    void unusableSettings()
    {
        for (const QByteArray& content : {QByteArray("[{\"avrdude\": \"x\"}]"), full.chopped(2), QByteArray("")}) {
            const WorkFolder folder;
            folder.write("full.json", full);
            folder.write(file, content);
            SettingsRecord record;
            QVERIFY(record.loadFromFile("full.json") && !record.loadFromFile(file) && !record.loadFromFile("missing"));
            QVERIFY(record.mcuName == "ATtiny85" && record.fusesBytes.size() == 1);

            const LogCapture log;
            QCOMPARE(Startup::language(), QString("English"));
            QVERIFY2(log.lines().join('\n').startsWith("Config parse error: "), qPrintable(log.lines().join('\n')));
            BoxAnswerer boxes;
            const KorvelApp window;
            QCOMPARE(boxes.take(), QStringList {"Korvel: Failed to load settings from file: save.json"});
        }
    }

    void startLanguage()
    {
        const WorkFolder folder;
        {
            const LogCapture log;
            QCOMPARE(Startup::language(), QString("English"));
            QCOMPARE(log.lines(), QStringList {"Config file not found, using default language: English"});
        }
        for (const auto& [content, language] :
             {std::pair("{}", "English"), {"{\"language\": 5}", ""}, {"{\"language\": \"X\"}", "X"}}) {
            folder.write(file, content);
            QCOMPARE(Startup::language(), QString(language));
        }
    }

    void windowKeepsTheSettings()
    {
        const WorkFolder folder;
        BoxAnswerer boxes;
        KorvelApp().close();
        QCOMPARE(boxes.take(), QStringList());
        QCOMPARE(object(folder.read(file))["programmer"].toObject()["speed"].toString(), QString("-B 4"));

        folder.write(file, full);
        KorvelApp().close();
        // No catalogue here: the stored programmer is in no list, and still nothing of it is lost.
        for (const QString key : {"mcuName", "programmer", "arguments", "files", "language"})
            QCOMPARE(object(folder.read(file))[key], object(full)[key]);

        KorvelApp window;
        auto* tabs = window.findChild<QTabWidget*>();
        QCOMPARE(tabs->tabText(0) + tabs->tabText(1) + tabs->tabText(2) + tabs->tabText(3),
                 QString("ProgrammingFusesProfilesAbout"));
        QVERIFY(qobject_cast<SocialLinksWidget*>(tabs->cornerWidget(Qt::TopRightCorner)));
        QCheckBox* eeprom = window.findChild<SelectView*>()->eeprom();
        eeprom->setChecked(true);
        window.findChild<Avrdude*>()->settings().eepromEnable = false;
        tabs->setCurrentIndex(1);
        QVERIFY(eeprom->isChecked());
        tabs->setCurrentIndex(2);
        QVERIFY(!eeprom->isChecked() && !eeprom->isEnabled());
        QVERIFY(QFile::remove(file) && QDir().mkdir(file)); // a folder in the way
        QVERIFY(window.close());
        QCOMPARE(boxes.take(), QStringList {"Korvel: Failed to save settings to file: save.json"});
    }

    void windowClosesDuringARun()
    {
        const WorkFolder folder;
        folder.write("script", "err busy\nwait 60000");
        folder.write(file, R"({"avrdude": ")" STAND_IN R"("})");
        const LogCapture log;
        BoxAnswerer boxes;
        {
            KorvelApp window;
            auto* avrdude = window.findChild<Avrdude*>();
            avrdude->execute({}, [] { QFAIL("called back"); });
            QTRY_VERIFY(avrdude->logText().contains("busy"));
            QVERIFY(window.close());
        }
        QCOMPARE(log.lines(), QStringList()); // such as a warning of a running process destroyed
        QCOMPARE(object(folder.read(file))["avrdude"].toString(), QString(STAND_IN));
    }
};

QTEST_MAIN(tst_App)
#include "tst_app.moc"
