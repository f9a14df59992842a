#include "profiles/ConfigurationView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// The tab over a folder with the profiles of the test's choice.
struct Tab : Bench {
    explicit Tab(const QStringList& files)
    {
        for (const QString& file : files)
            folder.write("profiles/" + file, "{}");
        tab = std::make_unique<Profiles>(avrdude, nullptr);
        areas = tab->findChild<SelectView*>();
        configuration = tab->findChild<ConfigurationView*>();
        programming = tab->findChild<ProgrammingView*>();
        profiles = programming->profiles();
    }

    /// Ticks the areas in @p letters (f, e, u) and unticks the others.
    void tick(const QString& letters) const
    {
        areas->flash()->setChecked(letters.contains('f'));
        areas->eeprom()->setChecked(letters.contains('e'));
        areas->fuses()->setChecked(letters.contains('u'));
    }

    QStringList names() const
    {
        QStringList texts;
        for (int i = 0; i < profiles->count(); ++i)
            texts += profiles->itemText(i);
        return texts;
    }

    QStringList requests() const
    {
        QStringList texts;
        for (const QStringList& run : folder.runs())
            texts += run.mid(7).join(' ');
        return texts;
    }

    SettingsRecord& settings = avrdude.settings();
    std::unique_ptr<Profiles> tab;
    SelectView* areas;
    ConfigurationView* configuration;
    ProgrammingView* programming;
    QComboBox* profiles;
};

} // namespace

class tst_Profiles : public QObject
{
    Q_OBJECT

private slots:
    void addLoadRemove()
    {
        Tab tab({"Old.json", "notes.txt"});
        QCOMPARE(tab.names(), QStringList {"Old"});
        tab.configuration->addButton()->click(); // no name: nothing
        tab.configuration->name()->setText("New one");
        tab.configuration->description()->setText("Rev. B");
        tab.settings.mcuName = "ATtiny85";
        tab.settings.cmdFlashWrite = QStringList {"-U", "x"};
        tab.settings.configurationList = QStringList {"extra"};
        tab.configuration->addButton()->click();
        QCOMPARE(tab.boxes.take(), QStringList {"Information: Profile \"New one.json\" saved successfully."});
        QCOMPARE(tab.names(), QStringList({"Old", "New one"}));
        QCOMPARE(tab.profiles->currentText(), QString("New one"));

        tab.settings.mcuName = "changed";
        const QByteArray file = tab.folder.read("profiles/New one.json");
        const QString question =
            "Overwrite Confirmation: Configuration named «New one» already exists.\nDo you want to overwrite it?";
        tab.boxes.button = QMessageBox::No;
        tab.configuration->addButton()->click();
        QCOMPARE(tab.boxes.take(), QStringList {question});
        QCOMPARE(tab.folder.read("profiles/New one.json"), file);

        QSignalSpy loaded(tab.tab.get(), &Profiles::emitUpdateUI);
        tab.settings = {};
        emit tab.profiles->textActivated("New one");
        QCOMPARE(loaded.size(), 1);
        QVERIFY(tab.settings.mcuName == "ATtiny85" && tab.settings.cmdFlashWrite.size() == 2);
        QCOMPARE(tab.settings.description + tab.settings.currentlyProfilesList, QString("Rev. BNew one"));
        QVERIFY(tab.settings.configurationList.isEmpty());

        tab.boxes.button = QMessageBox::Yes;
        tab.configuration->addButton()->click();
        QCOMPARE(tab.boxes.take().size(), 2);
        for (const char* name : {"New one", "Old"}) {
            tab.profiles->setCurrentText(name);
            tab.configuration->removeButton()->click();
            QCOMPARE(tab.boxes.take(), QStringList {"Delete: Delete this profile?"});
            QVERIFY(!QFile::exists(QString("profiles/%1.json").arg(name)));
        }
        QVERIFY(tab.names().isEmpty() && tab.configuration->name()->text().isEmpty());
        QCOMPARE(tab.profiles->placeholderText(), QString("Select profile..."));
        tab.configuration->removeButton()->click(); // nothing left
        QVERIFY(tab.boxes.take().isEmpty());
    }

    void names_data()
    {
        QTest::addColumn<QString>("file"); // none: not written
        QTest::newRow("a.b") << "profiles/a.b.json"; // listed as "a" after the next start
        QTest::newRow(" Плата №1 ") << "profiles/ Плата №1 .json";
        QTest::newRow("no/folder") << "";
        QTest::newRow("../outside") << "outside.json";
    }

