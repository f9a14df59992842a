#include "base/ElidedLabel.h"
#include "mcu/description/BytesModel.h"
#include "profiles/ConfigurationView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "support/Bench.h"
#include "support/Table.h"

namespace {

/// The tab over a folder without profiles.
struct Tab : Bench {
    SettingsRecord& settings = avrdude.settings();
    Profiles tab {avrdude, nullptr};
    QList<QCheckBox*> areas = tab.findChild<SelectView*>()->findChildren<QCheckBox*>(); // flash, EEPROM, fuses
    ConfigurationView* configuration = tab.findChild<ConfigurationView*>();
    QComboBox* profiles = tab.findChild<ProgrammingView*>()->profiles();
    QPushButton* write = tab.findChild<ProgrammingView*>()->writeButton();

    /// Fills the fields and presses Add with the settings of a part.
    void add(const QString& name, const QString& part)
    {
        QDir().mkdir("profiles");
        configuration->name()->setText(name);
        configuration->description()->setText("Rev. B ");
        settings.mcuName = part;
        configuration->addButton()->click();
    }
};

/// The tab with something to write in each area.
struct Board : Tab {
    Board()
    {
        settings.fusesEnable = true;
        settings.cmdFlashWrite = QStringList {"-U", "flash:w:/f:a"};
        settings.cmdEepromWrite = QStringList {"-U", "eeprom:w:/f:a"};
        settings.fusesBytes = {FuseByte {"", "lock", {}, 0, 0xFE}};
    }

    /// Ticks the areas that have a letter: "f.f" are the flash and the fuses.
    void tick(const QString& letters)
    {
        for (int i = 0; i < areas.size(); ++i)
            areas[i]->setChecked(letters[i] != '.');
    }

    /// Presses Write and lets one run after another end until one with @p request is running.
    void writeUntil(const QString& request)
    {
        const auto prepare = [this](const QByteArray& run) {
            folder.write("script", "err this is run " + run + "\nawait go" + run); // has been read when it says so
        };
        prepare("0");
        write->click();
        for (int run = 0; QTest::qWaitFor([&] { return log.toPlainText().contains(QString("run %1\n").arg(run)); })
             && !requests()[run].contains(request);
             ++run) {
            prepare(QByteArray::number(run + 1));
            folder.write(QString("go%1").arg(run), "");
        }
    }

    /// The areas that were written, by avrdude's names.
    QString written() const
    {
        return requests().replaceInStrings(QRegularExpression("^-U ?(\\w+):.*"), "\\1").join(' ');
    }

    /// Lets all runs end.
    void finish()
    {
        folder.write("script", "");
        folder.write("go" + QString::number(requests().size() - 1), "");
    }
};

} // namespace

class tst_Profiles : public QObject
{
    Q_OBJECT

private slots:
    void addAndLoad()
    {
        Tab tab;
        tab.configuration->addButton()->click(); // no name, no profile: nothing
        tab.add("Плата №1 ", "ATtiny85 ");
        tab.folder.write("profiles/notes.JSON", ""); // none
        QCOMPARE(Profiles(tab.avrdude, nullptr).findChild<QComboBox*>()->count(), 1);
        tab.settings = {};
        tab.settings.avrdude = STAND_IN;
        emit tab.profiles->textActivated("Плата №1 ");
        QCOMPARE(tab.settings.mcuName + tab.settings.description + tab.settings.currentlyProfilesList,
                 QString("ATtiny85 Rev. B Плата №1 "));

        tab.folder.write("profiles/taken.json/file", "");
        tab.add("taken", {}); // cannot be written, and only the log says so
        emit tab.profiles->textActivated("gone");
        QCOMPARE(tab.avrdude.log().toPlainText(),
                 QString("Failed to save settings to file: ./profiles/taken.json\n"
                         "Failed to load settings from file: ./profiles/gone.json\n"));
        const QString saved = "Information: Profile \"%1.json\" saved successfully.";
        QCOMPARE(tab.boxes.take(), QStringList({saved.arg("Плата №1 "), saved.arg("taken")}));

        tab.settings.configurationList = QStringList {"A", "B"}; // of a file that somebody prepared
        tab.settings.currentlyProfilesList = "B";
        tab.tab.refresh();
        QCOMPARE(tab.profiles->currentText(), QString("B"));
    }

