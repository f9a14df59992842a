#include "i18n/JsonToQtTranslator.h"
#include "support/Bench.h"

#include <QDir>
#include <QtTest>

class tst_Avrdude : public QObject
{
    Q_OBJECT

private slots:
    void commandLine_data()
    {
        QTest::addColumn<QString>("extra");
        QTest::addColumn<QString>("speed");
        QTest::addColumn<QStringList>("between");
        QTest::newRow("display text") << ""
                                      << "375 kHz (-B 2)" << QStringList {"-B 2"};
        QTest::newRow("no speed") << ""
                                  << "" << QStringList {""};
        QTest::newRow("extra arguments") << "  -v   -F "
                                         << "-B 0.5" << QStringList {"-v", "-F", "-B 0.5"};
    }

    void commandLine()
    {
        QFETCH(QString, extra);
        QFETCH(QString, speed);
        QFETCH(QStringList, between);
        Bench bench;
        SettingsRecord& settings = bench.avrdude.settings();
        settings.mcuId = "m328p";
        settings.programmer.id = "stk500v1";
        settings.port = "/dev/tty USB0";
        settings.arguments = extra;
        settings.speed = speed;
        const QStringList operation {"-U", "flash:w:my file.hex:i", ""};
        QCOMPARE(bench.run("", operation), 1);
        const QStringList all =
            QStringList {"-p", "m328p", "-c", "stk500v1", "-P", "/dev/tty USB0"} + between + operation;
        QCOMPARE(bench.folder.runs(), QVector<QStringList> {all});
        QCOMPARE(bench.avrdude.logText(), QString("Korvel: " STAND_IN " ") + all.join(' ') + "\n");
    }

    void verdict_data()
    {
        QTest::addColumn<QString>("message");
        const char* notFound = "Programmer not found.";
        const char* noTarget = "Programmer did not detect the microcontroller\n\n- Check connections and power supply\n"
                               "- Set a lower speed (Port & Speed)";
        const char* seeLog = "See the message in the dialog box.";
        const QVector<QPair<const char*, const char*>> rows {
            {"avrdude error: unable to open programmer usbasp on port usb", notFound},
            {"ser_open(): cannot open port /dev/ttyUSB0", notFound},
            {"USBasp not found", "UsbAsp not found."},
            {"opening \"usb\" failed", notFound},
            {"programmer is not responding", notFound},
            {"ser_open(): can't open device x", notFound},
            {"avrdude error: program enable: target does not answer (0x01)", noTarget},
            {"Device signature = 0xffffff use -F to override this check", noTarget},
            {"flash is empty, resulting file has no contents",
             "Could not read contents\nDevice is either blank or read-protected (Lock Bits are set)."},
            {"avrdude error: double check chip or use -F to override this check", "Wrong microcontroller selected."},
            {"avrdude error: verification mismatch", "Verification error."},
            {"avrdude error: cannot open port\nverification error", notFound},
            {"first mismatch at byte 0x0000; verification error", "Verification error."},
            {"x.hex: No such file or directory\nERROR: No valid record found", "No such file or directory."},
            {"ERROR: No valid record found", "Invalid file format. Please choose another file."},
            {"ERROR: Invalid file format", "Invalid file format. Please choose another file."},
            {"ERROR: something else", seeLog},
            {"err2or", seeLog},
            {"avrdude error: timeout", seeLog},
            {"Error: usbasp not found, No Such File, Verification Error", ""},
        };
        for (const auto& [output, message] : rows)
            QTest::newRow(output) << message;
    }

    void verdict()
    {
        QFETCH(QString, message);
        BoxAnswerer boxes;
        const QString output = QString("Reading | ### |\n%1\nbye").arg(QTest::currentDataTag());
        QCOMPARE(Message().checkOutput(output), !message.isEmpty());
        QCOMPARE(boxes.take().join(""), message.isEmpty() ? QString() : "AVRDUDE: " + message);
    }

    void messagesKeepTheirLanguage()
    {
        const WorkFolder folder;
        folder.write("Languages/X.json", R"({"Verification error.": "Falsch."})");
        qputenv("APPIMAGE", QDir::current().filePath("Korvel.AppImage").toUtf8());
        JsonToQtTranslator translator;
        const bool loaded = translator.loadLanguage("X");
        qunsetenv("APPIMAGE");
        QVERIFY(loaded && QCoreApplication::installTranslator(&translator));
        const Message messages;
        QCoreApplication::removeTranslator(&translator);
        BoxAnswerer boxes;
        QVERIFY(messages.checkOutput("verification error"));
        QCOMPARE(boxes.take(), QStringList {"AVRDUDE: Falsch."});
    }

