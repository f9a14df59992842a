#include "fuses/Fuses.h"
#include "fuses/FusesByteView.h"
#include "fuses/HexField.h"
#include "mcu/AttributesView.h"
#include "mcu/BytesModel.h"
#include "mcu/Program.h"
#include "support/Bench.h"

#include <QtTest>
#include <QtWidgets>

class tst_Mcu : public QObject
{
    Q_OBJECT

private slots:
    void descriptions()
    {
        Bench bench;
        bench.folder.write("mcu/X.json", R"({"mcu": "other", "id": "x1", "signature": "1E 00 01", "FuseBytes": [
            {"id": "lfuse", "bits": [{"name": "B7", "default": 1, "enabled": 1}, {"default": true, "enabled": true},
                {}, {}, {}, {}, {}, {"name": "B0", "default": 21, "enabled": 2}, {"name": "ninth", "default": 1}]},
            {"id": "lock", "bits": [{"name": "L"}]}]})");
        bench.folder.write("mcu/Broken.json", "{\"id\": \"x\"");
        BytesModel model(bench.avrdude);
        for (const char* name : {"X", "Missing", "Broken"}) // the last two change nothing
            model.load(name);
        const SettingsRecord& settings = bench.avrdude.settings();
        QStringList texts = bench.boxes.take() + QStringList {settings.mcuName, settings.mcuId, settings.signature};
        for (const FuseByte& byte : settings.fusesBytes) {
            texts += QString("%1 %2 %3").arg(byte.id).arg(byte.currentValue, 0, 16).arg(byte.defaultValue, 0, 16);
            for (const FuseBit& bit : {byte.fuseBits[7], byte.fuseBits[6], byte.fuseBits[0]})
                texts += QString("%1 %2 %3").arg(bit.name).arg(bit.enabled).arg(bit.defaultBitValue);
        }
        // A JSON boolean is no number, and a bit is 0 or 1.
        QCOMPARE(texts.join('|'),
                 QString("Korvel: MCU JSON FILE NOT FOUND|JSON FILE ERROR: JSON FILE ERROR|"
                         "X|x1|1E 00 01|lfuse 81 81|B7 1 1| 0 0|B0 1 1|lock 0 0|L 0 0|NOT USED 0 0|NOT USED 0 0"));
    }

    void pickingAndReading()
    {
        Bench bench;
        bench.folder.copy({"mcu/ATmega2560.json", "mcu/ATmega16.json"});
        bench.folder.write("mcu/AT90.old.json", "{}"); // listed up to the first dot
        Fuses fuses(bench.avrdude, nullptr);
        Program program(bench.avrdude, fuses, nullptr);
        program.refresh();
        fuses.show();
        const auto* view = program.findChild<AttributesView*>();
        QComboBox* list = view->mcuList();
        const SettingsRecord& settings = bench.avrdude.settings();
        QCOMPARE(list->itemText(0) + list->itemText(1) + list->itemText(2), QString("AT90ATmega16ATmega2560"));
        QCOMPARE(list->currentText(), QString("ATmega16"));
        const QString box = "MCU: MCU selected: %1.\nFuse bytes set to datasheet default values.";
        bench.boxes.delay = 50;
        for (const auto& [part, values] :
             {std::pair("ATmega2560", "6299FFFF"), {"ATmega16", "E199FF"}, {"ATmega16", "E199FF"}}) {
            QString shown; // while the box is open, however long it takes to open
            QTimer::singleShot(0, this, [&] {
                QTimer::singleShot(20, this, [&] {
                    for (const FusesByteView* editor : fuses.findChildren<FusesByteView*>())
                        shown += editor->isVisible() ? editor->value()->text() : "";
                });
            });
            emit list->textActivated(part);
            // No trace of the part before, and none of what was typed.
            QCOMPARE(shown + bench.boxes.take().join('|'), values + box.arg(part));
            QVERIFY(settings.mcuName == part && settings.fusesEnable);
            QTest::keyClicks(fuses.findChild<FusesByteView*>()->value(), "00");
            QCOMPARE(settings.fusesBytes[0].currentValue, 0U);
        }
        emit list->textActivated("Missing");
        QCOMPARE(bench.boxes.take().size(), 2); // that it is missing, and that it was selected

        const QString read = "Calibration Byte: Calibration byte read successfully.";
        for (const auto& [script, told, shown] :
             {std::array<QString, 3> {"make calibration.hex 0D0A9F\nwait 100", read, "0D 0A 9F"},
              {"wait 100\nerr verification error", "AVRDUDE: Verification error.", ""},
              {"wait 100", read, ""}}) { // as for a microcontroller that has none
            bench.folder.write("calibration.hex", "another chip's");
            bench.folder.write("script", script.toUtf8());
            QTimer::singleShot(50, view->readButton(), &QPushButton::click); // pressed again in the middle
            QCOMPARE(bench.click(view->readButton()), told + "|-U calibration:r:calibration.hex:r");
            QCOMPARE(view->calibrationByte()->text(), shown);
        }
        bench.folder.write("script", "make calibration.hex 11\nwait 100");
        view->readButton()->click();
        emit list->textActivated("ATmega16"); // another part than was read
        QTRY_VERIFY(bench.isIdle());
        QCOMPARE(bench.boxes.take(), QStringList {box.arg("ATmega16")});
        emit list->textActivated("Missing");
        bench.boxes.take();
        program.refresh(); // the list has no entry for the name, and shows none; the byte read last is remembered
        const QStringList state {settings.mcuName, settings.mcuId, list->currentText(),
                                 view->calibrationByte()->text()};
        QCOMPARE(state.join('|'), QString("Missing|m16||0D 0A 9F"));
    }
};

QTEST_MAIN(tst_Mcu)
#include "tst_mcu.moc"