    void replaceAndRemove()
    {
        Tab tab;
        QPushButton* removeButton = tab.configuration->removeButton();
        removeButton->click(); // nothing is chosen
        tab.add("Board", "ATtiny85");
        for (const auto& [answer, asked, part, left] :
             {std::tuple(QMessageBox::No, 2, "ATtiny85", "Board|Board|Board|Rev. B "),
              {QMessageBox::Yes, 3, "ATmega8", "|||"}}) { // where it is replaced a box says so
            tab.boxes.take();
            tab.boxes.button = answer;
            tab.add("Board", "ATmega8");
            SettingsRecord saved;
            QVERIFY(saved.loadFromFile("profiles/Board.json") && saved.mcuName == part);
            removeButton->click();
            const QStringList boxes = tab.boxes.take();
            QCOMPARE(boxes[0].section(':', 0, 0), QString("Overwrite Confirmation, by default No"));
            QVERIFY(boxes.size() == asked && boxes.last() == "Delete: Delete this profile? + Board");
            const QString file = QDir("profiles").entryList(QDir::Files).join(',').remove(".json");
            QCOMPARE(file + '|' + tab.profiles->currentText() + '|' + tab.settings.profile.name + '|'
                         + tab.settings.description,
                     QString(left));
        }
    }

    void namesOfFiles()
    {
        Tab tab;
        const QString saved = "Information: Profile \"%1.json\" saved successfully.";
        const QString bad = "Information: The name of a profile cannot hold any of these characters: ";
        const QString device = "Information: Windows keeps this name for a device. Choose another one.";
        for (const auto& [name, told] : {std::pair<QString, QString>("../save", bad), // and a list, longer on Windows
                                         {"a\\b", bad},
                                         {"Lpt1", device},
                                         {"nul .x", device},
                                         {QString(300, 'x'), "Information: The name is too long for a file. Choose a "},
                                         {"v1.2", saved + " + After a restart the list calls it v1."},
                                         {".x", saved + " + After a restart the list does not show it."},
                                         {"console", saved}}) {
            tab.add(name, {});
            const QString expected = QString(told).replace("%1", name);
            QCOMPARE(tab.boxes.take().join('|').left(expected.size()), expected);
        }
        QCOMPARE(QDir("profiles").entryList(QDir::Files | QDir::Hidden),
                 QStringList({".x.json", "console.json", "v1.2.json"}));
        QVERIFY(!QFile::exists("save.json"));
        tab.folder.write("profiles/Console.json", "{}"); // the same one on Windows
        tab.add("Console", "ATtiny85");
        QVERIFY(tab.boxes.take().first().startsWith("Overwrite Confirmation, by default No: "));
        QCOMPARE(tab.folder.read("profiles/Console.json"), QByteArray("{}"));
    }

    void whatWriteWillSend()
    {
        Board board;
        const auto shown = [&] {
            return board.tab.findChild<ElidedLabel*>()->accessibleName().split(QString::fromUtf8(" · ")).join(", ");
        };
        board.tick("f.f"); // nothing is known of the part, and no field shows the file
        QCOMPARE(shown(), QString("m16, /f, 1 fuse byte, no profile loaded"));
        board.folder.write("mcu/ATmega16.json", R"({"id": "m16"})");
        board.settings.flashWrite = "C:/fw/a.hex"; // the prepared command is another's
        board.tab.showBoard();
        QCOMPARE(shown(), QString("ATmega16, a.hex, 1 fuse byte, no profile loaded"));
        board.add("Board", "ATmega16");
        QCOMPARE(shown(), QString("ATmega16, a.hex, 1 fuse byte"));
        board.settings.speed = "-B 8";
        board.tab.showBoard();
        QCOMPARE(shown(), QString("ATmega16, a.hex, 1 fuse byte, profile changed since it was loaded"));
        emit board.profiles->textActivated("Board");
        board.tab.refresh(); // as the window does
        QCOMPARE(shown(), QString("ATmega16, a.hex, 1 fuse byte"));
        board.tick("...");
        QCOMPARE(shown(), QString("ATmega16, profile changed since it was loaded"));
        board.boxes.button = QMessageBox::Yes;
        board.configuration->removeButton()->click();
        QCOMPARE(shown(), QString("ATmega16, no profile loaded"));
    }

