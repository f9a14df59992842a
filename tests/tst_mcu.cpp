#include "avrdude/ReadFile.h"
#include "fuses/Fuses.h"
#include "fuses/FusesByteView.h"
#include "mcu/AttributesView.h"
#include "mcu/BytesModel.h"
#include "mcu/Program.h"
#include "mcu/SignatureIndex.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class tst_Mcu : public QObject
{
    Q_OBJECT

private slots:
    void description()
    {
        Bench bench;
        bench.folder.write("mcu/X.json", R"({"mcu": "other", "id": "x1", "signature": "1E 00 01", "FuseBytes": [
            {"name": "Low", "id": "lfuse", "bits": [
                {"name": "B7", "default": 1, "enabled": 1}, {"name": "B6", "default": true, "enabled": true},
                {}, {}, {}, {}, {}, {"name": "B0", "default": 1, "enabled": 2}, {"name": "ninth", "default": 1}]},
            {"id": "lock", "bits": [{"name": "L", "default": 0, "enabled": 0}]}, 5]})");
        BytesModel(bench.avrdude).load("X");
        const SettingsRecord& settings = bench.avrdude.settings();
        QCOMPARE(QStringList({settings.mcuName, settings.mcuId, settings.signature}),
                 QStringList({"X", "x1", "1E 00 01"}));
        QCOMPARE(settings.fusesBytes.size(), 3);
        const FuseByte& low = settings.fusesBytes[0];
        QVERIFY(low.name == "Low" && low.id == "lfuse" && low.currentValue == 0x81 && low.defaultValue == 0x81);
        const auto bit = [](const FuseByte& byte, std::size_t i) {
            const FuseBit& b = byte.fuseBits[i];
            return QString("%1 %2 %3 %4%5")
                .arg(b.bitNumber)
                .arg(b.name)
                .arg(b.enabled)
                .arg(b.currentBitValue)
                .arg(b.defaultBitValue);
        };
        QCOMPARE(bit(low, 7), QString("7 B7 1 11"));
        QCOMPARE(bit(low, 6), QString("6 B6 0 00")); // a JSON boolean is no number
        QCOMPARE(bit(low, 0), QString("0 B0 1 11"));
        QCOMPARE(bit(settings.fusesBytes[1], 7), QString("7 L 0 00"));
        QCOMPARE(bit(settings.fusesBytes[1], 6), QString("0 NOT USED 0 00"));

        bench.folder.write("mcu/Array.json", "[1]"); // as if it were an empty object
        BytesModel(bench.avrdude).load("Array");
        QVERIFY(settings.mcuName == "Array" && settings.mcuId.isEmpty() && settings.fusesBytes.isEmpty());
    }

    void unusableDescriptions()
    {
        Bench bench;
        bench.folder.write("mcu/Broken.json", "{\"id\": \"x\"");
        bench.folder.write("mcu/Folder.json/x", "");
        bench.avrdude.settings().fusesBytes.resize(2);
        BytesModel model(bench.avrdude);
        for (const char* name : {"Missing", "Broken", "Folder"})
            model.load(name);
        QCOMPARE(bench.boxes.take(),
                 QStringList({"Korvel: MCU JSON FILE NOT FOUND", "JSON FILE ERROR: JSON FILE ERROR",
                              "Cannot open file: Cannot open file"}));
        const SettingsRecord& settings = bench.avrdude.settings();
        QVERIFY(settings.mcuName == "ATmega16" && settings.mcuId == "m16" && settings.fusesBytes.size() == 2);
    }

    void lists()
    {
        Bench bench;
        bench.folder.write("mcu/atmega8.json", R"({"mcu": "a8", "id": "m8", "signature": "1"})");
        bench.folder.write("mcu/ATtiny13.json", R"({"mcu": "t13", "id": "", "signature": "2"})");
        bench.folder.write("mcu/ATmega16.old.json", "[]");
        bench.folder.write("mcu/folder.json/x", "");
        Fuses fuses(bench.avrdude, nullptr);
        const Program program(bench.avrdude, fuses, nullptr);
        const QComboBox* list = program.findChild<AttributesView*>()->mcuList();
        QStringList names;
        for (int i = 0; i < list->count(); ++i)
            names += list->itemText(i);
        QCOMPARE(names, QStringList({"ATmega16", "ATtiny13", "atmega8"}));
        QCOMPARE(list->currentText(), QString("ATmega16")); // the record's, and nothing is loaded
        QCOMPARE(bench.avrdude.settings().mcuId, QString("m16"));

        SignatureIndex index;
        index.build();
        QCOMPARE(index.find("1").name + index.find("1").id + index.find("2").name, QString("a8m8"));
        QDir("mcu").removeRecursively();
        index.build();
        QVERIFY(index.find("1").name.isEmpty());
    }

    void picking()
    {
        Bench bench;
        for (const QString part : {"ATmega16", "ATmega2560", "ATtiny13A"})
            QVERIFY(QDir().mkpath("mcu") && QFile::copy(DATA_FOLDER "/mcu/" + part + ".json", "mcu/" + part + ".json"));
        Fuses fuses(bench.avrdude, nullptr);
        Program program(bench.avrdude, fuses, nullptr);
        fuses.show();
        QComboBox* list = program.findChild<AttributesView*>()->mcuList();
        const SettingsRecord& settings = bench.avrdude.settings();
        bench.boxes.delay = 50;
        for (const auto& [part, values] :
             {std::pair("ATmega2560", "6299FFFF"), {"ATtiny13A", "6AFFFF"}, {"ATmega16", "E199FF"}}) {
            QString shown; // while the box is open
            QTimer::singleShot(20, this, [&] {
                for (const FusesByteView* view : fuses.findChildren<FusesByteView*>())
                    shown += view->isVisible() ? view->value()->text() : "";
            });
            emit list->textActivated(part);
            QCOMPARE(shown, QString(values)); // no trace of the one before
            QCOMPARE(
                bench.boxes.take(),
                QStringList {QString("MCU: MCU selected: %1.\nFuse bytes set to datasheet default values.").arg(part)});
            QVERIFY(settings.mcuName == part && settings.fusesEnable);
        }
        emit list->textActivated("Missing"); // says so twice: that it is missing, and that it was selected
        QCOMPARE(bench.boxes.take().size(), 2);
        QCOMPARE(settings.mcuName + settings.mcuId, QString("Missingm16"));

        bench.avrdude.settings().fusesBytes.clear();
        fuses.rebuild();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(fuses.findChildren<FusesByteView*>().isEmpty() && !settings.fusesEnable);
    }

    void wholeChip()
    {
        Bench bench;
        Fuses fuses(bench.avrdude, nullptr);
        Program program(bench.avrdude, fuses, nullptr);
        const auto* view = program.findChild<AttributesView*>();
        QVERIFY(!view->autoDetectButton()->parent());
        const auto click = [&](QPushButton* button, const char* script) {
            bench.folder.write("script", script);
            button->click();
            const QString box = bench.boxes.wait().join('|');
            return box + bench.folder.runs().constLast().mid(7).join(' ');
        };
        QCOMPARE(click(view->eraseButton(), ""), QString("MCU: MCU erased successfully.-e"));
        QCOMPARE(click(view->autoDetectButton(), ""),
                 QString("MCU Detected: MCU auto-detected successfully. Do you want to continue?"));
        QTRY_VERIFY(bench.isIdle());
        bench.folder.write("calibration.hex", "\x0D\x0A\x9F");
        const QString read = "-U calibration:r:calibration.hex:r";
        QCOMPARE(click(view->readButton(), ""), "Calibration Byte: Calibration byte read successfully." + read);
        QCOMPARE(view->calibrationByte()->text() + bench.avrdude.settings().callByte, QString("0D 0A 9F0D 0A 9F"));
        QCOMPARE(click(view->readButton(), "err verification error"), "AVRDUDE: Verification error." + read);
        QVERIFY(view->calibrationByte()->text().isEmpty());
        QVERIFY(QFile::remove("calibration.hex"));
        QCOMPARE(click(view->readButton(), ""), "Calibration Byte: Calibration byte read successfully." + read);
        QVERIFY(view->calibrationByte()->text().isEmpty());
    }

    void resultFiles()
    {
        const WorkFolder folder;
        folder.write("a", "\x1e\x95\x0f");
        folder.write("empty", "");
        ReadFile readFile;
        QVector<QStringList> results;
        const auto collect = [&results](const QStringList& texts) { results += texts; };
        readFile.readFiles({"missing", "a", "empty"}, collect);
        readFile.readFiles({}, collect);
        QCOMPARE(results, QVector<QStringList>({{"1E 95 0F", ""}, {}}));
    }
};

QTEST_MAIN(tst_Mcu)
#include "tst_mcu.moc"
