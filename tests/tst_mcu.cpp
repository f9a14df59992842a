#include "fuses/Fuses.h"
#include "mcu/AttributesView.h"
#include "mcu/Program.h"
#include "mcu/description/BytesModel.h"
#include "support/Bench.h"
#include "support/ShownFuses.h"

namespace {

const QString box = "MCU: MCU selected: %1.\nFuse bytes set to datasheet default values.";

struct Descriptions : Bench {
    Descriptions()
    {
        folder.copy({"mcu/ATmega2560.json", "mcu/ATmega16.json"});
        folder.write("mcu/AT90.old.json", "{}"); // listed up to the first dot
    }
};

/// The Programming tab over them, with the Fuses tab beside it.
struct Tab : Descriptions {
    Tab()
    {
        program.refresh();
        fuses.resize(400, 100); // has to scroll
        fuses.show();
    }

    Fuses fuses {avrdude, nullptr};
    Program program {avrdude, fuses, nullptr};
    const AttributesView* view = program.findChild<AttributesView*>();
    QComboBox* list = view->mcuList();
    const SettingsRecord& settings = avrdude.settings();
};

} // namespace

class tst_Mcu : public QObject
{
    Q_OBJECT

private slots:
    void loadingADescription()
    {
        Bench bench;
        bench.folder.write("mcu/X.json", R"({"mcu": "other", "id": "x1", "FuseBytes": [{"id": "lfuse", "bits": [
            {"name": "B7", "default": 1, "enabled": 1}, {"default": true, "enabled": true}, {}, {}, {}, {}, {},
            {"name": "B0", "default": 21}, {"name": "ninth", "default": 1}]}, {"id": "lock", "bits": [{"name": "L"}]}]})");
        bench.folder.write("mcu/Broken.json", "{\"id\": \"x\"");
        BytesModel model(bench.avrdude.settings());
        for (const char* name : {"X", "Missing", "Broken"}) // the last two change nothing
            model.load(name);
        const QStringList failed {"Korvel: MCU JSON FILE NOT FOUND", "JSON FILE ERROR: JSON FILE ERROR"};
        QCOMPARE(bench.boxes.take(), failed);
        // The file's name counts.
        QCOMPARE(bench.avrdude.settings().mcuName + '|' + bench.avrdude.settings().mcuId, QString("X|x1"));
        const FuseBytes& bytes = bench.avrdude.settings().fusesBytes;
        QCOMPARE(bytes[0].defaultValue, 0x81U); // a JSON boolean is no number, and a bit is 0 or 1
        QVERIFY(bytes[0].fuseBits[7].enabled && !bytes[0].fuseBits[6].enabled);
        QCOMPARE(bytes[1].fuseBits[7].name + '|' + bytes[1].fuseBits[6].name, QString("L|NOT USED"));
    }

    void theListIsSortedAndCutAtTheFirstDot()
    {
        const Tab tab;
        QCOMPARE(tab.list->itemText(0) + tab.list->itemText(1) + tab.list->itemText(2),
                 QString("AT90ATmega16ATmega2560"));
        QCOMPARE(tab.list->currentText(), QString("ATmega16"));
    }

    void picking()
    {
        Tab tab;
        auto* scrollBar = tab.fuses.findChild<QScrollArea*>()->verticalScrollBar();
        QString shown; // while the box is open
        tab.boxes.onOpen = [&] { shown = shownFuses(tab.fuses); };
        for (const auto& [part, factory] :
             {std::pair("ATmega2560", "6299FFFF"), {"ATmega16", "E199FF"}, {"ATmega16", "E199FF"}}) {
            scrollBar->setValue(9);
            emit tab.list->textActivated(part);
            QCOMPARE(tab.boxes.take(), QStringList {box.arg(part)});
            QCOMPARE(shown, QString(factory)); // no trace of the part before, nor of what was typed
            QVERIFY(tab.settings.mcuName == part && tab.settings.fusesEnable);
            QCOMPARE(scrollBar->value(), 0); // from the first byte on
            QTest::keyClicks(tab.fuses.findChild<FusesByteView*>()->value(), "00");
            QCOMPARE(tab.settings.fusesBytes[0].currentValue, 0U);
        }
    }

    void pickingWhatIsMissing()
    {
        Tab tab;
        emit tab.list->textActivated("Missing");
        QCOMPARE(tab.boxes.take(), QStringList({"Korvel: MCU JSON FILE NOT FOUND", box.arg("Missing")}));
        tab.program.refresh();
        // The list has no entry for the name, and shows none. All else is that of the part before.
        QCOMPARE(tab.settings.mcuName + '|' + tab.settings.mcuId + '|' + tab.list->currentText(),
                 QString("Missing|m16|"));
    }

    void readingTheCalibrationByte()
    {
        Tab tab;
        const QString told =
            "Calibration Byte%1: Calibration byte read successfully.%2|-U calibration:r:calibration.hex:r";
        const QString none = " + avrdude has read none: most likely the microcontroller has no such byte.";
        for (const auto& [script, shown] : {std::pair("", ""), {"make calibration.hex 0D0A9F", "0D 0A 9F"}}) {
            tab.folder.write("calibration.hex", "another chip's");
            tab.folder.write("script", script);
            QCOMPARE(tab.click(tab.view->readButton()),
                     *shown ? told.arg("", "") : told.arg(", warning", none)); // the text stays, whatever came
            QCOMPARE(tab.view->calibrationByte()->text(), QString(shown));
        }
        // A part is picked while the reading runs: what comes is not its byte.
        tab.folder.write("script", "make calibration.hex 11\nwait 100");
        tab.view->readButton()->click();
        emit tab.list->textActivated("ATmega2560");
        QTRY_VERIFY(tab.isIdle());
        QCOMPARE(tab.boxes.take(), QStringList {box.arg("ATmega2560")});
        QCOMPARE(tab.view->calibrationByte()->text() + tab.settings.callByte, QString()); // nor is the former
    }
};

QTEST_MAIN(tst_Mcu)
#include "tst_mcu.moc"
