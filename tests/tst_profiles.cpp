#include "profiles/ConfigurationView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QtTest>

namespace {

/// The tab over a folder without profiles.
struct Tab : Bench {
    SettingsRecord& settings = avrdude.settings();
    Profiles tab {avrdude, nullptr};
    QList<QCheckBox*> areas = tab.findChild<SelectView*>()->findChildren<QCheckBox*>(); // flash, EEPROM, fuses
    ConfigurationView* configuration = tab.findChild<ConfigurationView*>();
    QComboBox* profiles = tab.findChild<ProgrammingView*>()->profiles();
    QPushButton* write = tab.findChild<ProgrammingView*>()->writeButton();
};

} // namespace

class tst_Profiles : public QObject
{
    Q_OBJECT

private slots:
    void addLoadRemove()
    {
        Tab tab;
        tab.folder.write("profiles/notes.txt", "");
        QPushButton* add = tab.configuration->addButton();
        QPushButton* remove = tab.configuration->removeButton();
        add->click(); // no name, no profile: nothing
        remove->click();
        tab.configuration->name()->setText("Плата №1 ");
        tab.configuration->description()->setText("Rev. B ");
        tab.settings.mcuName = "ATtiny85 ";
        add->click();
        tab.settings = {};
        tab.boxes.button = QMessageBox::No;
        add->click();
        remove->click();
        emit tab.profiles->textActivated("Плата №1 ");
        QCOMPARE(tab.settings.mcuName + tab.settings.description + tab.settings.currentlyProfilesList,
                 QString("ATtiny85 Rev. B Плата №1 "));
        QCOMPARE(Profiles(tab.avrdude, nullptr).findChild<QComboBox*>()->count(), 1);
        tab.boxes.button = QMessageBox::Yes;
        add->click();
        remove->click();
        QCOMPARE(QDir("profiles").entryList(QDir::Files).join('|') + tab.profiles->currentText(), QString("notes.txt"));
        tab.configuration->name()->setText("no/folder"); // cannot be written, and nothing says so
        add->click();
        QCOMPARE(tab.boxes.take().replaceInStrings(QRegularExpression("(?s)[ :].*"), "").join(' '),
                 QString("Information Overwrite Delete Overwrite Information Delete Information"));
    }

    void areas()
    {
        Tab tab;
        tab.settings.flashCheck = tab.settings.eepromEnable = tab.settings.fusesEnable = true;
        tab.settings.configurationList = QStringList {"A", "B"};
        tab.settings.currentlyProfilesList = "B";
        tab.tab.refresh();
        QVERIFY(tab.areas[0]->isChecked() && tab.write->isEnabled() && tab.profiles->currentText() == "B");
        tab.tab.updateAreas(); // what cannot be written is unticked
        QVERIFY(!tab.areas[0]->isEnabled() && !tab.settings.flashCheck && !tab.write->isEnabled());
        tab.areas[2]->click();
        QVERIFY(tab.settings.fusesCheck && !tab.settings.eepromCheck && tab.write->isEnabled());
    }

    void writing()
    {
        Tab tab;
        tab.settings.cmdFlashWrite = QStringList {"-U", "flash"};
        tab.settings.fusesBytes = {FuseByte {"", "lock", {}, 0, 0}};
        for (QCheckBox* area : tab.areas)
            area->click();
        tab.folder.write("script", "err verification error"); // a step that fails ends it
        QCOMPARE(tab.click(tab.write), QString("AVRDUDE: Verification error.|-U flash"));
        // Started again in the middle of a run: the new first step is refused, and the old run's end goes on with the
        // new ones.
        tab.folder.write("script", "wait 200");
        for (int i = 0; i < 2; ++i) {
            tab.areas[0]->click();
            tab.write->click();
        }
        QCOMPARE(tab.boxes.wait().join("").count("successfully"), 6); // writing and verifying each of the areas
        QCOMPARE(tab.requests().mid(1), QStringList({"", "", "-Ulock:w:0x0:m"}));
    }
};

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
