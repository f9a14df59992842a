#include "base/ElidedLabel.h"
#include "mcu/description/BytesModel.h"
#include "profiles/BoardLog.h"
#include "profiles/BoardView.h"
#include "profiles/ConfigurationView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "profiles/SerialNumber.h"
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

/// The tab with a profile loaded that has something to say of boards.
struct Bench200 : Board {
    Bench200()
    {
        folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 16384, "eeprom": 512})");
        tick("fef");
        add("Lot", "ATmega16");
        load(R"({"quiet": true, "boardLog": "boards.csv", "serial": )" + serial(1001) + "}");
    }

    static QByteArray serial(int next)
    {
        return R"({"memory": "eeprom", "address": 16, "bytes": 4, "format": "little", "next": )"
            + QByteArray::number(next) + "}";
    }

    /// Loads the profile with @p keys in its file.
    void load(const QByteArray& keys)
    {
        QJsonObject profile = QJsonDocument::fromJson(folder.read("profiles/Lot.json")).object();
        const QJsonObject more = QJsonDocument::fromJson(keys).object();
        for (const QString key : {"quiet", "boardLog", "serial"})
            more.contains(key) ? void(profile.insert(key, more[key])) : profile.remove(key);
        folder.write("profiles/Lot.json", QJsonDocument(profile).toJson());
        boxes.take();
        emit profiles->textActivated("Lot");
        tab.refresh();
    }

    static int next(const QString& profile = "Lot")
    {
        return QJsonDocument::fromJson(WorkFolder::read("profiles/" + profile + ".json"))["serial"]["next"].toInt();
    }

    /// The texts of the last board.
    QString shown() const
    {
        QStringList texts;
        for (QLabel* label : tab.findChild<BoardView*>()->findChildren<QLabel*>())
            if (label->isVisibleTo(&tab))
                texts += label->accessibleName().isEmpty() ? label->text() : label->accessibleName();
        texts.removeAll({}); // the mark's
        return texts.join(" | ").replace(QRegularExpression(", [0-9.]+ s"), ", ? s");
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

    void serialNumbers_data() { casesFrom("numbers.txt", {"serial", "image", "fault"}); }

    void serialNumbers()
    {
        WorkFolder folder;
        folder.copy({"mcu/ATmega16.json"});
        const QJsonDocument json = QJsonDocument::fromJson("[" + cell("serial").toUtf8() + "]");
        const SerialNumber number = SerialNumber::from(json[0]);
        QCOMPARE(QString(number.image().toHex()), cell("image"));
        QCOMPARE(number.fault({}).left(cell("fault").size()), cell("fault"));
        QVERIFY(number.fault({}).isEmpty() == cell("fault").isEmpty());
    }

    void linesOfTheRecord()
    {
        WorkFolder folder;
        folder.write("check", "123456789"); // by which CRC-32 is known
        BoardLog::Board board;
        board.profile = "A, \"B\"\nПлата";
        board.areas = QStringList {"FLASH", "FUSES"};
        board.milliseconds = 2740;
        board.files = BoardLog::nameAndSum("check") + BoardLog::nameAndSum("gone");
        for (int i = 0; i < 2; ++i) {
            BoardLog log;
            QVERIFY(log.open("b.csv") && log.append(board));
        }
        const QString text = folder.read("b.csv");
        const QString line = ",\"A, \"\"B\"\"\nПлата\",,,FLASH FUSES,,,2.7,check,CBF43926,gone,,\r\n";
        const QString time = "\\d{4}-\\d\\d-\\d\\dT[\\d:]{8}(Z|[+-]\\d\\d:\\d\\d)";
        const QString expected = "^time,[\\w ,-]+\r\n(" + time + QRegularExpression::escape(line) + "){2}$";
        QVERIFY2(text.contains(QRegularExpression(expected)), qPrintable(text));
        folder.write("b.csv", "open"); // as an editor may leave it
        BoardLog log;
        QVERIFY(log.open("b.csv") && log.append(board) && folder.read("b.csv").startsWith("open\r\n2"));
        QDir().mkdir("folder.csv");
        QVERIFY(!BoardLog().open("folder.csv"));
        QFile::link("elsewhere", "link.csv");
        QVERIFY(!QFileInfo("link.csv").isSymLink() || !BoardLog().open("link.csv")); // Windows makes no such link
        for (const QString name :
             {"b.txt", "../b.csv", "C:b.csv", ".b.csv", "con.csv", "a/b.csv", "b\n.csv", "b.csv\n", ""})
            QVERIFY2(!BoardLog::isFileName(name), qPrintable(name));
        QVERIFY(BoardLog::isFileName("boards of lot 7.csv"));
    }

    void oneBoardAfterAnother()
    {
        Bench200 bench;
        QVERIFY(bench.log.toPlainText().endsWith("With this profile no box tells of a board that is good.\n"));
        QCOMPARE(
            bench.shown(),
            QString::fromUtf8("m16 · /f · /f · 1 fuse byte · number 1001 · boards.csv").replace("m16", "ATmega16"));

        bench.writeUntil("number"); // in the middle nobody else can get it
        QCOMPARE(Bench200::next(), 1002);
        QVERIFY(bench.requests().last().contains(QRegularExpression("^-U eeprom:w:number-\\w+\\.hex:i$")));
        const QString file = bench.requests().last().section(':', 2, 2);
        QCOMPARE(bench.folder.read(file),
                 QByteArray(":020000040000FA\n:01001000E906\n:020000040000FA\n:0100110003EB\n:020000040000FA\n"
                            ":0100120000ED\n:020000040000FA\n:0100130000EC\n:00000001FF\n"));
        bench.finish();
        QTRY_VERIFY(bench.isIdle());
        QVERIFY(!QFile::exists(file));
        QVERIFY(bench.boxes.take().isEmpty());
        QVERIFY(bench.shown().endsWith("number 1002 · boards.csv | Board 1: written, ? s | 1 good, 0 failed"));
        QCOMPARE(bench.written(), QString("flash eeprom eeprom lock"));

        bench.folder.write("script", "err avrdude: signature = 0x1e9403\nerr verification error\n");
        QCOMPARE(bench.click(bench.write).section('|', 0, 0), QString("AVRDUDE, warning: Verification error."));
        QVERIFY(bench.shown().endsWith(
            "number 1002 · boards.csv | Board 2: failed: Verification error. | 1 good, 1 failed"));
        QCOMPARE(Bench200::next(), 1002);

        const QStringList lines = QString(bench.folder.read("boards.csv")).split("\r\n");
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines[1].contains(",Lot,ATmega16,,FLASH EEPROM FUSES,good,,") && lines[1].endsWith(",1001"));
        QVERIFY(lines[2].contains(",1E 94 03,FLASH,failed,Verification error.,"));
        QVERIFY(lines[2].endsWith(",f,,,,"));

        bench.tab.findChild<BoardView*>()->resetButton()->click();
        QVERIFY(bench.shown().endsWith("0 good, 0 failed"));
        bench.settings.avrdude = "gone";
        bench.write->click();
        QVERIFY(bench.shown().endsWith("Board 1: failed: avrdude not found | 0 good, 1 failed"));
        QCOMPARE(Bench200::next(), 1002);
    }

    void aNumberInTheFlash()
    {
        Bench200 bench;
        bench.load(R"({"serial": {"memory": "flash", "address": 65536, "bytes": 1, "format": "big", "next": 7}})");
        QVERIFY(bench.boxes.take().last().endsWith("It lies outside the memory, which has 16384 bytes."));
        bench.folder.write("mcu/ATmega16.json", "{}"); // nothing is known of its memories
        bench.tick("f.f");
        QCOMPARE(bench.click(bench.write).section('|', 0, 0),
                 QString("Profiles: Flash write successfully.\nFlash verify successfully.\nFuse bits write "
                         "successfully.\nFuse bits verify successfully. + number 7"));
        QVERIFY(bench.requests()[1].contains(QRegularExpression("^-D -U flash:w:number-\\w+\\.hex:i$")));
        QVERIFY(bench.requests()[2].startsWith("-Ulock:"));
        QCOMPARE(bench.requests().size(), 3);
    }

    void keysStayInTheFileOfTheirProfile()
    {
        Bench200 bench;
        bench.boxes.button = QMessageBox::Yes;
        bench.add("Lot", "ATmega16");
        QCOMPARE(Bench200::next(), 1001);
        bench.add("Other", "ATmega16");
        QCOMPARE(Bench200::next("Other"), 0);
        QVERIFY(!bench.shown().contains("number"));
        QVERIFY(bench.settings.saveToFile("save.json") && !bench.folder.read("save.json").contains("boards.csv"));
        bench.load(R"({"serial": )" + Bench200::serial(5) + "}");
        bench.folder.write("profiles/Lot.json", QByteArray(bench.folder.read("profiles/Lot.json")).replace(" 5", " 9"));
        QVERIFY(bench.click(bench.write).contains("+ number 9")); // read again at each press
    }

    void aLineThatIsMissingIsToldThoughTheProfileIsQuiet()
    {
        Bench200 bench;
        bench.writeUntil("number");
        QFile::remove("boards.csv");
        QDir().mkdir("boards.csv");
        bench.finish();
        const QStringList told = bench.boxes.wait();
        QVERIFY2(told.join('|').endsWith("The line of this board is missing in boards.csv."),
                 qPrintable(told.join('|')));
    }

    void noNumberIsGivenTwice()
    {
        Bench200 bench;
        SerialNumber number = SerialNumber::from(QJsonDocument::fromJson(Bench200::serial(1001)).object());
        SerialNumber sameAgain = number;
        QVERIFY(number.take("profiles/Lot.json"));
        QVERIFY(!sameAgain.take("profiles/Lot.json")); // another window
        sameAgain.next = 1002;
        QVERIFY(sameAgain.take("profiles/Lot.json") && !number.giveBack("profiles/Lot.json"));
        QCOMPARE(Bench200::next(), 1003);
        QFile::rename("profiles/Lot.json", "elsewhere.json");
        QFile::link(QDir().absoluteFilePath("elsewhere.json"), "profiles/Lot.json");
        sameAgain.next = 1003;
        QVERIFY(!sameAgain.take("profiles/Lot.json"));
        bench.folder.write("profiles/Damaged.json", "{,"); // it may have had a number
        bench.boxes.button = QMessageBox::Yes;
        bench.add("Damaged", "ATmega16");
        QCOMPARE(bench.folder.read("profiles/Damaged.json"), QByteArray("{,"));
    }

    void theNumberComesBeforeTheLockWhateverIsPressed()
    {
        Bench200 bench;
        bench.load(R"({"serial": )" + Bench200::serial(1) + "}");
        bench.writeUntil("flash");
        bench.tick("..f");
        bench.write->click(); // the first of its steps is dropped
        bench.finish();
        QCOMPARE(bench.boxes.wait().size(), 1);
        QCOMPARE(bench.written(), QString("flash eeprom lock"));
    }

    void noBoardIsTouchedWhenItsKeysCannotBeFollowed()
    {
        Bench200 bench;
        const QString told = "Profiles, warning: No board is written with this profile. + ";
        for (const auto& [keys, fault] : {
                 std::pair<QByteArray, QString>(R"({"quiet": 1})", "\"quiet\" is neither true nor false."),
                 {R"({"boardLog": "../boards.csv"})", "\"boardLog\" is not the name of a file that ends in .csv."},
                 {R"({"serial": {}})", "The serial number cannot be written. Its memory is neither"},
             }) {
            bench.load(keys);
            QCOMPARE(bench.boxes.take().join('|').left((told + fault).size()), told + fault);
            QCOMPARE(bench.click(bench.write).left((told + fault).size()), told + fault);
        }
        QDir().mkdir("folder.csv");
        bench.load(R"({"boardLog": "folder.csv"})");
        QVERIFY(bench.click(bench.write).startsWith(told + "The record of the boards cannot be written: "));
        bench.load(R"({"serial": )" + Bench200::serial(1) + "}");
        bench.settings.arguments = "-e";
        QVERIFY(bench.click(bench.write).contains("The argument -e would erase the chip"));
        bench.settings.arguments.clear();
        QFile::remove("profiles/Lot.json");
        QVERIFY(bench.click(bench.write).startsWith(told));
        QVERIFY(bench.requests().isEmpty());
    }
};

QTEST_MAIN(tst_Profiles)
#include "tst_profiles.moc"
