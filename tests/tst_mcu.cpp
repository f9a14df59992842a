#include "avrdude/ReadFile.h"
#include "fuses/Fuses.h"
#include "fuses/FusesByteView.h"
#include "mcu/AttributesView.h"
#include "mcu/BytesModel.h"
#include "mcu/Program.h"
#include "mcu/SignatureIndex.h"
#include "support/Bench.h"

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

class tst_Mcu : public QObject
{
    Q_OBJECT

private slots:
    void descriptions()
    {
        Bench bench;
        bench.folder.write("mcu/X.json", R"({"mcu": "other", "id": "x1", "signature": "1E 00 01", "FuseBytes": [
            {"name": "Low", "id": "lfuse", "bits": [
                {"name": "B7", "default": 1, "enabled": 1}, {"name": "B6", "default": true, "enabled": true},
                {}, {}, {}, {}, {}, {"name": "B0", "default": 21, "enabled": 2}, {"name": "ninth", "default": 1}]},
            {"id": "lock", "bits": [{"name": "L", "default": 0, "enabled": 0}]}, 5]})");
        BytesModel model(bench.avrdude);
        model.load("X");
        bench.folder.write("mcu/Broken.json", "{\"id\": \"x\"");
        bench.folder.write("mcu/Folder.json/x", "");
        for (const char* unusable : {"Missing", "Broken", "Folder"})
            model.load(unusable);
        QCOMPARE(bench.boxes.take(),
                 QStringList({"Korvel: MCU JSON FILE NOT FOUND", "JSON FILE ERROR: JSON FILE ERROR",
                              "Cannot open file: Cannot open file"}));
        const SettingsRecord& settings = bench.avrdude.settings();
        QCOMPARE(settings.mcuName + '|' + settings.mcuId + '|' + settings.signature, QString("X|x1|1E 00 01"));
        QCOMPARE(settings.fusesBytes.size(), 3);
        const FuseByte& low = settings.fusesBytes[0];
        QVERIFY(low.name == "Low" && low.id == "lfuse" && low.currentValue == 0x81 && low.defaultValue == 0x81);
        const auto& lock = settings.fusesBytes[1].fuseBits;
        QStringList bits;
        for (const FuseBit& bit : {low.fuseBits[7], low.fuseBits[6], low.fuseBits[0], lock[7], lock[6]})
            bits += QString::asprintf("%d %s %d %u%u", bit.bitNumber, qPrintable(bit.name), bit.enabled,
                                      bit.currentBitValue, bit.defaultBitValue);
        // A JSON boolean is no number.
        QCOMPARE(bits, QStringList({"7 B7 1 11", "6 B6 0 00", "0 B0 1 11", "7 L 0 00", "0 NOT USED 0 00"}));

        bench.folder.write("mcu/Array.json", "[1]"); // as if it were an empty object
        model.load("Array");
        QVERIFY(settings.mcuName == "Array" && settings.mcuId.isEmpty() && settings.fusesBytes.isEmpty());
    }

    void listAndPicking()
    {
        Bench bench;
        for (const QString file : {"ATmega16.json", "ATmega2560.json", "ATtiny13A.json"})
            bench.folder.write("mcu/" + file, bench.folder.read(DATA_FOLDER "/mcu/" + file));
        bench.folder.write("mcu/atmega8.json", R"({"mcu": "a8", "id": "m8", "signature": "1"})");
        bench.folder.write("mcu/AT90.old.json", R"({"mcu": "a90", "id": "", "signature": "2"})");
        bench.folder.write("mcu/folder.json/x", "");
        SignatureIndex index;
        index.build();
        QCOMPARE(index.find("1").name + index.find("1").id + index.find("2").name, QString("a8m8"));

        Fuses fuses(bench.avrdude, nullptr);
        Program program(bench.avrdude, fuses, nullptr);
        fuses.show();
        const auto* view = program.findChild<AttributesView*>();
        QComboBox* list = view->mcuList();
        QStringList names;
        for (int i = 0; i < list->count(); ++i)
            names += list->itemText(i);
        QCOMPARE(names, QStringList({"AT90", "ATmega16", "ATmega2560", "ATtiny13A", "atmega8"}));
        SettingsRecord& settings = bench.avrdude.settings();
        QCOMPARE(list->currentText() + settings.mcuId, QString("ATmega16m16")); // the record's, and nothing is loaded
        settings.callByte = "5A";
        for (const auto& [name, position] : {std::pair("atmega8", 4), {"unlisted", -1}}) {
            settings.mcuName = name;
            program.refresh();
            QCOMPARE(list->currentIndex(), position);
            QCOMPARE(view->calibrationByte()->text(), QString("5A"));
        }

        bench.boxes.delay = 50;
        for (const auto& [part, values] : {std::pair("ATmega2560", "6299FFFF"),
                                           {"ATtiny13A", "6AFFFF"},
                                           {"ATmega16", "E199FF"},
                                           {"ATmega16", "E199FF"}}) {
            QString shown; // while the box is open
            QTimer::singleShot(20, this, [&] {
                for (const FusesByteView* editor : fuses.findChildren<FusesByteView*>())
                    shown += editor->isVisible() ? editor->value()->text() : "";
            });
            emit list->textActivated(part);
            QCOMPARE(shown, QString(values)); // no trace of the part before, and none of what was typed
            const QString box = "MCU: MCU selected: %1.\nFuse bytes set to datasheet default values.";
            QCOMPARE(bench.boxes.take(), QStringList {box.arg(part)});
            QVERIFY(settings.mcuName == part && settings.fusesEnable);
            QTest::keyClicks(fuses.findChild<FusesByteView*>()->value(), "00");
            QCOMPARE(settings.fusesBytes[0].currentValue, 0U);
        }
        emit list->textActivated("Missing"); // says so twice: that it is missing, and that it was selected
        QCOMPARE(bench.boxes.take().size(), 2);
        QCOMPARE(settings.mcuName + settings.mcuId, QString("Missingm16"));

        settings.fusesBytes.clear();
        fuses.rebuild();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(fuses.findChildren<FusesByteView*>().isEmpty() && !settings.fusesEnable);
        QDir("mcu").removeRecursively();
        index.build();
        QVERIFY(index.find("1").name.isEmpty());
    }

    void wholeChip()
    {
        Bench bench;
        Fuses fuses(bench.avrdude, nullptr);
        Program program(bench.avrdude, fuses, nullptr);
        const auto* view = program.findChild<AttributesView*>();
        QVERIFY(!view->autoDetectButton()->parent());
        QCOMPARE(bench.click(view->autoDetectButton()),
                 QString("MCU Detected: MCU auto-detected successfully. Do you want to continue?|"));
        bench.folder.write("calibration.hex", "another chip's");
        bench.folder.write("script", "wait 50\nmake calibration.hex 0D0A9F");
        const QString request = "|-U calibration:r:calibration.hex:r";
        const QString read = "Calibration Byte: Calibration byte read successfully." + request;
        QCOMPARE(bench.click(view->readButton()), read);
        QCOMPARE(view->calibrationByte()->text() + bench.avrdude.settings().callByte, QString("0D 0A 9F0D 0A 9F"));
        bench.folder.write("script", "err verification error");
        QCOMPARE(bench.click(view->readButton()), "AVRDUDE: Verification error." + request);
        QVERIFY(view->calibrationByte()->text().isEmpty());
        bench.folder.write("calibration.hex", "another chip's");
        bench.folder.write("script", "wait 50"); // as for a microcontroller that has none
        view->calibrationByte()->setText("old");
        QCOMPARE(bench.click(view->readButton()), read);
        QVERIFY(view->calibrationByte()->text().isEmpty());
    }

    void resultFiles()
    {
        const WorkFolder folder;
        folder.write("a", "\x1e\x95\x0f");
        folder.write("empty", "");
        QVector<QStringList> results;
        const auto collect = [&results](const QStringList& texts) { results += texts; };
        ReadFile().readFiles({"missing", "a", "empty"}, collect);
        ReadFile().readFiles({}, collect);
        QCOMPARE(results, QVector<QStringList>({{"1E 95 0F", ""}, {}}));
    }
};

QTEST_MAIN(tst_Mcu)
#include "tst_mcu.moc"
