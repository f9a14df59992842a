#include "Chip.h"
#include "VirtualProgrammer.h"
#include "avrdude/Avrdude.h"
#include "mcu/BytesModel.h"
#include "support/Rows.h"
#include "support/WorkFolder.h"

#include <QtNetwork>
#include <QtTest>

class tst_VirtualProgrammer : public QObject
{
    Q_OBJECT

private slots:
    void partsAgreeWithDescriptionsAndAvrdude()
    {
        QVERIFY(QDir::setCurrent(DATA_FOLDER));
        for (const QString& name : Part::names()) {
            QProcess process;
            process.setProcessChannelMode(QProcess::MergedChannels);
            process.start("avrdude", {"-p", name + "/St"});
            QVERIFY(process.waitForFinished());
            const QString table = process.readAll(); // lines of ".pt", name, memory, property and value
            const auto listed = [&](const QString& cell) {
                const QRegularExpression value('\t' + name + '\t' + cell + "\t(\\w+)");
                return value.match(table).captured(1).toInt(nullptr, 0);
            };
            const Part& part = *Part::find(name.toLower());
            Avrdude avrdude(nullptr, nullptr);
            BytesModel(avrdude).load(name);
            QHash<QString, int> bits; // by name without number; the high fuse begins at bit 8, the extended at 16
            for (const FuseByte& byte : avrdude.settings().fusesBytes) {
                const bool isLock = byte.id == "lock";
                const auto fuse = isLock ? 0 : static_cast<std::size_t>(QString("lhe").indexOf(byte.id[0]));
                int used = 0;
                for (std::size_t i = 0; i < 8; ++i) {
                    used |= byte.fuseBits[i].isUsed() ? 1 << i : 0;
                    bits[byte.fuseBits[i].name.section(QRegularExpression("\\d"), 0, 0)] |= 1 << (8 * fuse + i);
                }
                QVERIFY2(used == (isLock ? part.lockBits : part.fuseBits[fuse]), qPrintable(name + byte.id));
                QVERIFY2(byte.defaultValue == (isLock ? 0xFF : part.factoryFuses[fuse]), qPrintable(name + byte.id));
            }
            const QVector<int> sizes {part.flashSize, part.flashPageSize, part.eepromSize, part.calibrationSize};
            QCOMPARE(sizes,
                     QVector<int>({listed("flash\tsize"), listed("flash\tpage_size"), listed("eeprom\tsize"),
                                   listed("calibration\tsize")}));
            QCOMPARE(part.eepromPageSize, table.contains("eeprom\tloadpage_lo") ? listed("eeprom\tpage_size") : 0);
            QCOMPARE(part.spien.mask << 8 * part.spien.fuse, bits["SPIEN"]);
            QCOMPARE(part.eesave.mask << 8 * part.eesave.fuse, bits["EESAVE"]);
            QCOMPARE(part.resetPin << 8, bits["RSTDISBL"] | bits["DWEN"]);
            QCOMPARE(int(part.ckdiv8), bits["CKDIV"]);
            QCOMPARE(int(part.cksel), bits["CKSEL"]);
            const QByteArray signature(reinterpret_cast<const char*>(part.signature.data()), 3);
            QCOMPARE(QString(signature.toHex(' ')).toUpper(), avrdude.settings().signature);
        }
    }

