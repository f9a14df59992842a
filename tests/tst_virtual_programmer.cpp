#include "Chip.h"
#include "Stk500.h"
#include "VirtualProgrammer.h"

#include "support/WorkFolder.h"

#include <QTcpSocket>
#include <QtTest>

namespace {

constexpr auto bytes = QByteArray::fromHex;

/// Hands the chip the instructions, four bytes each in hexadecimal, and returns its answer to the last one.
int instruct(Chip& chip, const char* instructions)
{
    Chip::Instruction in {};
    for (QByteArray left = bytes(instructions); !left.isEmpty(); left.remove(0, 4)) {
        std::copy_n(left.begin(), 4, in.begin());
        in = chip.transfer(in);
    }
    return in[3];
}

} // namespace

class tst_VirtualProgrammer : public QObject
{
    Q_OBJECT

private slots:
    void chipFollowsTheDatasheet()
    {
        for (const auto& [what, part, instructions, answer] :
             {std::tuple("no answer before programming", "ATmega16", "30000100", 0xff),
              {"no write before programming", "ATmega16", "C0000011 AC530000 A0000000", 0xff},
              {"flash bits only fall", "ATtiny85", "AC530000 400005F3 4C000500 4000053F 4C000500 20000500", 0x33},
              {"until an erase", "ATtiny85", "AC530000 400005F3 4C000500 AC800000 4000053F 4C000500 20000500", 0x3f},
              {"page buffer used once", "ATmega8", "AC530000 48000500 4C000500 4C002500 28002500", 0xff},
              {"extended address", "ATmega2560", "AC530000 4D000100 40000512 4C000500 4D000000 20000500", 0xff},
              {"EEPROM erases itself", "ATmega16", "AC530000 C001FF0F C001FFF0 A001FF00", 0xf0},
              {"EEPROM page", "ATmega328P", "AC530000 C0010611 C1000122 C2010400 A0010600", 0x11},
              {"erase clears EEPROM", "ATmega16", "AC530000 C000005A AC800000 A0000000", 0xff},
              {"EESAVE keeps it", "ATtiny13A", "AC530000 ACA0002A C000005A AC800000 A0000000", 0x5a},
              {"SPIEN is out of reach", "ATmega16", "AC530000 ACA800FF 58080000", 0xdf},
              {"missing fuse bits", "ATmega328P", "AC530000 ACA40000 50080000", 0xf8},
              {"lock bits are only programmed", "ATmega16", "AC530000 ACE000CF ACE000FF 58000000", 0xcf},
              {"mode 2: no writing", "ATmega16", "AC530000 ACE000FE 40000512 4C000500 20000500", 0xff},
              {"mode 2: reading", "ATmega16", "AC530000 C0000012 ACE000FE A0000000", 0x12},
              {"mode 3: no reading", "ATmega16", "AC530000 C0000012 ACE000FC A0000000", 0x00},
              {"erase unlocks", "ATmega16", "AC530000 ACE000FC AC800000 C0000012 A0000000", 0x12},
              {"one calibration byte", "ATmega328P", "AC530000 38000100", 0xff}}) {
            Chip chip(*Part::find(part));
            QVERIFY2(instruct(chip, instructions) == answer, what);
        }
    }

    void stateFile()
    {
        const WorkFolder folder;
        Chip chip(*Part::find("ATmega8"));
        instruct(chip, "AC530000 400FFF12 4C0FE000 C001FF56 ACA00078 ACE000CF");
        QString error;
        QVERIFY(chip.state().save("chip", chip.part(), error));
        QVERIFY(*ChipState::load("chip", chip.part(), error) == chip.state());

        const QByteArray intact = folder.read("chip");
        const std::pair<const char*, const char*> damages[] {
            {"ATmega8", "ATmega16"}, {"\n}\n", ""},           {"lock", "key"}, {"0xD9", "0x1D9"}, {"\"0xD9\"", "217"},
            {"0x01FE0", "0x02000"},  {"0x01FE0", "-0x01FE0"}, {"12ff", "12f"}, {"12ff", "12fg"}};
        for (const auto& [before, after] : damages) {
            const QByteArray damaged = QByteArray(intact).replace(before, after);
            QVERIFY2(damaged != intact, before);
            folder.write("chip", damaged);
            QVERIFY2(!VirtualProgrammer(chip).setStateFile("chip", error) && error.contains("chip"), after);
            QCOMPARE(folder.read("chip"), damaged); // refused, not overwritten
        }
    }

    void protocol()
    {
        const std::pair<const char*, const char*> rows[] {
            {"9900 3020", "15 15 1410"}, // noise
            {"3031 3020", "15 1410"}, // end mark missing
            {"64000146AB20", "1413"}, // page outside programming
            {"5020 7400015820", "1410 1411"}, // unknown memory
            {"5020 7520", "1410 141E940310"},
            {"5020 553F0020 640004461234567820 7400044620", "1410 1410 1410 141234567810"}, // across a page
        };
        for (const auto& [sent, received] : rows) {
            Chip chip(*Part::find("ATmega16"));
            Stk500 protocol(chip);
            QByteArray answers;
            for (const char byte : bytes(sent))
                answers += protocol.receive(QByteArray(1, byte));
            QCOMPARE(answers.toHex(), bytes(received).toHex());
        }
        Chip chip(*Part::find("ATtiny13A"));
        Stk500 protocol(chip);
        QByteArray noise = bytes("5020");
        for (uint i = 1; i < 400000000; i += i / 100 + 1)
            noise += QByteArray::number(i * 2654435761U, 36);
        QVERIFY(protocol.receive(noise).contains('\x15'));
        QVERIFY(!protocol.receive(QByteArray(0x10010, '\x20')).isEmpty()); // longer than the longest command
        QCOMPARE(protocol.receive(bytes("3020")), bytes("1410"));
    }

    void connections()
    {
        const WorkFolder folder;
        Chip chip(*Part::find("ATmega16"));
        VirtualProgrammer programmer(chip);
        QString error;
        QVERIFY(programmer.setStateFile("chip", error) && programmer.listen(0));
        QTcpSocket first;
        first.connectToHost(QHostAddress(QHostAddress::LocalHost), programmer.port());
        first.write(bytes("5020 55000020 640001457720 5120"));
        QTRY_COMPARE(first.bytesAvailable(), 8);
        // Saved before the end of programming is confirmed.
        QCOMPARE(ChipState::load("chip", chip.part(), error)->eeprom.at(0), '\x77');

        first.write(bytes("5020 64008046 1234")); // and gone in the middle of a page
        QTRY_COMPARE(first.bytesAvailable(), 10);
        QTcpSocket second;
        second.connectToHost(QHostAddress(QHostAddress::LocalHost), programmer.port());
        second.write(bytes("3020 3020 3020"));
        QTest::qWait(50);
        QCOMPARE(second.bytesAvailable(), 0);
        first.abort();
        QTRY_COMPARE(second.bytesAvailable(), 2);
        QVERIFY(!chip.isProgramming());
    }
};

QTEST_GUILESS_MAIN(tst_VirtualProgrammer)
#include "tst_virtual_programmer.moc"
