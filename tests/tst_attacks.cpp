#include "advice/Surroundings.h"
#include "app/KorvelApp.h"
#include "base/Box.h"
#include "base/JsonFile.h"
#include "fuses/FusesButtonsView.h"
#include "i18n/JsonToQtTranslator.h"
#include "i18n/LanguageFiles.h"
#include "mcu/AttributesView.h"
#include "mcu/description/BytesModel.h"
#include "memory/FlashView.h"
#include "profiles/ConfigurationView.h"
#include "profiles/ProgrammingView.h"
#include "settings/SettingsModel.h"
#include "support/Bench.h"
#include "support/Table.h"

namespace {

/// @p changes laid over @p object, member by member.
QJsonObject laidOver(QJsonObject object, const QJsonObject& changes)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        const QJsonValue old = object.value(change.key());
        object.insert(change.key(),
                      old.isObject() ? laidOver(old.toObject(), change->toObject()) : QJsonValue(*change));
    }
    return object;
}

/// @p box as it reads in the folder % on a system with slashes, which forbids no more than those in names.
QString plain(QString box)
{
    box.replace(QDir::toNativeSeparators(QDir::currentPath()), "%").remove(":*?\"<>|");
    return box.contains('%') ? QDir::fromNativeSeparators(box) : box;
}

/// The window of somebody who has files and a program of their own.
struct Victim {
    Victim()
    {
        SettingsRecord settings;
        settings.avrdude = STAND_IN;
        settings.fusesBytes = {FuseByte {"Low", "lfuse", {}, 0, 0xFE}};
        folder.write("mcu/ATmega16.json", R"({"id": "m16"})");
        folder.write("programmer/USBasp.json", R"({"id": "usbasp", "port": "usb"})");
        folder.write("programmer/Own.json", R"({"id": "own", "port": "usb", "arguments": "-C own.conf"})");
        folder.write("sub/part.json", R"({"id": "m16", "port": "usb", "arguments": "-C evil.conf"})");
        for (const char* file : {"a.hex", "sub/precious.hex", "precious.hex"})
            folder.write(file, ":0200000001FEFF\n:00000001FF\n" + QByteArray(99, '\n'));
        folder.write("lfuse.hex", "b");
        QFile::copy(STAND_IN, "evil");
        QDir().mkdir("profiles");
        if (!settings.saveToFile("save.json") || !settings.saveToFile("profiles/Guest.json"))
            qFatal("cannot write");
        boxes.button = QMessageBox::No;
    }

    void open()
    {
        window = std::make_unique<KorvelApp>();
        avrdude = window->findChild<Avrdude*>();
    }

    [[nodiscard]] QPushButton* button(const QString& name) const
    {
        const QHash<QString, QPushButton*> buttons {
            {"erase", window->findChild<AttributesView*>()->eraseButton()},
            {"flash", window->findChild<FlashView*>()->writeButton()},
            {"read", window->findChild<FlashView*>()->readButton()},
            {"read fuses", window->findChild<FusesButtonsView*>()->readButton()},
            {"write fuses", window->findChild<FusesButtonsView*>()->writeButton()},
            {"board", window->findChild<ProgrammingView*>()->writeButton()},
            {"add", window->findChild<ConfigurationView*>()->addButton()},
        };
        return buttons.value(name);
    }

    /// All files but the stand-in's own, with their contents.
    [[nodiscard]] static QMap<QString, QByteArray> files()
    {
        QMap<QString, QByteArray> found;
        for (QDirIterator file(".", QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); file.hasNext();) {
            const QString path = file.next();
            found.insert(path, WorkFolder::read(path));
        }
        found.remove("./runs");
        return found;
    }

    WorkFolder folder;
    BoxAnswerer boxes;
    std::unique_ptr<KorvelApp> window;
    Avrdude* avrdude = nullptr;
};

} // namespace

class tst_Attacks : public QObject
{
    Q_OBJECT

private slots:
    void profiles_data() { casesFrom("attacks.txt", {"profile", "press", "told", "ran", "log"}); }