    void conversation_data()
    {
        // The commands of AVR061 in hexadecimal: 50 and 51 begin and end programming, 52 erases, 55 sets the address,
        // 64 and 74 write and read a page, 75 reads the signature, 30 asks for synchronisation, 31, 40 and 41 are about
        // name and parameters, 56 has four bytes for the chip: 4D extended address, C1 and C2 load and write an EEPROM
        // page, AC A0, A8, A4 and E0 write low, high and extended fuse and lock byte, 50 00, 58 08, 50 08 and 58 00
        // read them, 30 reads the signature, 38 calibration. Answers: 14 ... 10 done, 14 13 no chip, 15 not understood.
        // Programming is begun already.
        columns<QString, QString>("sent", "answered");
        row("noise, an end mark missing", "9900 3031 3020", "15 15 15 1410");
        row("name and parameters", "3120 418120 408905 20 418920", "14 415652 2053544B 10 140110 1410 140510");
        row("after programming: no pages, no erasing, no signature", "5120 64000146AB20 7400014620 5220 7520",
            "1410 1413 1413 1413 1413");
        row("signature, and nothing behind it", "7520 563000030020", "141E980110 14FF10");
        row("never busy", "56F000000020", "140010");
        row("calibration bytes, and nothing behind them", "563800000020 563800010020", "14A910 14FF10");
        row("flash across a page end, above 128 KiB", "564D00010020 557F0020 640004461234567820 7400044620",
            "140110 1410 1410 141234567810");
        row("flash keeps its zeros until it is erased", "640001460F20 64000146F120 7400014620 5220 7400014620",
            "1410 1410 140110 1410 14FF10");
        row("one place above and below 128 KiB", "564D00010020 6400014612 20 564D00000020 7400014620",
            "140110 1410 140010 14FF10");
        row("extended address forgotten at the next start", "6400014612 20 564D00010020 5120 5020 7400014620",
            "1410 140110 1410 1410 141210");
        row("EEPROM page: loaded bytes alone", "56C10001AA20 56C200080020 55080020 7400034520",
            "140110 140810 1410 14FFAAFF10");
        row("EEPROM page: loaded for one writing", "56C10001AA20 56C200080020 56C200100020 55100020 7400034520",
            "140110 140810 141010 1410 14FFFFFF10");
        row("lock mode 2: nothing is written, not even a fuse",
            "56ACE000FE20 640001453420 6400014634 20 56ACA0006020 7400014520 7400014620 565000000020",
            "140010 1410 1410 140010 14FF10 14FF10 146210");
        // The low byte of the address comes instead.
        row("lock mode 3: nothing is read", "640001451220 56ACE000FC20 55341220 7400024620 7400014520",
            "1410 140010 1410 14343410 143410");
        row("lock mode 3: lock bits are locked", "56ACE000FC20 56ACE000F020 565800000020", "140010 140010 14FC10");
        row("an erased chip is unlocked", "6400024512 3420 56ACE000FC20 5220 7400024520 565800000020",
            "1410 140010 1410 14FFFF10 14FF10");
        row("a fuse that takes the clock away does so at the next start", "56ACA0006020 7520 5020 7520",
            "140010 141E980110 1413 1413");
        row("SPIEN is out of reach", "56ACA800F720 565808000020", "140010 14D710");
        row("bits that do not exist read as 1", "56ACA4000020 565008000020", "140010 14F810");
        row("EESAVE keeps the EEPROM", "56ACA800D120 640001455A20 5220 7400014520", "140010 1410 1410 145A10");
    }

    void conversation()
    {
        QFETCH(QString, sent);
        QFETCH(QString, answered);
        Chip chip(*Part::find("ATmega2560"));
        Stk500 programmer(chip);
        QByteArray answers;
        // Cut anywhere; avrdude sends whole commands.
        for (const char byte : QByteArray::fromHex("5020" + sent.toLatin1()))
            answers += programmer.receive(QByteArray(1, byte));
        QCOMPARE(answers.toHex(), QByteArray::fromHex("1410" + answered.toLatin1()).toHex());
    }

    void stateIsKeptInAFileAndADamagedOneIsLeftAlone()
    {
        const WorkFolder folder;
        Chip chip(*Part::find("ATmega2560"));
        ChipState state = chip.state();
        state.flash[262143] = state.eeprom[0] = 'x';
        state.fuses = {0x12, 0x34, 0xFD};
        state.lock = 0xFC;
        QString error;
        QVERIFY(state.save("chip", chip.part(), error)
                && folder.read("chip").size() < 600); // and not a megabyte of empty rows
        QVERIFY(VirtualProgrammer(chip).setStateFile("chip", error) && chip.state() == state);
        const QString damaged = "chip is damaged or holds no chip state.";
        for (const auto& [text, instead, why] :
             {std::tuple("ATmega2560", "ATmega16",
                         QString("chip holds the state of part ATmega16, not of ATmega2560.")),
              {"\"part\"", "\"Part\"", damaged},
              {"0x12", "0x162", damaged}, // a fuse of three digits
              {"\"flash\": {", R"("flash": {"0x3FFFF": "0000", )", damaged}, // past the end
              {"\"eeprom\": {", R"("eeprom": {"0x1": "000", )", damaged}, // half a byte
              {"eeprom", "EEPROM", damaged}}) {
            QVERIFY(state.save("chip", chip.part(), error));
            const QByteArray content = folder.read("chip").replace(text, instead);
            folder.write("chip", content);
            QVERIFY2(!VirtualProgrammer(chip).setStateFile("chip", error), text);
            QCOMPARE(error, why);
            QCOMPARE(folder.read("chip"), content);
        }
    }

