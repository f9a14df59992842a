#include "support/Bench.h"

#include <QtTest>

class tst_Avrdude : public QObject
{
    Q_OBJECT

private slots:
    void commandLine()
    {
        Bench bench;
        bench.avrdude.settings().arguments = "  -v   -F ";
        for (const auto& [speed, option] : {std::pair("375 kHz (-B 2)", "-B 2"), {"-B 0.5", "-B 0.5"}, {"", ""}}) {
            bench.avrdude.settings().speed = speed;
            // The log is searched whole, with the command line that it begins with.
            QCOMPARE(bench.run("", {"-U", "flash:w:my error:.hex:i", ""}), 0);
            QCOMPARE(bench.folder.runs().constLast().join('|'),
                     QString("-p|m16|-c|usbasp|-P|usb|-v|-F|%1|-U|flash:w:my error:.hex:i|").arg(option));
        }
    }

    void verdict()
    {
        BoxAnswerer boxes;
        QString told;
        for (const QString output :
             {"error: unable to open programmer", "\"usb\" failed", "cannot open port\nverification error",
              "can't open device", "USBasp not found", "error: program enable: target does not answer",
              "ERROR: No valid record found", "Device signature = 0xffffff use -F to override this check",
              "is empty, resulting file has no contents", "Invalid file format"})
            told += Message().checkOutput("Hi\n" + output) ? boxes.take().value(0).section(' ', 1, 2) + '|' : "-|";
        QCOMPARE(told,
                 "Programmer not|Programmer not|Programmer not|Programmer not|UsbAsp not|Programmer did|"
                 "Invalid file|Programmer did|Could not|Invalid file|");
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
        QVERIFY(bench.avrdude.logText().contains("\navrdude not found"));
        QCOMPARE(bench.avrdude.execute({}), 0); // dropped: busy for good
    }

    void outputGoesToTheCursor()
    {
        Bench bench;
        bench.folder.write("script", "err first\nwait 200\nerr second\nout third");
        bench.avrdude.execute({});
        QTRY_VERIFY(bench.avrdude.logText().contains("first"));
        bench.log.moveCursor(QTextCursor::Start);
        bench.log.moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor); // nothing selected may be lost
        QTRY_VERIFY(bench.isIdle() && bench.avrdude.logText().startsWith("Korvelsecond\nthird\n: "));

        // Characters that are split between two pieces of output stay whole.
        bench.run("err second\nout x" + QByteArray("я").repeated(40000));
        QCOMPARE(bench.avrdude.logText().count(QStringLiteral("я")), 40000);
    }
};

QTEST_MAIN(tst_Avrdude)
#include "tst_avrdude.moc"
