#include "profiles/ConfigurationView.h"
#include "profiles/Profiles.h"
#include "profiles/ProfilesPresenter.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "support/Bench.h"
#include "support/LogCapture.h"

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
        tab.configuration->name()->setText("no/folder"); // cannot be written, and only the log says so
        const LogCapture log;
        add->click();
        emit tab.profiles->textActivated("gone");
        QCOMPARE(log.lines().join(' '),
                 QString("Profile not saved: ./profiles/no/folder.json "
                         "Profile not loaded: ./profiles/gone.json"));
        QCOMPARE(tab.avrdude.logText(),
                 QString("Failed to save settings to file: ./profiles/no/folder.json\n"
                         "Failed to load settings from file: ./profiles/gone.json"));
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
        tab.settings.cmdFlashWrite = QStringList {"-U", "flash:w:a.bin:r"};
        tab.settings.fusesBytes = {FuseByte {"", "lock", {}, 0, 0}};
        for (QCheckBox* area : tab.areas)
            area->click();
        tab.folder.write("script", "err verification error"); // a step that fails ends it
        QCOMPARE(tab.click(tab.write), QString("AVRDUDE: Verification error.|-U flash:w:a.bin:r"));
        // Pressed while something else runs, nothing starts. Pressed again in the middle, the new first step is dropped
        // and the old run's end goes on with the new ones, all of them with what was set at first.
        Tab board;
        board.folder.write("script", "wait 200");
        board.settings.fusesEnable = true;
        board.settings.cmdEepromWrite = QStringList {"for", "this"};
        board.settings.fusesBytes = {FuseByte {"", "lock", {}, 0, 0xFE}};
        SettingsRecord next = board.settings;
        next.mcuId = "t13";
        next.cmdEepromWrite = QStringList {"for", "the next"};
        next.fusesBytes[0].currentValue = 0;
        QVERIFY(next.saveToFile("next"));
        board.areas[1]->click();
        board.avrdude.execute({"else"});
        board.write->click();
        QTRY_VERIFY(board.isIdle());
        board.areas[2]->click();
        board.write->click();
        QVERIFY(board.settings.loadFromFile("next"));
        board.areas[0]->click();
        board.write->click();
        QCOMPARE(board.boxes.wait().join("").remove(" successfully."),
                 QString("Profiles: Eeprom write\nEeprom verify\nFuse bits write\nFuse bits verify"));
        QCOMPARE(board.requests(), QStringList({"else", "for this", "-Ulock:w:0xfe:m"}));
        QCOMPARE(board.folder.runs().constLast()[1], QString("m16"));

        // Nothing of a board is written when one of its files does not fit.
        board.folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 6, "eeprom": 4})");
        board.folder.write("C:/a.bin", "12345");
        board.settings = {};
        board.settings.flashCheck = board.settings.eepromCheck = true;
        board.settings.cmdFlashWrite = QStringList {"-U", "flash:w:C:/a.bin:r"};
        board.settings.cmdEepromWrite = QStringList {"-U", "eeprom:w:C:/a.bin:r"};
        QCOMPARE(board.click(board.write), QString("EEPROM: The file has 5 bytes, the memory only 4."));
        board.folder.write("C:/a.bin", "1234567");
        QCOMPARE(board.click(board.write), QString("FLASH: The file has 7 bytes, the memory only 6."));

        // One area, called without the button: it is the present board's.
        board.settings.avrdude = STAND_IN;
        board.folder.write("script", "");
        board.tab.findChild<ProfilesPresenter*>()->writeFuses();
        QCOMPARE(board.boxes.wait(),
                 QStringList {"Profiles: Fuse bits write successfully.\nFuse bits verify successfully."});
        QCOMPARE(board.folder.runs().constLast().mid(7), QStringList {""}); // it has no fuse bytes
    }
};

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