    void lostAndRescued_data()
    {
        // Low and high fuse and lock byte; the shortest SCK_DURATION (in 8 cycles of 7.3728 MHz) that the
        // chip can follow, 256 if none.
        columns<QString, int, int, int>("part", "lowHighLock", "crystal", "duration");
        row("1 MHz inside the chip", "ATmega16", 0xE199FF, 0, 4);
        row("8 MHz", "ATmega8", 0xE4D9FF, 0, 1);
        row("128 kHz", "ATmega328P", 0xE3D9FF, 0, 29);
        row("9.6 / 8 MHz", "ATtiny13A", 0x6AFFFF, 0, 4);
        row("128 / 8 kHz", "ATtiny13A", 0x6BFFFF, 0, 231);
        row("1.6 MHz", "ATtiny85", 0xE3DFFF, 0, 3);
        row("4 / 8 MHz", "ATtiny2313A", 0x62DFFF, 0, 8);
        row("no crystal", "ATmega2560", 0x7F99FE, 0, 256);
        row("a crystal", "ATmega2560", 0x7F99FC, 14745600, 3);
        row("too slow a crystal", "ATmega2560", 0x7F99FF, 16000, 256);
        row("RSTDISBL", "ATmega8", 0xE159FF, 0, 256);
        row("DWEN and lock bits", "ATtiny13A", 0x6AF7FE, 0, 256);
        row("SPIEN in the low fuse", "ATtiny13A", 0xEAFFFC, 0, 256);
    }

    void lostAndRescued()
    {
        QFETCH(QString, part);
        QFETCH(int, lowHighLock);
        QFETCH(int, crystal);
        Chip chip(*Part::find(part));
        ChipState state = chip.state();
        state.flash[0] = 'x';
        state.fuses = {static_cast<quint8>(lowHighLock >> 16), static_cast<quint8>(lowHighLock >> 8), 0xFF};
        state.lock = static_cast<quint8>(lowHighLock);
        chip.setState(state);
        chip.setClockInput(crystal);

        Stk500 programmer(chip);
        const auto answers = [&programmer](int sckDuration) {
            const QByteArray number = QByteArray::number(0x100 + sckDuration, 16).mid(1);
            return programmer.receive(QByteArray::fromHex("4089" + number + "205020")).toHex() == "14101410";
        };
        int shortest = 1;
        while (shortest < 256 && !answers(shortest))
            ++shortest;
        QTEST(shortest, "duration");
        chip.rescue();
        // At the speed of a new programmer; a locked chip was erased first.
        QVERIFY(answers(8) && chip.state().flash[0] == (state.lock == 0xFF ? 'x' : '\xff'));
    }

    void oneConnectionAfterAnother()
    {
        Chip chip(*Part::find("ATmega16"));
        VirtualProgrammer programmer(chip);
        programmer.setUnplugAfter(4); // on each connection
        QVERIFY(programmer.listen(0));
        const auto talk = [](QTcpSocket& socket, const char* sent) {
            socket.write(QByteArray::fromHex(sent));
            QTest::qWait(50);
            return QString(socket.readAll().toHex());
        };
        QTcpSocket first;
        first.connectToHost("127.0.0.1", programmer.port());
        // Half a command at the end goes with the connection.
        QCOMPARE(talk(first, "5020 6400034612345620 30"), QString("14101410"));
        QTcpSocket second;
        second.connectToHost("127.0.0.1", programmer.port());
        QCOMPARE(talk(second, "3020 3020 3020"), QString()); // asked again and again while it waits
        first.close();
        QCOMPARE(talk(second, ""), QString("1410")); // one answer
        QVERIFY(!chip.isProgramming());
        QCOMPARE(talk(second, "5020 6400034612345620"), QString("14101410"));
        talk(second, "6400034612345620");
        QCOMPARE(second.state(), QAbstractSocket::UnconnectedState); // more than four bytes on this connection
    }

    void options_data()
    {
        // An option that is taken shows by the complaint about the next.
        columns<QString, int, QString>("options", "exitCode", "said");
        row("unknown part", "--part m16", 2, "Unknown part 'm16'. Known parts: ATmega16, ATmega8,");
        row("part in lower case", "--part attiny85 --port 65536", 2, "'65536' is no port.");
        row("flash address past the end", "--flip 0x4000", 2, "'0x4000' is no flash address of ATmega16.");
        row("a zero in front", "--port 08 --clock 0", 2, "'0' is no clock frequency in Hz, from 1 to 20000000.");
        row("last flash address", "--flip 0X3FFF --unplug-after 0", 2, "'0' is no number of bytes.");
        row("state file that is a folder", "--state .", 1, "Cannot read .: ");
        row("port in use", "--port %1", 1, "Cannot listen on 127.0.0.1:%1: ");
    }

    void options()
    {
        QFETCH(QString, options);
        QFETCH(QString, said);
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        const QString port = QString::number(other.serverPort());
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(VIRTUAL_PROGRAMMER, options.replace("%1", port).split(' '));
        QVERIFY(process.waitForFinished(5000));
        const QString output = process.readAll();
        QVERIFY2(output.contains(said.replace("%1", port)), qPrintable(output));
        QTEST(process.exitCode(), "exitCode");
    }
};

QTEST_GUILESS_MAIN(tst_VirtualProgrammer)
#include "tst_virtual_programmer.moc"