    void names()
    {
        QFETCH(QString, file);
        Tab tab({});
        QVERIFY(QDir().mkpath("profiles"));
        tab.folder.write("save.json", "kept");
        const QString name = QTest::currentDataTag();
        tab.configuration->name()->setText(name);
        tab.configuration->addButton()->click();
        QCOMPARE(tab.boxes.take(), QStringList {"Information: Profile \"" + name + ".json\" saved successfully."});
        QCOMPARE(tab.folder.read(file).isEmpty(), file.isEmpty());
        QCOMPARE(tab.folder.read("save.json"), QByteArray("kept"));
        tab.settings.mcuName = "changed";
        emit tab.profiles->textActivated(name);
        QCOMPARE(tab.settings.mcuName, QString(file.isEmpty() ? "changed" : "ATmega16"));
        tab.boxes.button = QMessageBox::Yes;
        tab.configuration->removeButton()->click();
        QVERIFY(!QFile::exists(file) && tab.names().isEmpty());
    }

    void refresh()
    {
        Tab tab({"A.json", "B.json"});
        tab.settings.profile.name = "B";
        tab.settings.description = "text";
        tab.settings.currentlyProfilesList = "B";
        tab.settings.configurationList = QStringList {"C"};
        tab.settings.flashCheck = tab.settings.eepromEnable = true;
        QSignalSpy activated(tab.profiles, &QComboBox::textActivated);
        tab.tab->refresh();
        tab.tab->refresh();
        QCOMPARE(tab.names().size(), 4);
        QCOMPARE(tab.profiles->currentText() + tab.configuration->description()->text(), QString("Btext"));
        QVERIFY(tab.areas->flash()->isChecked() && !tab.areas->flash()->isEnabled());
        QVERIFY(!tab.areas->eeprom()->isChecked() && tab.areas->eeprom()->isEnabled());
        QVERIFY(tab.programming->writeButton()->isEnabled() && activated.isEmpty());
        tab.tab->updateAreas(); // what cannot be written is unticked
        QVERIFY(!tab.areas->flash()->isChecked() && !tab.settings.flashCheck);
        QVERIFY(!tab.programming->writeButton()->isEnabled());
        tab.tick("u");
        QVERIFY(tab.settings.fusesCheck && tab.programming->writeButton()->isEnabled());
    }

    void writing()
    {
        Tab tab({});
        tab.settings.cmdFlashWrite = QStringList {"-U", "flash"};
        tab.settings.fusesBytes.resize(1);
        tab.settings.fusesBytes[0].id = "lock";
        QPushButton* write = tab.programming->writeButton();
        tab.log.appendPlainText("before ");
        tab.folder.write("script", "err done");
        tab.tick("feu");
        write->click();
        QCOMPARE(tab.boxes.wait(),
                 QStringList {"Profiles: Flash write successfully.\nFlash verify successfully.\n"
                              "Eeprom write successfully.\nEeprom verify successfully.\n"
                              "Fuse bits write successfully.\nFuse bits verify successfully."});
        // An area without a prepared command runs with the common frame alone.
        QCOMPARE(tab.requests(), QStringList({"-U flash", "", "-Ulock:w:0x0:m"}));
        QVERIFY(tab.avrdude.logText().startsWith("before ") && tab.avrdude.logText().count("done") == 3);

        // A step that fails ends it, and its output is all that the log shows.
        tab.folder.write("script", "err verification error");
        write->click();
        QCOMPARE(tab.boxes.wait(), QStringList {"AVRDUDE: Verification error."});
        QTest::qWait(100);
        QCOMPARE(tab.requests().size(), 4);
        QCOMPARE(tab.avrdude.logText().count("Korvel: "), 1);

        // Write again in the middle: the new start is refused a run, and the old run's end goes on with its steps. The
        // box of a finished writing is no hindrance to that.
        tab.folder.write("script", "wait 200\nerr done");
        tab.tick("fu");
        write->click();
        tab.tick("u");
        write->click();
        QCOMPARE(tab.boxes.wait(),
                 QStringList {"Profiles: Fuse bits write successfully.\nFuse bits verify successfully."});
        QCOMPARE(tab.requests().mid(4), QStringList {"-U flash"});
    }
};

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