    void silentProgrammer_data()
    {
        QTest::addColumn<QString>("box");
        for (const char* line : {"err stk500_getsync() attempt 1 of 10", "err programmer is not responding",
                                 "err failed to synchronize", "err Can't find programmer id \"x\"",
                                 "err not in sync: resp=0x00", "err ser_recv(): timeout", "err avrdude error: timeout"})
            QTest::newRow(line) << "AVRDUDE: Programmer not found.";
        QTest::newRow("out stk500_getsync() attempt") << "";
        QTest::newRow("err Not In Sync") << "";
    }

    void silentProgrammer()
    {
        QFETCH(QString, box);
        Bench bench;
        QCOMPARE(bench.run(QTest::currentDataTag() + QByteArray(box.isEmpty() ? "" : "\nwait 60000")),
                 box.isEmpty() ? 1 : 0);
        QCOMPARE(bench.boxes.take().join(""), box);
    }

    void silentProgrammerIsToldOnce()
    {
        // The box stays open while more of the same arrives and the process ends, killed or by itself.
        Bench bench;
        bench.boxes.delay = 200;
        QCOMPARE(bench.run("err " + QByteArray("getsync() ").repeated(20000) + "\nwait 60000"), 0);
        QCOMPARE(bench.boxes.wait(), QStringList {"AVRDUDE: Programmer not found."});
        QCOMPARE(bench.run("err getsync() 1\nerr getsync() 2\nwait 20\nerr not in sync\nerr error: and more\n"), 0);
        QCOMPARE(bench.boxes.wait(), QStringList {"AVRDUDE: Programmer not found."});
        QCOMPARE(bench.run("out fine"), 1);
    }

    void endings()
    {
        Bench bench;
        QCOMPARE(bench.run("err writing\nout written\nexit 1"), 1); // the exit code does not count
        QVERIFY(bench.avrdude.logText().contains("writing\n") && bench.avrdude.logText().contains("written\n"));
        QCOMPARE(bench.run("", {"flash:w:error:.hex:i"}), 0); // the echoed command line does
        QCOMPARE(bench.boxes.wait(), QStringList {"AVRDUDE: See the message in the dialog box."});
        QCOMPARE(bench.run("err verification error\ncrash"), 0);
        QCOMPARE(bench.boxes.take(), QStringList {"Information: Process avrdude error"});
        QCOMPARE(bench.run(""), 1);
    }

    void oneRunAtATime()
    {
        Bench bench;
        QStringList calls;
        bench.folder.write("script", "wait 50");
        bench.avrdude.execute({"1"}, [&] {
            calls += "1";
            bench.avrdude.execute({"2"}, [&calls] { calls += "2"; }); // the runner is idle by now
        });
        QCOMPARE(bench.avrdude.execute({"dropped"}, [&calls] { calls += "dropped"; }), 0);
        QTRY_COMPARE(calls, QStringList({"1", "2"}));
        QCOMPARE(bench.folder.runs().size(), 2);
    }

    void programMissing()
    {
        Bench bench;
        bench.avrdude.settings().avrdude = "./no-such-program";
        QCOMPARE(bench.avrdude.execute({}, [] { QFAIL("called back"); }), -1);
        const QString last = bench.avrdude.logText().section('\n', -1);
        QVERIFY2(last.startsWith("avrdude not found") && last.size() > 20, qPrintable(last));
        const QString log = bench.avrdude.logText();

        bench.avrdude.settings().avrdude = STAND_IN;
        QCOMPARE(bench.avrdude.execute({}), 0); // dropped: busy for good
        QCOMPARE(bench.avrdude.logText(), log);
    }

    void outputGoesToTheCursor()
    {
        Bench bench;
        bench.folder.write("script", "err first\nwait 200\nerr second\nout third\n");
        bench.avrdude.execute({});
        QTRY_VERIFY(bench.avrdude.logText().contains("first"));
        QTextCursor cursor = bench.log.textCursor();
        cursor.setPosition(0);
        cursor.setPosition(6, QTextCursor::KeepAnchor); // "Korvel" selected: nothing of it may be lost
        bench.log.setTextCursor(cursor);
        QTRY_VERIFY(bench.isIdle());
        const QString text = bench.avrdude.logText();
        QVERIFY2(text.startsWith("Korvelsecond\nthird\n: ") && text.endsWith("first\n"), qPrintable(text));

        // Characters that are split between two pieces of output stay whole.
        QCOMPARE(bench.run("out x" + QByteArray("я").repeated(40000)), 1);
        QCOMPARE(bench.avrdude.logText().count(QStringLiteral("я")), 40000);
    }
};

QTEST_MAIN(tst_Avrdude)
#include "tst_avrdude.moc"
