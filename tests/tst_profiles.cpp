#include "profiles/ConfigurationView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "support/Bench.h"

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
        tab.folder.write("profiles/notes.JSON", "");
        QPushButton* add = tab.configuration->addButton();
        QPushButton* removeButton = tab.configuration->removeButton();
        add->click(); // no name, no profile: nothing
        removeButton->click();
        tab.configuration->name()->setText("Плата №1 ");
        tab.configuration->description()->setText("Rev. B ");
        tab.settings.mcuName = "ATtiny85 ";
        add->click();
        tab.settings = {};
        tab.boxes.button = QMessageBox::No;
        add->click();
        removeButton->click();
        emit tab.profiles->textActivated("Плата №1 ");
        QCOMPARE(tab.settings.mcuName + tab.settings.description + tab.settings.currentlyProfilesList,
                 QString("ATtiny85 Rev. B Плата №1 "));
        QCOMPARE(Profiles(tab.avrdude, nullptr).findChild<QComboBox*>()->count(), 1);
        tab.boxes.button = QMessageBox::Yes;
        add->click();
        removeButton->click();
        QCOMPARE(tab.settings.profile.name + tab.settings.description, QString());
        QCOMPARE(QDir("profiles").entryList(QDir::Files).join('|') + tab.profiles->currentText(),
                 QString("notes.JSON"));
        tab.configuration->name()->setText("no/folder"); // cannot be written, and only the log says so
        add->click();
        emit tab.profiles->textActivated("gone");
        QCOMPARE(tab.avrdude.log().toPlainText(),
                 QString("Failed to save settings to file: ./profiles/no/folder.json\n"
                         "Failed to load settings from file: ./profiles/gone.json"));
        tab.settings.configurationList = QStringList {"A", "B"}; // of a file that somebody prepared
        tab.settings.currentlyProfilesList = "B";
        tab.tab.refresh();
        QCOMPARE(tab.profiles->currentText(), QString("B"));
        const QString overwrite = "Overwrite Confirmation, by default No";
        QCOMPARE(tab.boxes.take().replaceInStrings(QRegularExpression("(?s):.*"), "").join('|'),
                 "Information|" + overwrite + "|Delete|" + overwrite + "|Information|Delete|Information");
    }

    void areas()
    {
        using Record = SettingsRecord;
        const std::array enabled {&Record::flashEnable, &Record::eepromEnable, &Record::fusesEnable};
        const std::array ticked {&Record::flashCheck, &Record::eepromCheck, &Record::fusesCheck};
        for (const bool isLoaded : {true, false}) // with a profile; otherwise the tab was chosen
            for (std::size_t area = 0; area < enabled.size(); ++area) { // each alone
                Tab tab;
                tab.settings.*enabled[area] = true;
                const auto show = [&] { isLoaded ? tab.tab.refresh() : tab.tab.updateAreas(); };
                show();
                tab.areas[static_cast<int>(area)]->click();
                QVERIFY(tab.write->isEnabled());
                show();
                for (std::size_t i = 0; i < enabled.size(); ++i) {
                    QCOMPARE(tab.settings.*ticked[i], i == area);
                    QCOMPARE(tab.areas[static_cast<int>(i)]->isEnabled(), i == area);
                    QCOMPARE(tab.areas[static_cast<int>(i)]->isChecked(), i == area);
                }
                tab.settings.*enabled[area] = false;
                tab.tab.updateAreas(); // what cannot be written is unticked
                QVERIFY(!(tab.settings.*ticked[area]) && !tab.write->isEnabled());
            }
    }

    void boardsThatCannotBeWritten()
    {
        Tab tab;
        tab.folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 6, "eeprom": 4})");
        tab.settings.cmdFlashWrite = QStringList {"-U", "flash:w:C:/a.bin:r"};
        tab.settings.cmdEepromWrite = QStringList {"-U", "eeprom:w:C:/a.bin:r"};
        tab.areas[0]->click();
        tab.areas[1]->click();
        tab.folder.write("script", "err verification error");
        for (const auto& [file, told] : {
                 std::pair("12345", "EEPROM: The file has 5 bytes, the memory only 4."), // nothing is written
                 {"1234567", "FLASH: The file has 7 bytes, the memory only 6."},
                 {"1234", "AVRDUDE: Verification error.|-U flash:w:C:/a.bin:r"}, // nothing after the step that failed
             }) {
            tab.folder.write("C:/a.bin", file);
            QCOMPARE(tab.click(tab.write), QString(told));
        }
    }

    void writePressedDuringARun()
    {
        // While something else runs, nothing starts. Pressed again in the middle, the new first step is dropped and the
        // old run's end goes on with the new ones, all of them with what was set at first.
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
        QVERIFY(board.avrdude.log().toPlainText().contains(QRegularExpression("(?s) for this\n.* -Ulock:w:0xfe:m\n")));
        QCOMPARE(board.folder.runs().last().section('\t', 1, 1), QString("m16"));
    }
};

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
