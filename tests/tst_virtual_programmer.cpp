#include "Chip.h"
#include "VirtualProgrammer.h"

#include "support/WorkFolder.h"

#include <QtTest>

class tst_VirtualProgrammer : public QObject
{
    Q_OBJECT

private slots:
    void answersAndStateFile()
    {
        const WorkFolder folder;
        QString error;
        for (const auto& [sent, received] :
             // Noise, an end mark missing, too early for a page, an unknown memory, the signature.
             {std::pair("9900 3031 3020 64000146AB20 5020 7400015820 7520", "15 15 15 1410 1413 1410 1411 141E980110"),
              // Across a page above the first 128 KiB, again with other bits, read there; erased.
              {"5020 564D00010020 557F0020 640004461234567820 640004463F3F3F3F20 7400044620 5220 7400044620",
               "1410 140110 1410 1410 1410 141234163810 1410 14FFFFFFFF10"},
              // The two bytes at one place above and below 128 KiB are two.
              {"5020 564D00010020 640002461234 20 564D00000020 7400024620", "1410 140110 1410 140010 14FFFF10"},
              // EEPROM written, in lock mode 2 not, and no fuse either; in mode 3 memories are not even read; erased.
              {"5020 640001451220 56ACE000FE20 640001453420 7400014520 56ACA0006020 565000000020",
               "1410 1410 140010 1410 141210 140010 146210"},
              {"5020 56ACE000FC20 55341220 7400044620 7400014520 5220 7400044620",
               "1410 140010 1410 143434353510 143410 1410 14FFFFFFFF10"},
              // A fuse that takes the clock away does so at the next start.
              {"5020 56ACA0006020 7520 565000000020 5020 7520", "1410 140010 141E980110 146010 1413 1413"},
              // SPIEN is out of reach, missing bits are 1, EESAVE keeps what was written last.
              {"5020 56ACA800F720 565808000020 56ACA4000020 565008000020 640001455A20 64000145A520 5220 7400014520",
               "1410 140010 14D710 140010 14F810 1410 1410 1410 14A510"}}) {
            Chip chip(*Part::find("ATmega2560"));
            QCOMPARE(Stk500(chip).receive(QByteArray::fromHex(sent)).toHex(), QByteArray::fromHex(received).toHex());

            QVERIFY(chip.state().save("chip", chip.part(), error));
            QVERIFY(*ChipState::load("chip", chip.part(), error) == chip.state());
            folder.write("chip", folder.read("chip").replace("low\": \"0x", "low\": \"0x1"));
            QVERIFY(!VirtualProgrammer(chip).setStateFile("chip", error) && error.contains("chip"));
            QVERIFY(folder.read("chip").contains("low\": \"0x1")); // refused, not overwritten
        }
    }

    void lostAndRescued()
    {
        struct Row {
            const char* part;
            quint8 low, high, lock;
            int clock;
            int duration; // the shortest SCK_DURATION that the chip can follow; 256: none
        };
        for (const Row& row : {
                 // 1, 8, 0.128, 9.6 / 8, 0.128 / 8, 1.6 and 4 / 8 MHz inside the chip
                 Row {"ATmega16", 0xE1, 0x99, 0xFF, 0, 4},
                 {"ATmega8", 0xE4, 0xD9, 0xFF, 0, 1},
                 {"ATmega328P", 0xE3, 0xD9, 0xFF, 0, 29},
                 {"ATtiny13A", 0x6A, 0xFF, 0xFF, 0, 4},
                 {"ATtiny13A", 0x6B, 0xFF, 0xFF, 0, 231},
                 {"ATtiny85", 0xE3, 0xDF, 0xFF, 0, 3},
                 {"ATtiny2313A", 0x62, 0xDF, 0xFF, 0, 8},
                 // a crystal: none there, there, too slow
                 {"ATmega2560", 0x7F, 0x99, 0xFE, 0, 256},
                 {"ATmega2560", 0x7F, 0x99, 0xFC, 14745600, 3},
                 {"ATmega2560", 0x7F, 0x99, 0xFF, 16000, 256},
                 // RSTDISBL, DWEN, SPIEN
                 {"ATmega8", 0xE1, 0x59, 0xFF, 0, 256},
                 {"ATtiny13A", 0x6A, 0xFE, 0xFF, 0, 256},
                 {"ATtiny2313A", 0x62, 0xDE, 0xFC, 0, 256},
                 {"ATmega328P", 0x62, 0x99, 0xFF, 0, 256},
                 {"ATtiny13A", 0x6A, 0xF7, 0xFE, 0, 256},
                 {"ATtiny85", 0x62, 0x9F, 0xFF, 0, 256},
                 {"ATmega16", 0xE1, 0xB9, 0xFF, 0, 256},
                 {"ATtiny13A", 0xEA, 0xFF, 0xFC, 0, 256},
             }) {
            Chip chip(*Part::find(row.part));
            ChipState state = chip.state();
            state.flash[0] = 'x';
            state.fuses = {row.low, row.high, 0xFF};
            state.lock = row.lock;
            chip.setState(state);
            chip.setClockInput(row.clock);

            Stk500 programmer(chip);
            const auto answers = [&programmer](int duration) {
                const QByteArray number = QByteArray::number(0x100 + duration, 16).mid(1);
                return programmer.receive(QByteArray::fromHex("4089" + number + "205020")).toHex() == "14101410";
            };
            int shortest = 1;
            while (shortest < 256 && !answers(shortest))
                ++shortest;
            QCOMPARE(row.part + QString(" %1 %2: %3").arg(row.low).arg(row.high).arg(shortest),
                     row.part + QString(" %1 %2: %3").arg(row.low).arg(row.high).arg(row.duration));
            chip.rescue();
            QVERIFY2(answers(8) && chip.state().flash[0] == (row.lock == 0xFF ? 'x' : '\xff'), row.part);
        }
    }
};

QTEST_GUILESS_MAIN(tst_VirtualProgrammer)
#include "tst_virtual_programmer.moc"
