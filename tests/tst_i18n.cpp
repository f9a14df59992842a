#include "i18n/JsonToQtTranslator.h"
#include "i18n/Translator.h"
#include "i18n/TsConverter.h"
#include "support/LogCapture.h"
#include "support/WorkFolder.h"

#include <QDir>
#include <QSignalSpy>
#include <QtTest>

class tst_I18n : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        qunsetenv("APPIMAGE");
        QDir(m_applicationFolder).removeRecursively();
    }

    void interfaceTexts()
    {
        const WorkFolder folder;
        qputenv("APPIMAGE", QDir::current().filePath("Korvel.AppImage").toUtf8()); // read from beside the package
        folder.write("Languages/X.json",
                     R"({"Port && Speed": "Anschluß && Takt", "a\nb %1": "ä\n%1", "Empty": "", "Number": 5})");
        folder.write(m_applicationFolder + "/X.json", R"({"Unknown": "application"})");
        folder.write("Languages/Broken.json", "{\"a\":");
        folder.write("Languages/Array.json", "[\"a\"]");
        JsonToQtTranslator translator;
        QVERIFY(translator.isEmpty() && translator.loadLanguage("X") && !translator.isEmpty());
        QVERIFY(QCoreApplication::installTranslator(&translator));
        for (const char* context : {"Flash", "Settings"}) {
            const auto text = [context](const char* source) { return QCoreApplication::translate(context, source); };
            QCOMPARE(text("Port && Speed"), QStringLiteral("Anschluß && Takt"));
            QCOMPARE(text("a\nb %1"), QStringLiteral("ä\n%1"));
            for (const char* untranslated : {"Unknown", "Empty", "Number"})
                QCOMPARE(text(untranslated), QString(untranslated));
        }

        QCOMPARE(translator.translate("", "Unknown"), QString("Unknown")); // no other translator is asked

        const LogCapture log;
        QVERIFY(!translator.loadLanguage("Broken") && translator.isEmpty());
        QVERIFY(log.lines().constLast().startsWith("JsonToQtTranslator: JSON parse error: "));
        QVERIFY(translator.loadLanguage("Array") && translator.isEmpty());
        QVERIFY(!translator.loadLanguage("Missing"));
        QVERIFY(log.lines().constLast().startsWith("JsonToQtTranslator: Cannot open file: "));
        QCOMPARE(log.lines().size(), 2);

        qputenv("APPIMAGE", "");
        QVERIFY(translator.loadLanguage("X"));
        QCOMPARE(tr("Unknown"), QString("application"));
    }

    void service()
    {
        const WorkFolder folder;
        folder.write(m_applicationFolder + "/X.json", R"({"a": "ä", "n": 1})");
        folder.write(m_applicationFolder + "/pt.BR.json", "[");
        folder.write(m_applicationFolder + "/pt.json", "[");
        folder.write(m_applicationFolder + "/readme.txt", "");
        QStringList languages = Translator::availableLanguages();
        languages.sort();
        QCOMPARE(languages, QStringList({"X", "pt", "pt"}));

        const LogCapture log;
        Translator& service = Translator::instance();
        const QSignalSpy changed(&service, &Translator::languageChanged);
        QVERIFY(service.loadLanguage("X"));
        QVERIFY(!service.loadLanguage("pt")); // broken: nothing changes
        QCOMPARE(service.translate("a") + service.translate("n") + service.translate("b"), QStringLiteral("äb"));
        QCOMPARE(changed.size(), 1);
        QVERIFY(!service.loadLanguage("Missing")); // back to the source texts
        QCOMPARE(service.translate("a") + service.language(), QString("aX"));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(log.lines()[0], QString("Translator: Loaded language: X"));
        QVERIFY(log.lines()[1].startsWith("Translator: JSON parse error: "));
        QVERIFY(log.lines()[2].startsWith("Translator: Failed to load file: "));
    }

    void converter()
    {
        const WorkFolder folder;
        const auto message = [](const char* source, const char* translation) {
            return QString("<message><location line=\"1\"/><source>%1</source>%2</message>").arg(source, translation);
        };
        const QString head = "<?xml version=\"1.0\"?><!DOCTYPE TS><TS version=\"2.1\" language=\"de\"><context><name>";
        folder.write(
            "x.ts",
            QString(head + "A</name>" + message("Port &amp;&amp; Speed\n%1", "<translation>Ä\n%1</translation>")
                    + message("Open", "<translation type=\"unfinished\">Auf?</translation>")
                    + message("Empty", "<translation></translation>") + message("", "<translation>x</translation>")
                    + message("Twice", "<translation>eins</translation>") + "</context><context><name>B</name>"
                    + message("Twice", "<translation>zwei</translation>") + "</context></TS>")
                .toUtf8());
        folder.write("plural.ts",
                     (head + "A</name>" + message("a", "<translation>ä</translation>")
                      + message("%n b", "<translation><numerusform>1</numerusform></translation>")
                      + message("c", "<translation>ch</translation>"))
                         .toUtf8());
        const LogCapture log;
        convertTsToJson("x.ts", "Eins");
        JsonToQtTranslator translator;
        QVERIFY(translator.loadLanguage("Eins"));
        const auto text = [&translator](const char* source) { return translator.translate("", source); };
        QCOMPARE(text("Port && Speed\n%1"), QStringLiteral("Ä\n%1"));
        QCOMPARE(text("Open") + text("Empty") + text("Twice"), QString("OpenEmptyzwei"));
        const QByteArray file = folder.read(m_applicationFolder + "/Eins.json");
        QVERIFY(file.contains("\"Open\": \"Open\"") && file.contains("\"Empty\": \"Empty\"") && !file.contains("\"\""));

        convertTsToJson("plural.ts", "Zwei"); // converted up to the fault
        QVERIFY(translator.loadLanguage("Zwei"));
        QCOMPARE(text("a") + text("c"), QStringLiteral("äc"));
        convertTsToJson("missing.ts", "Drei");
        convertTsToJson("x.ts", "no/folder");
        const QString created = "Converter: Successfully created " + m_applicationFolder;
        QCOMPARE(
            log.lines().filter(QRegularExpression("^(?!Converter: XML Error: .)")),
            QStringList({created + "/Eins.json", created + "/Zwei.json", "Converter: Cannot open TS file: missing.ts",
                         "Converter: Cannot write JSON to " + m_applicationFolder + "/no/folder.json"}));
        QCOMPARE(log.lines().size(), 5);
        QVERIFY(!QFile::exists(m_applicationFolder + "/Drei.json"));
    }

private:
    const QString m_applicationFolder = QCoreApplication::applicationDirPath() + "/Languages";
};

QTEST_GUILESS_MAIN(tst_I18n)
#include "tst_i18n.moc"
