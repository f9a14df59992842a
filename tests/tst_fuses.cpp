#include "fuses/FuseMeanings.h"
#include "fuses/FuseRequests.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteView.h"
#include "fuses/HexField.h"
#include "mcu/BytesModel.h"
#include "support/Bench.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QToolTip>
#include <QtTest>

namespace {

/// A byte whose bit 3 is locked and whose bit 4 can be clicked, but not typed away; both are 0 in an editor.
FuseByte makeByte(const QString& id, quint32 value)
{
    FuseByte byte {"Name of " + id, id, {}, value, value};
    byte.fuseBits.fill({0, true, "B", 0, 0});
    byte.fuseBits[3].enabled = false;
    byte.fuseBits[4].name = "NOT USED";
    return byte;
}

/// Lays the files that tell about the microcontroller @p name into the working folder.
void layDescription(const WorkFolder& folder, const QString& name)
{
    for (const QString& file :
         {"mcu/" + name + ".json", QString("mcu/meanings/fields.json"), QString("mcu/meanings/words.json")})
        folder.write(file, folder.read(DATA_FOLDER "/" + file));
}

} // namespace

class tst_Fuses : public QObject
{
    Q_OBJECT

private slots:
    void requests()
    {
        const FuseByte low = makeByte("lfuse", 0x62);
        const FuseByte high = makeByte("hfuse", 5);
        const FuseByte lock = makeByte("lock", 0xFF);
        for (const FuseBytes& bytes : {FuseBytes {lock, low, high}, {low, high, lock}, {low, lock, high}})
            QCOMPARE(FuseRequests::write(bytes).join(' '), QString("-Ulfuse:w:0x62:m -Uhfuse:w:0x5:m -Ulock:w:0xff:m"));
        QCOMPARE(FuseRequests::write({low}), QStringList({"-Ulfuse:w:0x62:m", ""}));
        QCOMPARE(FuseRequests::verify({lock, low}), QStringList({"-Ulock:v:0xff:m", "-Ulfuse:v:0x62:m"}));
    }

    void editing()
    {
        QApplication::clipboard()->setText("11");
        // The text, where the cursor is, the byte, and the byte after a click on each of the bits.
        for (const auto& [keys, result] : {std::pair("F,3,9", "E3 2 e3 14"), // one too many
                                           {"Shift+End,0", "02 1 2 f5"}, // instead of a selection
                                           {"Ctrl+V,G,Space,Ctrl+C,Ctrl+A", "C2 2 c2 35"},
                                           {"End,Backspace", "6 1 62 95"}, // leaves the byte alone
                                           {"Home,Shift+End,Del,E,4", "E4 2 e4 13"},
                                           {"Del,A,Left,Right,7", "A7 2 a7 50"}}) {
            Bench bench;
            FuseBytes& bytes = bench.avrdude.settings().fusesBytes;
            bytes = {makeByte("lfuse", 0x62)};
            Fuses fuses(bench.avrdude, nullptr);
            fuses.rebuild();
            const auto* editor = fuses.findChild<FusesByteView*>();
            for (const QString& key : QString(keys).split(','))
                QTest::keySequence(editor->value(), QKeySequence(key));
            const QString typed = QString("%1 %2 ").arg(editor->value()->text()).arg(editor->value()->cursorPosition());
            const QString value = QString::number(bytes[0].currentValue, 16);
            for (QCheckBox* box : editor->fusesBit())
                box->click();
            QCOMPARE(typed + value + ' ' + QString::number(bytes[0].currentValue, 16), QString(result));
            QInputMethodEvent composed;
            composed.setCommitString("c");
            QCoreApplication::sendEvent(editor->value(), &composed);
            QTest::mouseClick(editor->value(), Qt::LeftButton);
            QCOMPARE(editor->value()->selectedText().size(), 2);
            QTest::keyClick(editor->value(), Qt::Key_Delete);
            QFocusEvent leaving(QEvent::FocusOut);
            QCoreApplication::sendEvent(editor->value(), &leaving);
            QCOMPARE(editor->value()->text(),
                     QString::number(bytes[0].currentValue, 16).toUpper().rightJustified(2, '0'));
        }
    }

