#include "avrdude/Progress.h"
#include "avrdude/ReadFile.h"
#include "support/Bench.h"
#include "support/Table.h"

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

    void everyVersion_data()
    {
        for (const char* column : {"exit", "printed", "verdict"})
            QTest::addColumn<QString>(column);
        const auto table = linesOf("verdicts.txt");
        for (int column = 2; column < table[0].size(); ++column) {
            const QString version = table[0][column];
            const QString recordings = WorkFolder::read(TEST_FOLDER "/recordings/avrdude-" + version + ".txt");
            const QStringList commands = recordings.split("### -").mid(1);
            QCOMPARE(commands.size(), table.size() - 1);
            for (int i = 1; i < table.size(); ++i) {
                const QStringList command = commands[i - 1].split("### exit"); // and what it printed, and its code
                QVERIFY2(('-' + command[0].section('\n', 0, 0)).contains(table[i][1]), qPrintable(command[0]));
                QTest::newRow(qPrintable(version + ": " + table[i][0] + ", " + table[i][1]))
                    << command[1] << command[0].section('\n', 1) << table[i][column];
            }
        }
    }

    void everyVersion() { judge("print recorded\nexit" + cell("exit"), cell("printed").toUtf8()); }

    void progress()
    {
        for (const QString version : {"6.3", "7.0", "7.1", "7.3", "8.2"}) {
            const QString recordings = WorkFolder::read(TEST_FOLDER "/recordings/avrdude-" + version + ".txt");
            QStringList bars; // of the first two commands, which write and verify
            for (int command : {1, 2}) {
                Progress progress;
                for (const QChar character : recordings.section("### -", command, command).section('\n', 1))
                    if (progress.take(character) && (progress.percent() == 0 || progress.percent() == 100))
                        bars += progress.activity() + QString::number(progress.percent());
                bars += "|";
            }
            const QString start = version < "7.1" ? "Reading0 Reading100 " : ""; // of the signature
            const QString verification = "Verifying0 Verifying100 |";
            QCOMPARE(version + ' ' + bars.join(' '),
                     version + ' ' + start + "Writing0 Writing100 " + verification + ' ' + start + verification);
        }
    }

    void lines_data() { casesFrom("lines.txt", {"printed", "exitCode", "verdict"}); }
    void lines() { judge(cell("printed") + "\nexit " + cell("exitCode")); }

    void silentProgrammer_data() { casesFrom("silent.txt", {"printed", "exitCode", "verdict"}); }
    void silentProgrammer() { judge(cell("printed") + "\nexit " + cell("exitCode"), {}, 100); }

    void aFailureThatComesInTwoPiecesIsFound()
    {
        Bench bench;
        bench.begin("error: program enable: target doe", "err s not answer");
        bench.finish();
        QCOMPARE(bench.boxes.wait(), QStringList {lookUp("boxes.txt", "no chip")}); // "error:" alone: see log
    }

    void aSilentProgrammerIsToldOfOnce()
    {
        Bench bench;
        bench.boxes.delay = 100; // more arrives meanwhile
        QCOMPARE(bench.run("err error: " + QByteArray("getsync() ").repeated(20000) + "\nwait 60000"), 0);
        QCOMPARE(bench.boxes.wait(), QStringList {"AVRDUDE, warning: Programmer not found."});
        QCOMPARE(bench.run(""), 1); // it answers again
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
        QCOMPARE(bench.boxes.wait(), QStringList {"Information, warning: Process avrdude error"});
    }

    void anAvrdudeThatCannotBeFound()
    {
        for (const char* program : {"./no-such-program", "no-such-program"}) {
            Bench bench;
            bench.avrdude.settings().avrdude = program;
            bench.folder.write("lfuse.hex", "formerly");
            QCOMPARE(bench.avrdude.executeReading({}, {"lfuse.hex"}, [] { QFAIL("read"); }), -1);
            QVERIFY(bench.avrdude.log().toPlainText().contains("\navrdude not found"));
            QVERIFY(QFile::exists("lfuse.hex"));
            QCOMPARE(bench.avrdude.execute({}), 0); // dropped: busy for good
        }
    }

    void aReadingIsToldOnce()
    {
        int calls = 0;
        ReadFile reader;
        reader.readFiles({}, [&calls](const QStringList&) { ++calls; });
        emit reader.emitFinishedReadFile();
        QCOMPARE(calls, 1);
    }

    void outputGoesWhereTheUserClicked()
    {
        Bench bench;
        bench.begin("first\n", "err second\nout third");
        bench.log.moveCursor(QTextCursor::Start);
        bench.log.moveCursor(QTextCursor::EndOfWord);
        bench.finish();
        QVERIFY2(bench.log.toPlainText().startsWith("Korvelsecond\nthird\n: "), qPrintable(bench.log.toPlainText()));
        const QString output = bench.avrdude.output().remove('\r'); // which Windows' programs print
        QCOMPARE(output, QString("first\nsecond\nthird\n")); // whole, and without the command line
    }

    void outputLeavesASelectionAsItIs()
    {
        Bench bench;
        bench.begin("first\n", "err second\nout third");
        bench.log.selectAll();
        const QString selected = bench.log.textCursor().selectedText();
        bench.finish();
        QVERIFY2(bench.log.toPlainText().endsWith("first\nsecond\nthird\n"), qPrintable(bench.log.toPlainText()));
        QCOMPARE(bench.log.textCursor().selectedText(), selected);
    }

    void aLineOfAMegabyteDoesNotHoldUpTheWindow()
    {
        Bench bench;
        QElapsedTimer timer;
        timer.start();
        bench.log.resize(520, 180);
        bench.log.show();
        bench.folder.write("line", QByteArray("0xff,").repeated(200000));
        bench.run("print line");
        QCOMPARE(bench.log.toPlainText().remove('\n').count("0xff,"), 200000);
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    }

    void theLogEndsScrolledToItsEndAndIsReadOnly()
    {
        Bench bench;
        bench.log.show();
        bench.folder.write("lines", QByteArray("line\n").repeated(1000));
        bench.run("print lines");
        const int end = bench.log.verticalScrollBar()->maximum();
        QVERIFY(end > 900 && bench.log.verticalScrollBar()->value() >= end - 1);
        QVERIFY(bench.log.isReadOnly());
    }

    void aCharacterSplitBetweenTwoPiecesStaysWhole()
    {
        Bench bench;
        bench.run("err second\nout x" + QByteArray("я").repeated(40000));
        QCOMPARE(bench.log.toPlainText().count(QStringLiteral("я")), 40000);
        bench.folder.write("half", "\xD1"); // the other half does not come
        bench.run("print half");
        bench.run("err x");
        QCOMPARE(bench.avrdude.output().trimmed(), QString("x"));
    }

private:
    /// Plays a run that may print @p recorded, and sees that it comes to the case's verdict: the callback, or a box
    /// that stays open for @p delay milliseconds while the process ends.
    static void judge(const QString& script, const QByteArray& recorded = {}, int delay = 0)
    {
        Bench bench;
        bench.boxes.delay = delay;
        bench.folder.write("recorded", recorded);
        const bool isSuccess = bench.run(script.toUtf8()) == 1;
        QCOMPARE(isSuccess, cell("verdict") == "success");
        const QStringList told = isSuccess ? bench.boxes.take() : bench.boxes.wait();
        QCOMPARE(told.join('|'), lookUp("boxes.txt", cell("verdict")));
    }
};

QTEST_MAIN(tst_Avrdude)
#include "tst_avrdude.moc"
