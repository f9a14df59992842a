#include "profiles/ConfigurationView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTimer>
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
        profiles = tab->findChild<ProgrammingView*>()->profiles();
        write = tab->findChild<ProgrammingView*>()->writeButton();
    }

    /// Ticks the areas in @p letters (f, e, u) and unticks the others.
    void tick(const QString& letters) const
    {
        areas->flash()->setChecked(letters.contains('f'));
        areas->eeprom()->setChecked(letters.contains('e'));
        areas->fuses()->setChecked(letters.contains('u'));
    }

    /// The list's entries, joined.
    QString names() const
    {
        QStringList texts;
        for (int i = 0; i < profiles->count(); ++i)
            texts += profiles->itemText(i);
        return texts.join('|');
    }

    SettingsRecord& settings = avrdude.settings();
    std::unique_ptr<Profiles> tab;
    SelectView* areas;
    ConfigurationView* configuration;
    QComboBox* profiles;
    QPushButton* write;
};

} // namespace

class tst_Profiles : public QObject
{
    Q_OBJECT

private slots:
    void addLoadRemove()
    {
        Tab tab({"Old.json", "notes.txt"});
        QCOMPARE(tab.names(), QString("Old"));
        QPushButton* add = tab.configuration->addButton();
        add->click(); // no name: nothing
        tab.configuration->name()->setText("New one");
        tab.configuration->description()->setText("Rev. B");
        tab.settings.mcuName = "ATtiny85";
        tab.settings.cmdFlashWrite = QStringList {"-U", "x"};
        tab.settings.configurationList = QStringList {"extra"};
        add->click();
        QCOMPARE(tab.boxes.take(), QStringList {"Information: Profile \"New one.json\" saved successfully."});
        QCOMPARE(tab.names() + ": " + tab.profiles->currentText(), QString("Old|New one: New one"));

        tab.settings.mcuName = "changed";
        tab.boxes.button = QMessageBox::No;
        add->click();
        QCOMPARE(tab.boxes.take(),
                 QStringList {"Overwrite Confirmation: Configuration named «New one» already exists.\n"
                              "Do you want to overwrite it?"});
        QSignalSpy loaded(tab.tab.get(), &Profiles::emitUpdateUI);
        tab.settings = {};
        emit tab.profiles->textActivated("New one");
        QCOMPARE(loaded.size(), 1);
        QVERIFY(tab.settings.mcuName == "ATtiny85" && tab.settings.cmdFlashWrite.size() == 2);
        QCOMPARE(tab.settings.description + tab.settings.currentlyProfilesList, QString("Rev. BNew one"));
        QVERIFY(tab.settings.configurationList.isEmpty());

        tab.boxes.button = QMessageBox::Yes;
        add->click();
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

    void names()
    {
        const QString none; // not written, and nothing says so
        for (const auto& [name, file] : {std::pair<QString, QString>("a.b", "profiles/a.b.json"),
                                         {" Плата №1 ", "profiles/ Плата №1 .json"},
                                         {"no/folder", none},
                                         {"../outside", "outside.json"}}) {
            Tab tab({"Old.json"});
            tab.folder.write("save.json", "kept");
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
            QVERIFY2(!QFile::exists(file) && tab.names() == "Old", qPrintable(name));
        }
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
        QCOMPARE(tab.names().mid(3), QString("|C|C"));
        QCOMPARE(tab.profiles->currentText() + tab.configuration->description()->text(), QString("Btext"));
        QVERIFY(tab.areas->flash()->isChecked() && !tab.areas->flash()->isEnabled());
        QVERIFY(!tab.areas->eeprom()->isChecked() && tab.areas->eeprom()->isEnabled());
        QVERIFY(tab.write->isEnabled() && activated.isEmpty());
        tab.tab->updateAreas(); // what cannot be written is unticked
        QVERIFY(!tab.areas->flash()->isChecked() && !tab.settings.flashCheck && !tab.write->isEnabled());
        tab.tick("u");
        QVERIFY(tab.settings.fusesCheck && tab.write->isEnabled());
    }

    void writing()
    {
        Tab tab({});
        tab.settings.cmdFlashWrite = QStringList {"-U", "flash"};
        tab.settings.fusesBytes.resize(1);
        tab.settings.fusesBytes[0].id = "lock";
        tab.log.appendPlainText("before ");
        tab.folder.write("script", "err done");
        tab.tick("feu");
        // An area without a prepared command runs with the common frame alone.
        QCOMPARE(tab.click(tab.write).section('|', 1), QString("-U flash||-Ulock:w:0x0:m"));
        QVERIFY(tab.avrdude.logText().startsWith("before ") && tab.avrdude.logText().count("done") == 3);

        // A step that fails ends it, and its output is all that the log shows.
        tab.folder.write("script", "err verification error");
        QCOMPARE(tab.click(tab.write), QString("AVRDUDE: Verification error.|-U flash"));
        QCOMPARE(tab.avrdude.logText().count("Korvel: "), 1);

        // Started again while the box of the failed step is open: a writing like any other.
        tab.boxes.delay = 300;
        tab.tick("u");
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&tab, &poll] {
            if (QApplication::activeModalWidget()) {
                poll.stop();
                tab.folder.write("script", "wait 200\nerr done");
                tab.write->click();
            }
        });
        poll.start(10);
        tab.write->click();
        QTRY_COMPARE(tab.requests().size(), 6);
        QTRY_VERIFY(tab.isIdle() && !QApplication::activeModalWidget());
        const QString fuses = "Fuse bits write successfully.\nFuse bits verify successfully.";
        QCOMPARE(tab.boxes.take(), QStringList({"AVRDUDE: Verification error.", "Profiles: " + fuses}));

        // Started again in the middle of a run: the new first step is refused, and the old run's end goes on with the
        // new ones.
        tab.tick("fu");
        tab.write->click();
        tab.tick("eu");
        tab.write->click();
        QCOMPARE(tab.boxes.wait(),
                 QStringList {"Profiles: Eeprom write successfully.\nEeprom verify successfully.\n" + fuses});
        QCOMPARE(tab.requests().mid(6), QStringList({"-U flash", "-Ulock:w:0x0:m"}));
    }
};

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