    void everyChangeIsExplained()
    {
        Bench bench;
        layDescription(bench.folder, "ATmega328P");
        Fuses fuses(bench.avrdude, nullptr);
        fuses.loadMcu("ATmega328P");
        fuses.rebuild();
        const auto* low = fuses.findChild<FusesByteView*>();
        const auto heard = [](QWidget* widget) {
            return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
        };
        const QString factory = "100010: internal oscillator 8 MHz; start-up 6 clocks, after a reset 14 clocks + 65 ms";
        QCOMPARE(heard(low->fusesBit()[5]), "Clock source and start-up time\n    SUT1..0 CKSEL3..0 = " + factory);
        const QSize plainSize = low->fusesBit()[5]->sizeHint();
        low->fusesBit()[5]->click();
        const QString changed =
            "Clock source and start-up time\n    "
            "SUT1..0 CKSEL3..0 = 000010: internal oscillator 8 MHz; start-up 6 clocks, after a reset "
            "14 clocks\n    Factory setting = "
            + factory;
        QCOMPARE(low->fusesBit()[0]->toolTip(), changed);
        QCOMPARE(heard(low->value()),
                 "Division of the clock at the start\n    CKDIV8 = 0: divided by 8\nClock output\n    CKOUT = 1: off\n"
                     + changed);
        QCOMPARE(low->fusesBit()[5]->sizeHint(), plainSize);
        QVERIFY(low->fusesBit()[5]->font().bold() && !low->fusesBit()[0]->font().bold());
        low->value()->setAttribute(Qt::WA_UnderMouse);
        QToolTip::showText({}, low->value()->toolTip(), low->value());
        QTest::keyClicks(low->value(), "62");
        QCOMPARE(QToolTip::text(), low->value()->toolTip());
        QVERIFY(low->fusesBit()[0]->toolTip().endsWith(" = " + factory) && !low->fusesBit()[5]->font().bold());

        bench.avrdude.settings().mcuId = "another";
        fuses.rebuild();
        QCOMPARE(fuses.findChildren<FusesByteView*>().last()->value()->toolTip(), QString());
    }

    void settingsAndWarnings_data()
    {
        QTest::addColumn<QString>("mcu");
        QTest::addColumn<QString>("id");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("told"); // setting and warning
        QTest::newRow("reset") << "ATmega328P"
                               << "hfuse" << 0x59 << "RSTDISBL = 0: ordinary pin|The reset pin becomes an ordinary pin";
        QTest::newRow("reset, TPI") << "ATtiny10"
                                    << "fuse" << 0xFE
                                    << "RSTDISBL = 0: ordinary pin|The reset pin becomes an ordinary pin";
        QTest::newRow("reset, PDI") << "ATxmega128A1U"
                                    << "fuse4" << 0xEE << "RSTDISBL = 0: no reset input";
        QTest::newRow("reset, high voltage only") << "ATtiny11"
                                                  << "fuse" << 0xF4 << "RSTDISBL = 0: ordinary pin";
        QTest::newRow("debugWIRE") << "ATtiny85"
                                   << "hfuse" << 0x9F << "DWEN = 0: on|The reset pin becomes the debugger's";
        QTest::newRow("ISP") << "ATmega16"
                             << "hfuse" << 0xB9 << "SPIEN = 1: off|A serial programmer";
        QTest::newRow("JTAG") << "ATmega16"
                              << "hfuse" << 0xD9 << "JTAGEN = 1: off|A JTAG programmer";
        QTest::newRow("JTAG beside PDI") << "ATxmega128A1U"
                                         << "fuse4" << 0xFF << "JTAGEN = 1: off|A JTAG programmer";
        QTest::newRow("UPDI as input") << "ATtiny1614"
                                       << "fuse5" << 0xF2 << "RSTPINCFG1..0 = 00: ordinary pin|The UPDI pin";
        QTest::newRow("UPDI as reset") << "ATtiny1614"
                                       << "fuse5" << 0xFA << "RSTPINCFG1..0 = 10: reset input|The UPDI pin";
        QTest::newRow("UPDI, reserved") << "ATtiny1614"
                                        << "fuse5" << 0xFE << "RSTPINCFG1..0 = 11: reserved|This setting";
        QTest::newRow("UPDI alone") << "AVR64DD32"
                                    << "fuse5" << 0xC0 << "UPDIPINCFG = 0: ordinary pin|The UPDI pin";
        QTest::newRow("reset beside UPDI") << "AVR128DB48"
                                           << "fuse5" << 0xC8 << "RSTPINCFG1..0 = 10: reset input";
        QTest::newRow("crystal")
            << "ATmega328P"
            << "lfuse" << 0x7F
            << "SUT1..0 CKSEL3..0 = 111111: crystal oscillator from 8 MHz; start-up 16K clocks, after a "
               "reset 14 clocks + 65 ms|Without this clock";
        QTest::newRow("crystal from the factory") << "AT90USB1287"
                                                  << "lfuse" << 0xDE << "CKDIV8 = 1: not divided";
        QTest::newRow("RC or clock") << "AT90S2343"
                                     << "fuse" << 0xDF << "RCEN = 1: external clock|Without this clock";
        QTest::newRow("slow")
            << "ATmega328P"
            << "lfuse" << 0x63
            << "SUT1..0 CKSEL3..0 = 100011: internal oscillator 128 kHz; start-up 6 clocks, after a reset "
               "14 clocks + 65 ms|So slow a chip";
        QTest::newRow("lock bits") << "ATmega328P"
                                   << "lock" << 0xFE
                                   << "LB2..1 = 10: locked for writing|A programmer can no longer write";
        QTest::newRow("key") << "ATtiny1614"
                             << "lock" << 0xC4
                             << "LB7..0 = 11000100: locked for writing and reading|A programmer can no longer read";
        QTest::newRow("boot lock bits") << "ATmega328P"
                                        << "lock" << 0xDF
                                        << "BLB12..11 = 01: no program in the application section can read it";
        QTest::newRow("missing bits in a field")
            << "ATtiny88"
            << "lfuse" << 0x6F
            << "SUT1..0 CKSEL1..0 = 1011: internal oscillator 128 kHz; start-up 6 clocks, after a reset "
               "14 clocks + 65 ms|So slow a chip";
        QTest::newRow("number") << "ATtiny1614"
                                << "fuse8" << 12 << "BOOTEND7..0 = 12";
    }