    void profiles()
    {
        Victim victim;
        victim.open();
        const QJsonObject base = QJsonDocument::fromJson(victim.folder.read("profiles/Guest.json")).object();
        const QJsonDocument changes = QJsonDocument::fromJson(cell("profile").toUtf8());
        QVERIFY(changes.isObject());
        victim.folder.write("profiles/Guest.json", QJsonDocument(laidOver(base, changes.object())).toJson());
        const auto before = victim.files();

        emit victim.window->findChild<ProgrammingView*>()->profiles()->textActivated("Guest");
        QString log = victim.avrdude->log().toPlainText();
        if (QPushButton* button = victim.button(cell("press"))) {
            button->click();
            QTRY_VERIFY(!victim.avrdude->isRunning());
            QTest::qWait(50); // for what follows
            QTRY_VERIFY(!victim.avrdude->isBusy());
        }
        log += victim.avrdude->log().toPlainText();

        QStringList told = victim.boxes.take();
        for (QString& box : told)
            box = plain(box.section('\n', 0, box.startsWith("Profiles: ") ? -1 : 0));
        QTEST(told.join(", "), "told");
        const QString ran = victim.folder.runs().join(", ").replace('\t', ' ');
        QCOMPARE(ran.isEmpty() ? "-" : ran.trimmed(), cell("ran"));
        QVERIFY2(log.contains(cell("log")), qPrintable(log));
        QCOMPARE(log.contains("Korvel: "), !ran.isEmpty());
        QCOMPARE(log.count("Korvel: "), log.count("Korvel: " STAND_IN " "));
        QCOMPARE(victim.files(), before);
        QCOMPARE(victim.window->findChild<ProgrammingView*>()->profiles()->count(), 1);
    }

    void aProgramThatTheUserAccepts()
    {
        Victim victim;
        victim.open();
        SettingsRecord guest = victim.avrdude->settings();
        guest.avrdude = "./evil";
        guest.arguments = "-C x";
        guest.updateCheck = false;
        QVERIFY(guest.saveToFile("profiles/Guest.json", SettingsRecord::File::Profile));
        QVERIFY(!victim.folder.read("profiles/Guest.json").contains("updateCheck"));
        victim.boxes.button = QMessageBox::Yes;
        for (const int asked : {2, 0}) { // the second time all of it is in use
            emit victim.window->findChild<ProgrammingView*>()->profiles()->textActivated("Guest");
            QCOMPARE(victim.boxes.take().size(), asked);
        }
        QCOMPARE(victim.avrdude->settings().avrdude + victim.avrdude->settings().arguments, QString("./evil-C x"));

        QVERIFY(guest.saveToFile("save.json"));
        for (const bool isSettings : {true, false}) { // a profile that has the key all the same does not decide
            victim.folder.write("profiles/Guest.json", victim.folder.read("save.json").replace("false", "true"));
            victim.open();
            isSettings ? void() : emit victim.window->findChild<ProgrammingView*>()->profiles()->textActivated("Guest");
            QVERIFY(!victim.window->checksForUpdates());
            victim.window->saveSettings();
        }
    }

    void aLanguageThatTurnsTheQuestionAround()
    {
        Victim victim;
        victim.folder.write("Languages/Evil.json",
                            "{\"&Yes\": \"&No\", \"&No\": \"&Yes\", \"In the profile:\": \"\","
                            "\"The profile wants another program to be run.\": \"A tip\"}");
        qputenv("APPIMAGE", QFile::encodeName(QDir().absoluteFilePath("package")));
        JsonToQtTranslator translator;
        translator.loadLanguage("Evil");
        QCoreApplication::installTranslator(&translator);
        victim.open();
        SettingsRecord guest = victim.avrdude->settings();
        guest.avrdude = "./evil";
        QVERIFY(guest.saveToFile("profiles/Guest.json"));
        QString buttons;
        victim.boxes.onOpen = [&] {
            const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            buttons = box->button(QMessageBox::Yes)->text() + ", " + box->button(QMessageBox::No)->text();
        };
        emit victim.window->findChild<ProgrammingView*>()->profiles()->textActivated("Guest");
        QCoreApplication::removeTranslator(&translator);
        qunsetenv("APPIMAGE");
        QCOMPARE(buttons, QString("Yes / &No, No / &Yes"));
        const QString told = victim.boxes.take().join('|');
        QVERIFY(told.contains("\"./evil\"\n")
                && told.contains("\nThe profile wants another program to be run. A program"));
    }

