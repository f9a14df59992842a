#include "support/Bench.h"
#include "support/Table.h"

/// The boxes that tell of a failure, by the letters of the tests' tables.
const QHash<QChar, QString> failures {
    {'N', "AVRDUDE: Programmer not found."},
    {'U', "AVRDUDE: UsbAsp not found."},
    {'D',
     "AVRDUDE: Programmer did not detect the microcontroller\n\n"
     "- Check connections and power supply\n- Set a lower speed (Port & Speed)"},
    {'W', "AVRDUDE: Wrong microcontroller selected."},
    {'V', "AVRDUDE: Verification error."},
    {'F', "AVRDUDE: No such file or directory."},
    {'I', "AVRDUDE: Invalid file format. Please choose another file."},
    {'E', "AVRDUDE: Could not read contents\nDevice is either blank or read-protected (Lock Bits are set)."},
    {'S', "AVRDUDE: See the message in the dialog box."},
};

class tst_Avrdude : public QObject
{
    Q_OBJECT

private slots:
    void commandLine()
    {
        Bench bench;
        bench.avrdude.settings().arguments = "  -v   -F ";
        // Never called back: the log is searched whole, with the command line that it begins with, and the file's name
        // there holds "error:".
        for (const auto& [speed, option] : {std::pair("375 kHz (-B 2)", "-B 2"), {"-B 0.5", "-B 0.5"}, {"", ""}}) {
            bench.avrdude.settings().speed = speed;
            QCOMPARE(bench.run("", {"-U", "flash:w:my error:.hex:i", ""}), 0);
            QCOMPARE(bench.folder.runs().last().replace('\t', '|'),
                     QString("-p|m16|-c|usbasp|-P|usb|-v|-F|%1|-U|flash:w:my error:.hex:i|").arg(option));
        }
    }

    void everyVersion()
    {
        Bench bench;
        // A letter for each command, in the order of the recordings; the callback runs in '-' alone.
        for (const auto& [version, expected] : {std::pair("6.3", "--IIFIVW-E--SSNNNSND"),
                                                {"7.0", "--IIFIVW-E--SSNNNNND"},
                                                {"7.1", "--SSFSVW-----SSNNNNS"},
                                                {"7.3", "--SSFSVW----SSSSNSNS"},
                                                {"8.2", "--IIFIVW----SSNSNNND"}}) {
            const QString path = QString(TEST_FOLDER "/recordings/avrdude-%1.txt").arg(version);
            const QStringList commands = QString('\n' + bench.folder.read(path)).split("\n### -").mid(1);
            QCOMPARE(commands.size(), static_cast<int>(qstrlen(expected)));
            for (int i = 0; i < commands.size(); ++i) {
                const QString command = version + (" -" + commands[i].section('\n', 0, 0));
                bench.folder.write("recorded", commands[i].section('\n', 1).section("### exit", 0, 0).toUtf8());
                const int calls = bench.run("print recorded\nexit" + commands[i].section("### exit", 1).toUtf8());
                const QStringList told = calls == 1 ? bench.boxes.take() : bench.boxes.wait();
                QCOMPARE(command + told.join('|'), command + failures.value(expected[i]));
            }
        }
    }

    void lines_data() { casesFrom("lines.txt", {"line", "exitCode", "box"}); }

    void lines()
    {
        QFETCH(QString, line);
        QFETCH(QString, exitCode);
        QFETCH(QString, box);
        Bench bench;
        QCOMPARE(bench.run(QString("err %1\nexit %2").arg(line, exitCode).toUtf8()), box == "-" ? 1 : 0);
        QCOMPARE((box == "-" ? bench.boxes.take() : bench.boxes.wait()).join('|'), failures.value(box[0]));
    }

    void silentProgrammer()
    {
        Bench bench;
        bench.boxes.delay = 100; // the box stays open while more arrives and the process ends, killed or by itself
        for (const QByteArray& said :
             QByteArrayList {"stk500_getsync() attempt 1", "programmer is not responding", "failed to synchronize",
                             "recv(): timeout", "Can't find programmer id \"x\"", "not in sync: resp=0x00",
                             "avrdude error: timeout", "getsync()\nerr not in sync\nerr error: x\nexit 1",
                             QByteArray("getsync() ").repeated(20000)}) {
            QVERIFY2(bench.run("err " + said + "\nwait 60000") == 0, said);
            QCOMPARE(bench.boxes.wait(), QStringList {"AVRDUDE: Programmer not found."});
        }
        // In other letter case, or on standard output, the phrases mean nothing.
        QCOMPARE(bench.run("out stk500_getsync() attempt\nerr Not In Sync, Verification Error, Error: x"), 1);
    }

    void endings()
    {
        Bench bench;
        QStringList calls;
        bench.folder.write("script", "wait 50\nexit 1"); // the exit code does not count
        bench.avrdude.execute({"1"}, [&] {
            calls += "1";
            bench.avrdude.execute({"2"}, [&calls] { calls += "2"; }); // the runner is idle by now
        });
        bench.avrdude.execute({"dropped"}, [&calls] { calls += "dropped"; });
        QTRY_COMPARE(calls, QStringList({"1", "2"}));
        QCOMPARE(bench.run("err verification error\ncrash"), 0);
        QCOMPARE(bench.boxes.wait(), QStringList {"Information: Process avrdude error"});

        bench.avrdude.settings().avrdude = "./no-such-program";
        QCOMPARE(bench.avrdude.execute({}, [] { QFAIL("called back"); }), -1);
        QVERIFY(bench.avrdude.log().toPlainText().contains("\navrdude not found"));
        QCOMPARE(bench.avrdude.execute({}), 0); // dropped: busy for good
    }

    void outputGoesToTheCursor()
    {
        Bench bench;
        bench.folder.write("script", "err first\nawait go\nerr second\nout third");
        bench.avrdude.execute({});
        QTRY_VERIFY(bench.avrdude.log().toPlainText().contains("first"));
        bench.log.moveCursor(QTextCursor::Start);
        bench.log.moveCursor(QTextCursor::EndOfWord);
        bench.folder.write("go", "");
        QTRY_VERIFY(bench.isIdle() && bench.avrdude.log().toPlainText().startsWith("Korvelsecond\nthird\n: "));

        // A selection, even of all there is, stays as it is.
        QFile::remove("go");
        bench.avrdude.execute({});
        QTRY_VERIFY(bench.avrdude.log().toPlainText().contains("first"));
        bench.log.selectAll();
        const QString selected = bench.log.textCursor().selectedText();
        bench.folder.write("go", "");
        QTRY_VERIFY(bench.isIdle() && bench.avrdude.log().toPlainText().endsWith("first\nsecond\nthird\n"));
        QCOMPARE(bench.log.textCursor().selectedText(), selected);

        QElapsedTimer timer; // one line of a megabyte
        timer.start();
        bench.log.resize(520, 180);
        bench.log.show();
        bench.folder.write("line", QByteArray("0xff,").repeated(200000));
        bench.run("print line");
        QCOMPARE(bench.avrdude.log().toPlainText().remove('\n').count("0xff,"), 200000);
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(bench.log.verticalScrollBar()->value() >= bench.log.verticalScrollBar()->maximum() - 1);
        QVERIFY(bench.log.isReadOnly());

        // Characters that are split between two pieces of output stay whole.
        bench.run("err second\nout x" + QByteArray("я").repeated(40000));
        QCOMPARE(bench.avrdude.log().toPlainText().count(QStringLiteral("я")), 40000);
    }
};

QTEST_MAIN(tst_Avrdude)
#include "tst_avrdude.moc"