    void aProfileThatLocksOutSaysSo()
    {
        Tab tab;
        tab.folder.copy({"mcu/ATmega16.json", "mcu/meanings/fields.json", "mcu/meanings/words.json"});
        BytesModel(tab.settings).load("ATmega16");
        tab.settings.fusesBytes[0].currentValue = 0xE0;
        tab.add("Board", "ATmega16");
        emit tab.profiles->textActivated("Board");
        QVERIFY(
            tab.log.toPlainText().startsWith("Low Fuse: Without this clock on its pins the chip will not answer. The"));
        QCOMPARE(tab.boxes.take().size(), 1); // that it was saved
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
                 {"1234",
                  "AVRDUDE, warning: Verification error.|-U flash:w:C:/a.bin:r"}, // nothing after the step that failed
             }) {
            tab.folder.write("C:/a.bin", file);
            QCOMPARE(tab.click(tab.write), QString(told));
        }
    }

    void nothingStartsWhileSomethingElseRuns()
    {
        Board board;
        board.folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 1})");
        board.settings.cmdFlashWrite = QStringList {"-U", "flash:w:a.bin:r"};
        board.tick("f..");
        board.click(board.write);
        board.folder.write("a.bin", "12"); // now the former board could not be written any more
        board.avrdude.execute({"else"});
        board.write->click();
        QTRY_VERIFY(board.isIdle());
        QCOMPARE(board.boxes.take() + board.requests(), QStringList({"-U flash:w:a.bin:r", "else"}));
        board.folder.write("a.bin", "");
        board.tick("fef");
        board.write->click(); // asked before any area is written
        QCOMPARE(board.boxes.take().join('|').section('\n', 0, 0) + board.requests().join(' '),
                 QString("FLASH, by default No: The file is empty. + The chip would be erased for nothing."
                         "-U flash:w:a.bin:r else"));
    }

    void aBoardIsFinishedWithWhatWasSetAtFirst()
    {
        Board board;
        board.areas[1]->click();
        board.areas[2]->click();
        board.write->click();
        SettingsRecord next = board.settings;
        next.mcuId = "t13";
        next.cmdEepromWrite = QStringList {"-U", "eeprom:w:next:a"};
        next.fusesBytes[0].currentValue = 0;
        QVERIFY(next.saveToFile("next") && board.settings.loadFromFile("next"));
        QCOMPARE(board.boxes.wait().size(), 1);
        QCOMPARE(board.written(), QString("eeprom lock"));
        QVERIFY(
            board.avrdude.log().toPlainText().contains(QRegularExpression("(?s) eeprom:w:.*\n.* -Ulock:w:0xfe:m\n")));
        QCOMPARE(board.folder.runs().last().section('\t', 1, 1), QString("m16"));
    }

    void pressedAgainInTheMiddle_data()
    {
        casesFrom("presses.txt", {"ticked", "running", "tickedThen", "requests", "told"});
    }

    void pressedAgainInTheMiddle()
    {
        Board board;
        board.tick(cell("ticked"));
        board.writeUntil(cell("running"));
        board.tick(cell("tickedThen"));
        board.write->click();
        board.finish();
        QString box = "Profiles: ";
        for (const QString& area : cell("told").split(", "))
            box += area + " write successfully.\n" + area + " verify successfully." + (area == "Fuse bits" ? "" : "\n");
        QCOMPARE(board.boxes.wait(), QStringList {box});
        QTEST(board.written(), "requests");
    }

    void anAreaThatIsTickedLaterHasToBeOneThatCanBeWritten()
    {
        Board board;
        board.folder.write("mcu/ATmega16.json", R"({"id": "m16", "eeprom": 4})");
        board.folder.write("a.bin", "12345");
        board.settings.cmdEepromWrite = QStringList {"-U", "eeprom:w:a.bin:r"};
        board.settings.fusesBytes.clear();
        board.tick("f..");
        board.writeUntil("flash");
        for (const QString areas : {"fe.", "f.f"}) { // a file that is too large, and nothing to write
            board.tick(areas);
            board.write->click();
        }
        QCOMPARE(board.boxes.take(), QStringList {"EEPROM: The file has 5 bytes, the memory only 4."});
        board.finish(); // what was running goes on
        QCOMPARE(board.boxes.wait().size(), 1);
        QCOMPARE(board.written(), QString("flash"));
    }
};

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
