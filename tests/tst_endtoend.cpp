// The real window, the real avrdude and the virtual programmer: what a person with a chip on the bench would see.

#include "fuses/FusesButtonsView.h"
#include "mcu/AttributesView.h"
#include "memory/FlashView.h"
#include "profiles/ProgrammingView.h"
#include "support/Desk.h"
#include "support/ShownFuses.h"

class tst_EndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void writeVerifyRead()
    {
        Desk desk;
        for (const QString name : {"FLASH", "EEPROM"}) {
            const MemoryView* memory = desk.window->findChildren<MemoryView*>().at(name == "FLASH" ? 0 : 1);
            QByteArray firmware;
            for (int i = 0; i < (name == "FLASH" ? 5001 : 301); ++i)
                firmware.append(static_cast<char>(i * i / 7 + i));
            desk.folder.write("my firmware.bin", firmware);
            memory->writePath()->setText("my firmware.bin");
            const QString box = desk.boxAfter(memory->writeButton());
            QCOMPARE(box, QString("%1: %1 written successfully.\n%1 verified successfully.").arg(name));
            desk.folder.write("my firmware.bin", firmware + "one byte more");
            QVERIFY(desk.boxAfter(memory->writeVerifyButton()).startsWith("AVRDUDE, warning: Verification error. + "));

            const QString read = QString("%1: %1 read successfully.").arg(name);
            memory->readPath()->setText("back.hex");
            QCOMPARE(desk.boxAfter(memory->readButton()), read);
            QVERIFY(desk.folder.read("back.hex").startsWith(":"));
            QCOMPARE(desk.boxAfter(memory->readVerifyButton()), QString("%1: %1 verified successfully.").arg(name));
            memory->readPath()->setText("back.bin");
            QCOMPARE(desk.boxAfter(memory->readButton()), read);
            const QByteArray back = desk.folder.read("back.bin");
            QCOMPARE(back, firmware.leftJustified(back.size(), '\xff'));
        }
    }

    void namesThatAreNoOptions()
    {
        Desk desk;
        const MemoryView* memory = desk.window->findChildren<MemoryView*>().at(1);
        QStringList names {"-e.hex"};
#ifndef Q_OS_WIN
        names += {"a:b.hex", "x.hex:r", " b .hex", "flash:w:c.hex"};
#endif
        for (int i = 0; i < names.size(); ++i) {
            const QByteArray sum = QByteArray::number(0xFF - i, 16).toUpper();
            desk.folder.write(names[i], ":010000000" + QByteArray::number(i) + sum + "\n:00000001FF\n");
            memory->writePath()->setText(names[i]);
            QVERIFY(desk.boxAfter(memory->writeButton()).startsWith("EEPROM: EEPROM written successfully.\n"));
            memory->readPath()->setText("back.bin");
            QVERIFY(desk.boxAfter(memory->readButton()).startsWith("EEPROM: EEPROM read successfully."));
            QCOMPARE(static_cast<int>(desk.folder.read("back.bin").at(0)), i);
        }
    }

    void fusesAndWholeChip()
    {
        Desk desk;
        const auto* attributes = desk.window->findChild<AttributesView*>();
        emit attributes->mcuList()->textActivated("ATmega16");
        desk.boxes.take();
        const auto* buttons = desk.window->findChild<FusesButtonsView*>();
        const auto chip = [&desk] {
            const auto state = QJsonDocument::fromJson(desk.folder.read("chip")).object();
            return state["fuses"]["low"].toString() + state["fuses"]["high"].toString() + state["lock"].toString();
        };
        const auto editors = desk.window->findChildren<FusesByteView*>();
        QTest::keyClicks(editors[0]->value(), "e4");
        editors[2]->fusesBit()[0]->click(); // LB1
        QCOMPARE(desk.boxAfter(buttons->writeButton()), QString("Information: Fuse bytes written successfully."));
        QCOMPARE(chip(), QString("0xE40x990xFE"));
        QCOMPARE(desk.boxAfter(buttons->verifyButton()), QString("FUSES: Fuse bytes verified successfully."));
        QCOMPARE(desk.boxAfter(attributes->eraseButton()), QString("MCU: MCU erased successfully."));
        QCOMPARE(chip(), QString("0xE40x990xFF"));
        QCOMPARE(desk.runAvrdude({"-Ulfuse:w:0xd1:m", "-Uhfuse:w:0x91:m"}), 0);
        QVERIFY(desk.boxAfter(buttons->verifyButton()).startsWith("AVRDUDE, warning: Verification error. + "));
        QCOMPARE(desk.boxAfter(buttons->readButton()), QString("FUSES: Fuse bytes read successfully."));
        QCOMPARE(shownFuses(*desk.window), QString("D191FF"));
    }

    void profiles()
    {
        Desk desk;
        const auto* view = desk.window->findChild<ProgrammingView*>();
        emit view->profiles()->textActivated("Blink complete");
        for (const QString board : {"one", "the next"}) {
            QCOMPARE(desk.runAvrdude({"-e", "-Ulfuse:w:0x62:m", "-Uhfuse:w:0x99:m"}), 0); // nothing on it yet
            QCOMPARE(board + desk.boxAfter(view->writeButton()).remove(" successfully."),
                     board
                         + "Profiles: Flash write\nFlash verify\nEeprom write\nEeprom verify\n"
                           "Fuse bits write\nFuse bits verify");
            QCOMPARE(desk.runAvrdude({"-Uflash:v:demo/blink.hex:i", "-Ueeprom:v:demo/greeting.eep:i",
                                      "-Ulfuse:v:0xe1:m", "-Uhfuse:v:0xd9:m", "-Ulock:v:0xff:m"}),
                     0);
        }
    }

    void lostChip()
    {
        Desk desk;
        emit desk.window->findChild<AttributesView*>()->mcuList()->textActivated("ATmega16");
        desk.boxes.take();
        const auto* buttons = desk.window->findChild<FusesButtonsView*>();
        QTest::keyClicks(desk.window->findChild<FusesByteView*>()->value(), "ef"); // a crystal
        QCOMPARE(desk.boxAfter(buttons->writeButton()), QString("Information: Fuse bytes written successfully."));
        const QString read = "FUSES: Fuse bytes read successfully.";
        const QString noAnswer = "AVRDUDE, warning: Programmer did not detect the microcontroller";
        for (const auto& [bench, answers, fuses] : {std::tuple("", false, "EF99FF"),
                                                    {"--clock=8000000", true, "EF99FF"},
                                                    {"--clock=32768", false, "EF99FF"}, // slower than the bit clock
                                                    {"--rescue", true, "E199FF"},
                                                    {"", true, "E199FF"}}) {
            desk.startProgrammer(bench);
            const QString box = desk.boxAfter(buttons->readButton()).section('\n', 0, 0);
            QCOMPARE(desk.logHas("no device"), !answers);
            QCOMPARE(bench + box, bench + (answers ? read : noAnswer));
            QCOMPARE(shownFuses(*desk.window), QString(fuses));
        }
    }

    /// A desk with another chip, which is chosen.
    static std::unique_ptr<Desk> deskWith(const QString& part, const QString& programmer)
    {
        auto desk = std::make_unique<Desk>("--part=" + part);
        desk->folder.copy({"mcu/" + part + ".json"});
        const QString entry = "programmer/" + programmer + ".json";
        desk->folder.write(entry, desk->folder.read(DATA_FOLDER "/" + entry).replace(":7016", desk->port));
        desk->window = nullptr; // what it lists it has read
        desk->window = std::make_unique<KorvelApp>();
        desk->window->show();
        desk->avrdude = desk->window->findChild<Avrdude*>();
        desk->window->findChild<SettingsView*>()->programmer()->setCurrentText(programmer);
        emit desk->window->findChild<AttributesView*>()->mcuList()->textActivated(part);
        desk->boxes.take();
        return desk;
    }

    void everyKindOfChip()
    {
        for (const auto& [part, programmer] : {std::pair<QString, QString>("ATmega88", "Virtual programmer"),
                                               {"ATtiny1614", "Virtual programmer (UPDI)"},
                                               {"ATmega4809", "Virtual programmer (UPDI)"},
                                               {"AVR128DA48", "Virtual programmer (UPDI)"},
                                               {"ATxmega128A4U", "Virtual programmer (PDI)"}}) {
            const auto desk = deskWith(part, programmer);
            const auto* flash = desk->window->findChild<FlashView*>();
            flash->writePath()->setText("demo/blink.hex");
            QCOMPARE(part + desk->boxAfter(flash->writeButton()),
                     part + "FLASH: FLASH written successfully.\nFLASH verified successfully.");
            const auto* buttons = desk->window->findChild<FusesButtonsView*>();
            const QString fuses = shownFuses(*desk->window);
            QCOMPARE(desk->boxAfter(buttons->writeButton()), QString("Information: Fuse bytes written successfully."));
            QCOMPARE(desk->boxAfter(buttons->readButton()), QString("FUSES: Fuse bytes read successfully."));
            QCOMPARE(part + shownFuses(*desk->window), part + fuses);
            QCOMPARE(desk->boxAfter(desk->window->findChild<AttributesView*>()->eraseButton()),
                     QString("MCU: MCU erased successfully."));
            QVERIFY(desk->boxAfter(flash->writeVerifyButton()).startsWith("AVRDUDE, warning: Verification error. + "));
        }
    }

    void modernChipThatAnswersNoMore()
    {
        const QString lost =
            "AVRDUDE, warning: See the message in the dialog box. + %1 failed.\n\nIs the plug the right way round";
        for (const auto& [byte, value] : {std::pair(4, "f2"), {8, "00"}}) { // the UPDI pin, the lock
            const auto desk = deskWith("ATtiny1614", "Virtual programmer (UPDI)");
            const auto* buttons = desk->window->findChild<FusesButtonsView*>();
            desk->boxes.button = QMessageBox::Yes;
            QTest::keyClicks(desk->window->findChildren<FusesByteView*>()[byte]->value(), value);
            QVERIFY(desk->boxAfter(buttons->writeButton()).contains("written successfully."));
            const QString read = desk->boxAfter(buttons->readButton());
            QVERIFY2(read.startsWith(lost.arg("Reading the fuse bytes")), qPrintable(read));
            const QString erased = desk->boxAfter(desk->window->findChild<AttributesView*>()->eraseButton());
            QVERIFY2(erased.startsWith(lost.arg("Erasing the chip")) && erased.contains("It may be locked: "),
                     qPrintable(erased));
            desk->startProgrammer("--part=ATtiny1614 --rescue");
            QCOMPARE(desk->boxAfter(buttons->readButton()), QString("FUSES: Fuse bytes read successfully."));
        }
    }

    void failures()
    {
        for (const auto& [options, part, message, advice] :
             {std::tuple("", "m328p", "Wrong microcontroller selected.", "The chip says that it is: ATmega16."),
              {"--silent", "m16", "Programmer not found.", "Is net:127.0.0.1:"},
#ifndef Q_OS_WIN // where avrdude 7.1 reads on for ever from a connection that the other side has closed
              {"--unplug-after=50", "m16", "Programmer not found.", "Writing the flash failed."},
#endif
              {"--flip=0x10", "m16", "Verification error.", "The chip differs from the file at address 0x0010."}}) {
            Desk desk(options);
            desk.folder.write("fw.bin", QByteArray(100, 'x'));
            desk.avrdude->settings().mcuId = part;
            auto* flash = desk.window->findChild<FlashView*>();
            flash->writePath()->setText("fw.bin");
            const QString told = desk.boxAfter(flash->writeButton()).remove(", by default OK"); // beside the parts
            const bool isKilled =
                told.startsWith("Information, warning: Process avrdude error"); // by SIGPIPE, if quick
            if (options != QString("--unplug-after=50") || !isKilled)
                QCOMPARE(options + told.section(" + ", 0, 0), options + QString("AVRDUDE, warning: ") + message);
            QVERIFY2(told.contains(advice), qPrintable(told));
        }
    }

    void choosingThePartThatItIs()
    {
        Desk desk;
        emit desk.window->findChild<AttributesView*>()->mcuList()->textActivated("ATmega328P");
        desk.boxes.take();
        desk.boxes.button = QMessageBox::NoButton;
        desk.boxes.onOpen = [] {
            for (auto* button : QApplication::activeModalWidget()->findChildren<QPushButton*>())
                if (button->text() == "ATmega16")
                    button->click();
        };
        const QString told = desk.boxAfter(desk.window->findChild<FusesButtonsView*>()->readButton());
        QVERIFY2(told.endsWith("| MCU: MCU selected: ATmega16.\nFuse bytes set to datasheet default values."),
                 qPrintable(told));
        QCOMPARE(desk.avrdude->settings().mcuId, QString("m16"));
    }
};

QTEST_MAIN(tst_EndToEnd)
#include "tst_endtoend.moc"