    void namesAndValues()
    {
        const Victim victim;
        SettingsRecord record;
        record.mcuId = "m16";
        for (const QString name : {"../sub/part", "..\\sub\\part", "//server/share/part"}) {
            record.mcuName = name;
            QVERIFY(BytesModel::description(record).isEmpty());
            QVERIFY(!SettingsModel::programmerEntry(name).fault.isEmpty());
            QVERIFY(LanguageFiles::path(".", name).isNull());
        }
        victim.folder.write("programmer/x.json", "{\"usb\": [\"16c0:05dc\", \"16c0:05dc 1\"]}");
        victim.folder.write("programmer/a\\b.json", "{}");
        QCOMPARE(SettingsModel::programmerEntry("x").usb, QStringList {"16c0:05dc"});
        QCOMPARE(SettingsModel().programmerList().size(), 3);

        QByteArray bytes = "{\"fuseBits\": [{\"bitNumber\": 99}]}";
        for (int i = 1; i < 70; ++i)
            bytes += ", {}";
        victim.folder.write("many.json", "{\"fusesBytes\": [" + bytes + "], \"FuseBytes\": [" + bytes + "]}");
        QVERIFY(record.loadFromFile("many.json"));
        QCOMPARE(record.fusesBytes.size(), 64);
        QCOMPARE(record.fusesBytes[0].fuseBits[0].bitNumber, 7);
        QCOMPARE(BytesModel::fuseBytes(JsonFile::read("many.json").document.object()).size(), 64);
        QFile large("many.json");
        QVERIFY(large.resize(20 << 20) && JsonFile::read("many.json").state == JsonFile::State::CannotOpen);
    }

#ifdef Q_OS_UNIX
    void aLinkInTheWorkFolder()
    {
        Bench bench;
        QFile::link("victim", "lfuse.hex"); // that is not there yet
        bench.folder.write("script", "make lfuse.hex 12");
        bench.avrdude.executeReading({"-Ulfuse:r:lfuse.hex:r"}, {"lfuse.hex"}, [] {});
        QTRY_VERIFY(bench.isIdle());
        QVERIFY(!QFile::exists("victim") && QFileInfo("lfuse.hex").isFile());
    }
#endif

    void namesInTheWorkFolder()
    {
        Victim victim;
        for (const QString name : {"avrdude", "avrdude.exe", "sub/avrdude"})
            QFile::copy(STAND_IN, name);
        const QByteArray path = qgetenv("PATH");
        for (const QByteArray folders : {"", ".", ":./", "sub", "%"}) {
            qputenv("PATH", folders == "%" ? QFile::encodeName(QDir::currentPath()) : folders);
            victim.folder.write("save.json", R"({"avrdude": "avrdude"})");
            victim.open();
            victim.button("erase")->click();
            QVERIFY(victim.avrdude->log().toPlainText().contains("avrdude not found"));
        }
        qputenv("PATH", path);
        victim.folder.write("save.json", R"({"avrdude": "./avrdude"})"); // named with a path it is meant
        victim.open();
        victim.button("erase")->click();
        QCOMPARE(victim.boxes.wait().size(), 1);
        QCOMPARE(victim.folder.runs().size(), 1);
    }

    void whatTheWindowShowsIsPlain()
    {
        Victim victim;
        victim.open();
        victim.window->show();
        const QString markup = "<a href=\"file:///etc/passwd\">x</a><img src=\"//server/x.png\">";
        bool arePlain = true;
        victim.boxes.onOpen = [&] {
            for (const QLabel* label : QApplication::activeModalWidget()->findChildren<QLabel*>())
                arePlain = arePlain && label->textFormat() == Qt::PlainText;
        };
        Box::tell(victim.window.get(), "x", markup, markup);
        QCOMPARE(victim.boxes.take().size(), 1);
        QToolTip::showText({9, 9}, markup, victim.window.get());
        for (const QWidget* tip : QApplication::topLevelWidgets())
            arePlain = arePlain
                && (!tip->inherits("QTipLabel") || static_cast<const QLabel*>(tip)->textFormat() == Qt::PlainText);
        QFileDialog dialog(victim.window.get());
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.show();
        int rich = 0;
        for (const QWidget* widget : QApplication::allWidgets()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            rich += label && label->isVisible() && label->textFormat() != Qt::PlainText ? 1 : 0;
        }
        QVERIFY(arePlain);
        QCOMPARE(rich, 0); // that of the About tab is not shown
    }

#ifdef Q_OS_LINUX
    void nobodyIsToldToJoinTheGroupOfAnyFile()
    {
        for (const QString port : {"/etc/shadow", "/dev/ttyS/../mem", "/dev/../etc/shadow", "/dev/mem"})
            QCOMPARE(Surroundings::now(port).portGroup, QString());
    }
#endif
};

QTEST_MAIN(tst_Attacks)
#include "tst_attacks.moc"
