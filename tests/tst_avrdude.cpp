#include "i18n/JsonToQtTranslator.h"
#include "support/Bench.h"

#include <QtTest>

class tst_Avrdude : public QObject
{
    Q_OBJECT

private slots:
    void commandLine()
    {
        Bench bench;
        SettingsRecord& settings = bench.avrdude.settings();
        settings.mcuId = "m328p";
        settings.programmer.id = "stk500v1";
        settings.port = "/dev/tty USB0";
        using Row = std::array<const char*, 3>;
        for (const auto& [extra, speed, between] :
             {Row {"", "375 kHz (-B 2)", "-B 2"}, {"", "", ""}, {"  -v   -F ", "-B 0.5", "-v|-F|-B 0.5"}}) {
            settings.arguments = extra;
            settings.speed = speed;
            QCOMPARE(bench.run("", {"-U", "flash:w:my file.hex:i", ""}), 1);
            const QString all =
                QString("-p|m328p|-c|stk500v1|-P|/dev/tty USB0|%1|-U|flash:w:my file.hex:i|").arg(between);
            QCOMPARE(bench.folder.runs().constLast().join('|'), all);
            QCOMPARE(bench.avrdude.logText(), "Korvel: " STAND_IN " " + QString(all).replace('|', ' ') + "\n");
        }
    }

    void verdict()
    {
        const char* notFound = "Programmer not found.";
        const char* noTarget = "Programmer did not detect the microcontroller\n\n- Check connections and power supply\n"
                               "- Set a lower speed (Port & Speed)";
        const char* badFormat = "Invalid file format. Please choose another file.";
        const char* seeLog = "See the message in the dialog box.";
        const char* noRead = "Could not read contents\nDevice is either blank or read-protected (Lock Bits are set).";
        for (const auto& [message, outputs] :
             {std::pair(notFound,
                        QStringList {"avrdude error: unable to open programmer usbasp", "cannot open port x",
                                     "opening \"usb\" failed", "programmer is not responding", "can't open device x",
                                     "cannot open port\nverification error"}),
              {"UsbAsp not found.", {"USBasp not found"}},
              {noTarget,
               {"error: program enable: target does not answer",
                "Device signature = 0xffffff use -F to override this check"}},
              {noRead, {"flash is empty, resulting file has no contents"}},
              {"Wrong microcontroller selected.",
               {"avrdude error: double check chip or use -F to override this check"}},
              {"Verification error.",
               {"error: verification mismatch", "first mismatch at byte 0x0000; verification error"}},
              {"No such file or directory.", {"No such file or directory\nERROR: No valid record found"}},
              {badFormat, {"ERROR: No valid record found", "ERROR: Invalid file format"}},
              {seeLog, {"ERROR: something else", "err2or", "avrdude error: timeout"}},
              {nullptr, {"Error: usbasp not found, No Such File, Verification Error"}}}) {
            for (const QString& output : outputs) {
                BoxAnswerer boxes;
                const bool told = Message().checkOutput("Reading | ### |\n" + output + "\nbye");
                QVERIFY2(told == (message != nullptr), qPrintable(output));
                QCOMPARE(boxes.take().join(""), message ? QString("AVRDUDE: ") + message : QString());
            }
        }
    }

    void messagesKeepTheirLanguage()
    {
        const WorkFolder folder;
        folder.write("Languages/X.json", R"({"Verification error.": "Falsch."})");
        qputenv("APPIMAGE", QDir::current().filePath("Korvel.AppImage").toUtf8());
        JsonToQtTranslator translator;
        QVERIFY(translator.loadLanguage("X") && QCoreApplication::installTranslator(&translator));
        const Message messages;
        QCoreApplication::removeTranslator(&translator);
        BoxAnswerer boxes;
        QVERIFY(messages.checkOutput("verification error"));
        QCOMPARE(boxes.take(), QStringList {"AVRDUDE: Falsch."});
    }

    void silentProgrammer()
    {
        const QStringList notFound {"AVRDUDE: Programmer not found."};
        Bench bench;
        for (const QByteArray line : {"stk500_getsync() attempt 1 of 10", "programmer is not responding",
                                      "failed to synchronize", "Can't find programmer id \"x\"",
                                      "not in sync: resp=0x00", "ser_recv(): timeout", "avrdude error: timeout"}) {
            QVERIFY2(bench.run("err " + line + "\nwait 60000") == 0, line);
            QVERIFY2(bench.boxes.wait() == notFound, line);
        }
        QCOMPARE(bench.run("out stk500_getsync() attempt\nerr Not In Sync"), 1);
        QCOMPARE(bench.boxes.take(), QStringList());

        // The box stays open while more of the same arrives and the process ends, killed or by itself.
        bench.boxes.delay = 200;
        for (const QByteArray& script :
             {"err " + QByteArray("getsync() ").repeated(20000) + "\nwait 60000",
              QByteArray("err getsync() 1\nerr getsync() 2\nwait 20\nerr not in sync\nerr error: and more")}) {
            QCOMPARE(bench.run(script), 0);
            QCOMPARE(bench.boxes.wait(), notFound);
        }
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

        QStringList calls;
        bench.folder.write("script", "wait 50");
        bench.avrdude.execute({"1"}, [&] {
            calls += "1";
            bench.avrdude.execute({"2"}, [&calls] { calls += "2"; }); // the runner is idle by now
        });
        QCOMPARE(bench.avrdude.execute({"dropped"}, [&calls] { calls += "dropped"; }), 0);
        QTRY_COMPARE(calls, QStringList({"1", "2"}));
        QCOMPARE(bench.requests().mid(3), calls);
    }

    void programMissing()
    {
        Bench bench;
        bench.avrdude.settings().avrdude = "./no-such-program";
        QCOMPARE(bench.avrdude.execute({}, [] { QFAIL("called back"); }), -1);
        const QString log = bench.avrdude.logText();
        QVERIFY2(QRegularExpression("\navrdude not found...+$").match(log).hasMatch(), qPrintable(log));
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
