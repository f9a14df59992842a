#include "Chip.h"
#include "Description.h"
#include "JtagMkII.h"
#include "Stk500.h"
#include "VirtualProgrammer.h"
#include "avrdude/Avrdude.h"
#include "mcu/description/BytesModel.h"
#include "support/Table.h"
#include "support/WorkFolder.h"

#include <QtNetwork>
#include <QtTest>

#include <algorithm>

/// The bytes of commands or answers in the words of stk500.txt, such as "start, write flash AB".
static QByteArray bytesOf(const QString& list)
{
    QByteArray bytes;
    for (const QString& words : list.split(", ")) {
        const auto parts = QRegularExpression("^([a-z? ]+?)(?: ([0-9A-F ]+))?$").match(words);
        const QString numbers = parts.captured(2).replace(QRegularExpression("\\b(\\w)\\b"), "0\\1");
        const QByteArray own = QByteArray::fromHex(numbers.toLatin1());
        QByteArray backwards = own;
        std::reverse(backwards.begin(), backwards.end());
        QByteArray pattern = lookUp("stk500.txt", parts.captured(1)).toLatin1();
        pattern.replace('*', own.toHex()).replace('<', backwards.toHex());
        bytes += QByteArray::fromHex(pattern.replace('#', QByteArray(1, static_cast<char>(own.size())).toHex()));
    }
    return bytes;
}

/// The description that ships of a part.
static Description describe(const QString& part)
{
    QString error;
    const auto found = Description::read(part.toLower(), {DATA_FOLDER "/mcu"}, error);
    if (!found)
        qFatal("no description of %s. %s", qPrintable(part), qPrintable(error));
    return *found;
}