    void settingsAndWarnings()
    {
        QFETCH(QString, mcu);
        QFETCH(QString, id);
        QFETCH(int, value);
        QFETCH(QString, told);
        Bench bench;
        layDescription(bench.folder, mcu);
        BytesModel(bench.avrdude).load(mcu);
        FuseMeanings meanings;
        meanings.load(bench.avrdude.settings());
        QStringList changes; // of what the bits mean, with the line of the warning where there is one
        for (FuseByte byte : bench.avrdude.settings().fusesBytes) {
            if (byte.id == id)
                byte.currentValue = static_cast<quint32>(value);
            for (const FuseMeanings::Text& about : meanings.of(byte)) {
                const QStringList lines = about.text.split("\n    ");
                if (lines.size() > 2)
                    changes += lines.size() > 3 ? lines[1] + '|' + lines[3] : lines[1];
            }
        }
        QCOMPARE(changes.join(" and ").left(told.size()), told);
        QCOMPARE(changes.join(" and ").contains('|'), told.contains('|'));
    }

    void readingAndDefaults()
    {
        Bench bench;
        bench.avrdude.settings().fusesBytes = {makeByte("lfuse", 0x62), makeByte("lock", 0xFF)};
        Fuses fuses(bench.avrdude, nullptr);
        fuses.rebuild();
        const auto* buttons = fuses.findChild<FusesButtonsView*>();
        const auto shown = [&fuses] {
            QString values;
            for (const FusesByteView* editor : fuses.findChildren<FusesByteView*>())
                values += editor->value()->text();
            return values;
        };
        bench.folder.write("lfuse.hex", "\xFF"); // yesterday's
        bench.folder.write("script", "make lock.hex 0D\nwait 100");
        QTimer::singleShot(50, buttons->readButton(), &QPushButton::click); // takes nothing away
        QCOMPARE(bench.click(buttons->readButton()),
                 QString("FUSES: Fuse bytes read successfully.\nNot read: Name of lfuse"
                         "|-Ulfuse:r:lfuse.hex:r -Ulock:r:lock.hex:r"));
        QCOMPARE(shown(), QString("6205"));
        bench.click(buttons->defaultButton());
        QCOMPARE(shown(), QString("62E7"));

        bench.folder.write("script", "");
        QCOMPARE(bench.click(buttons->readButton()).section('|', 0, 0),
                 QString("FUSES: Not read: Name of lfuse, Name of lock"));

        // A profile comes before a reading ends.
        QVERIFY(bench.avrdude.settings().saveToFile("profile"));
        bench.folder.write("script", "make lfuse.hex C0\nmake lock.hex C0\nwait 100");
        buttons->readButton()->click();
        QVERIFY(bench.avrdude.settings().loadFromFile("profile"));
        QTRY_VERIFY(bench.isIdle());
        QCOMPARE(shown() + bench.boxes.take().join(""), QString("62E7"));
        QCOMPARE(bench.click(buttons->readButton()).section('|', 0, 0),
                 QString("FUSES: Fuse bytes read successfully."));
    }
};

QTEST_MAIN(tst_Fuses)
#include "tst_fuses.moc"
