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
              // EEPROM written, in lock mode 2 not, in mode 3 not even read; erased.
              {"5020 640001451220 56ACE000FE20 640001453420 7400014520 56ACE000FC20 7400014520 5220 7400014520",
               "1410 1410 140010 1410 141210 140010 140010 1410 14FF10"},
              // SPIEN is out of reach, missing bits are 1, EESAVE keeps what was written last.
              {"5020 56ACA800F720 565808000020 56ACA4000020 565008000020 640001455A20 64000145A520 5220 7400014520",
               "1410 140010 14D710 140010 14F810 1410 1410 1410 14A510"}}) {
            Chip chip(*Part::find("ATmega2560"));
            QCOMPARE(Stk500(chip).receive(QByteArray::fromHex(sent)).toHex(), QByteArray::fromHex(received).toHex());

            QVERIFY(chip.state().save("chip", chip.part(), error));
            QVERIFY(*ChipState::load("chip", chip.part(), error) == chip.state());
            folder.write("chip", folder.read("chip").replace("0x62", "0x162"));
            QVERIFY(!VirtualProgrammer(chip).setStateFile("chip", error) && error.contains("chip"));
            QVERIFY(folder.read("chip").contains("0x162")); // refused, not overwritten
        }
    }
};

QTEST_GUILESS_MAIN(tst_VirtualProgrammer)
#include "tst_virtual_programmer.moc"