class tst_VirtualProgrammer : public QObject
{
    Q_OBJECT

private slots:
    void partsAgreeWithDescriptionsAndAvrdude_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : Part::names())
            QTest::newRow(qPrintable(name)) << name;
    }

    void partsAgreeWithDescriptionsAndAvrdude()
    {
        QFETCH(QString, name);
        const Part& part = *Part::find(name.toLower());
        QProcess process;
        process.start("avrdude", {"-p", name + "/St"});
        QVERIFY(process.waitForFinished());
        const QString table = process.readAll(); // lines of ".pt", name, memory, property and value
        const auto listed = [&table](const QString& cell) {
            return QRegularExpression('\t' + cell + "\t(\\w+)").match(table).captured(1).toInt(nullptr, 0);
        };
        if (table.contains(".pt\t")) { // 7.0 does not describe its parts
            QCOMPARE(part.flashSize, listed("flash\tsize"));
            QCOMPARE(part.flashPageSize, listed("flash\tpage_size"));
            QCOMPARE(part.eepromSize, listed("eeprom\tsize"));
            QCOMPARE(part.eepromPageSize, table.contains("eeprom\tloadpage_lo") ? listed("eeprom\tpage_size") : 0);
            QCOMPARE(part.calibrationSize, listed("calibration\tsize"));
        }

        const WorkFolder folder;
        folder.copy({"mcu/" + name + ".json"});
        Avrdude avrdude(nullptr, nullptr);
        BytesModel(avrdude.settings()).load(name);
        const QByteArray signature(reinterpret_cast<const char*>(part.signature.data()), 3);
        QCOMPARE(QString(signature.toHex(' ')).toUpper(), avrdude.settings().signature);
        QHash<QString, int> bits; // by name without number; the high fuse begins at bit 8, the extended at 16
        for (const FuseByte& byte : avrdude.settings().fusesBytes) {
            const bool isLock = byte.id == "lock";
            const auto fuse = isLock ? 0 : static_cast<std::size_t>(QString("lhe").indexOf(byte.id[0]));
            QVERIFY2(byte.defaultValue == (isLock ? 0xFF : part.factoryFuses[fuse]), qPrintable(byte.id));
            for (std::size_t i = 0; i < 8; ++i) {
                const int existing = isLock ? part.lockBits : part.fuseBits[fuse];
                QVERIFY2(byte.fuseBits[i].isUsed() == ((existing >> i & 1) == 1), qPrintable(byte.id));
                bits[byte.fuseBits[i].name.section(QRegularExpression("\\d"), 0, 0)] |= 1 << (8 * fuse + i);
            }
        }
        QCOMPARE(part.spien.mask << 8 * part.spien.fuse, bits["SPIEN"]);
        QCOMPARE(part.eesave.mask << 8 * part.eesave.fuse, bits["EESAVE"]);
        QCOMPARE(part.resetPin << 8, bits["RSTDISBL"] | bits["DWEN"]);
        QCOMPARE(int(part.ckdiv8), bits["CKDIV"]);
        QCOMPARE(int(part.cksel), bits["CKSEL"]);
    }

    void memoryMapsAgreeWithAvrdude()
    {
        const WorkFolder folder;
        QProcess process;
        process.setStandardOutputFile("memories"); // a megabyte, which takes minutes through a pipe of Wine's
        process.start("avrdude", {"-p", "*/St"});
        QVERIFY(process.waitForFinished());
        QHash<QString, QString> listed; // "ATtiny1614 flash offset"
        for (const QString& line : QString(WorkFolder::read("memories")).split('\n')) {
            const QStringList cells = line.split('\t');
            if (cells.size() > 4 && cells[0] == ".ptmm")
                listed[cells.mid(1, 3).join(' ')] = cells[4];
        }
        int compared = 0;
        QStringList differing;
        for (const QString& file : QDir(DATA_FOLDER "/mcu").entryList({"*.json"}, QDir::Files)) {
            const auto part = MappedPart::described(describe(file.chopped(5)));
            if (!part || !listed.contains(part->shape.part + " flash size"))
                continue; // newer than this avrdude, or ISP
            ++compared;
            const auto compare = [&](const QString& cell, int value) {
                const QString name = part->shape.part + ' ' + cell;
                if (listed.value(name, QString::number(value)).toInt(nullptr, 0) != value)
                    differing += name;
            };
            const QString user = part->isUpdi ? "userrow" : "usersig";
            for (const auto& [memory, place] : {std::pair<QString, int>("flash", MappedPart::Flash),
                                                {"eeprom", MappedPart::Eeprom},
                                                {"fuses", MappedPart::Fuses},
                                                {"lock", MappedPart::Lock},
                                                {user, MappedPart::UserRow},
                                                {"signature", MappedPart::Signature},
                                                {"prodsig", MappedPart::ProductionSignature}}) {
                compare(memory + " offset", static_cast<int>(part->places[place].address));
                compare(memory + " size", part->places[place].size);
            }
            compare("flash page_size", part->flashPageSize);
            compare("eeprom page_size", part->eepromPageSize);
        }
        QCOMPARE(differing, QStringList());
        QVERIFY(compared > 120 || listed.isEmpty()); // 7.0 does not describe its parts
    }

    void jtagConversation_data() { casesFrom("jtagmkii.txt", {"part", "sent", "answered"}); }

    void jtagConversation()
    {
        MappedChip chip(*MappedPart::described(describe(cell("part"))));
        JtagMkII programmer(chip);
        static_cast<void>(programmer.receive(QByteArray(1000000, '\x1B'))); // noise, which takes no minutes
        QStringList answers;
        int flashBytes = 0;
        quint16 number = 7;
        for (const QString& sent : cell("sent").split(", ")) {
            const QByteArray body =
                QByteArray::fromHex(sent.chopped(sent.endsWith('!') || sent.endsWith('?')).toLatin1());
            const char size = static_cast<char>(body.size() + (sent.endsWith('?') ? 16 : 0)); // of the next one too
            QByteArray frame =
                QByteArray("\x1B") + char(number) + char(number >> 8) + size + QByteArray(3, '\0') + '\x0E' + body;
            const quint16 sum = JtagMkII::checksumOf(frame) ^ (sent.endsWith('!') ? 1 : 0); // a damaged one
            frame += char(sum);
            frame += char(sum >> 8);
            QByteArray answer;
            for (const char byte : "noise" + frame) { // a connection may cut a message anywhere
                answer += programmer.receive(QByteArray(1, byte));
                QVERIFY(programmer.flashBytesReceived() >= flashBytes); // what was counted was data
                flashBytes = programmer.flashBytesReceived();
            }
            if (!answer.isEmpty()) {
                QCOMPARE(answer.left(3), frame.left(3)); // with the message's own number
                QCOMPARE(JtagMkII::checksumOf(answer), quint16(0)); // as of every message with its own
            }
            answers += answer.mid(8).chopped(answer.isEmpty() ? 0 : 2).toHex();
            ++number;
        }
        QTEST(answers.join(", "), "answered");
    }

    void conversation_data() { casesFrom("dialogues.txt", {"sent", "answered"}); }

    void conversation()
    {
        Chip chip(*Part::find("ATmega2560"));
        Stk500 programmer(chip);
        QByteArray answers;
        for (const char byte : bytesOf("start, " + cell("sent")))
            answers += programmer.receive(QByteArray(1, byte)); // a connection may cut a command anywhere
        QCOMPARE(answers.toHex(' '), bytesOf("ok, " + cell("answered")).toHex(' '));
    }

    void chipWithoutEepromAndEesave()
    {
        Description description = describe("AT90S2313");
        for (const int size : {description.eepromSize, 0}) {
            description.eepromSize = size;
            const Part part = *Part::described(description);
            Chip chip(part);
            Stk500 programmer(chip);
            const QByteArray answers =
                programmer.receive(bytesOf("start, write eeprom 12, read eeprom 1, erase, read eeprom 1"));
            QCOMPARE(int(chip.state().eeprom.size()), size);
            QCOMPARE(answers.toHex(' '),
                     bytesOf(size > 0 ? "ok, ok, ok 12, ok, ok FF" : "ok, ok, ok 00, ok, ok 00").toHex(' '));
        }
    }

    void stateIsKeptInAFileAndADamagedOneIsLeftAlone_data() { casesFrom("states.txt", {"text", "instead", "error"}); }

    void stateIsKeptInAFileAndADamagedOneIsLeftAlone()
    {
        const WorkFolder folder;
        Chip chip(*Part::find("ATmega2560"));
        Stk500 protocol(chip);
        ChipState state = chip.state();
        state.flash[262143] = state.eeprom[0] = 'x';
        state.fuses = {0x12, 0x34, 0xFD};
        state.lock = "\xFC";
        QString error;
        QVERIFY(state.save("chip", chip.shape(), error));
        QByteArray content = folder.read("chip");
        QVERIFY(content.size() < 600); // and not a megabyte of empty rows
        QVERIFY(VirtualProgrammer(chip, protocol).setStateFile("chip", error) && chip.state() == state);
        folder.write("chip", content.replace(cell("text").toUtf8(), cell("instead").toUtf8()));
        QVERIFY(!VirtualProgrammer(chip, protocol).setStateFile("chip", error));
        QCOMPARE(error, cell("error"));
        QCOMPARE(folder.read("chip"), content);
    }

    void lostAndRescued_data() { casesFrom("clocks.txt", {"part", "lowHighLock", "crystal", "duration"}); }

    void lostAndRescued()
    {
        const QByteArray bytes = QByteArray::fromHex(cell("lowHighLock").toLatin1());
        Chip chip(*Part::find(cell("part")));
        ChipState state = chip.state();
        state.flash[0] = 'x';
        state.fuses = {static_cast<quint8>(bytes[0]), static_cast<quint8>(bytes[1]), 0xFF};
        state.lock = bytes.mid(2, 1);
        chip.setState(state);
        chip.setClockInput(cell("crystal").toInt());

        Stk500 programmer(chip);
        QByteArray sent = bytesOf("set parameter 89 00, start");
        const QByteArray answered = bytesOf("ok, ok");
        const auto answers = [&](int sckDuration) {
            sent[2] = static_cast<char>(sckDuration);
            return programmer.receive(sent) == answered;
        };
        int shortest = 1;
        while (shortest < 256 && !answers(shortest))
            ++shortest;
        QTEST(QString::number(shortest), "duration");
        chip.rescue();
        QVERIFY(answers(8)); // the speed of a new programmer
        QCOMPARE(chip.state().flash[0], state.lock == "\xFF" ? 'x' : '\xff'); // a locked chip was erased first
    }

    void oneConnectionAfterAnother()
    {
        Chip chip(*Part::find("ATmega16"));
        Stk500 protocol(chip);
        VirtualProgrammer programmer(chip, protocol);
        programmer.setUnplugAfter(4); // on each connection
        QVERIFY(programmer.listen(0));
        const auto talk = [](QTcpSocket& socket, const QString& sent) {
            socket.write(bytesOf(sent));
            QTest::qWait(50);
            return socket.readAll();
        };
        QTcpSocket first;
        first.connectToHost("127.0.0.1", programmer.port());
        // Half a command at the end goes with the connection.
        QCOMPARE(talk(first, "start, write flash 12 34 56, hex 30"), bytesOf("ok, ok"));
        QTcpSocket second;
        second.connectToHost("127.0.0.1", programmer.port());
        QCOMPARE(talk(second, "sync, sync, sync"), QByteArray()); // asked again and again while it waits
        first.close();
        QCOMPARE(talk(second, "hex"), bytesOf("ok")); // one answer
        QVERIFY(!chip.isProgramming());
        QCOMPARE(talk(second, "start, write flash 12 34 56"), bytesOf("ok, ok"));
        talk(second, "write flash 12 34 56");
        QCOMPARE(second.state(), QAbstractSocket::UnconnectedState); // more than four bytes on this connection
    }

    void options_data() { casesFrom("options.txt", {"options", "exitCode", "said", "text", "instead"}); }

    void options()
    {
        const WorkFolder folder;
        const QString path = "mcu/" + cell("options").section(' ', 1, 1) + ".json";
        const QString description = QString(folder.read(DATA_FOLDER "/" + path)).simplified();
        QVERIFY(description.contains(cell("text")));
        if (!cell("text").isEmpty())
            folder.write(path, QString(description).replace(cell("text"), cell("instead")).toUtf8());
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        const QString port = QString::number(other.serverPort());
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(VIRTUAL_PROGRAMMER, cell("options").replace("%1", port).split(' '));
        QVERIFY(process.waitForFinished(5000));
        const QString output = process.readAll();
        QVERIFY2(output.contains(cell("said").replace("%1", port)), qPrintable(output));
        QTEST(QString::number(process.exitCode()), "exitCode");
    }
};

QTEST_GUILESS_MAIN(tst_VirtualProgrammer)
#include "tst_virtual_programmer.moc"
