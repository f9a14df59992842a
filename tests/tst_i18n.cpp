#include "i18n/JsonToQtTranslator.h"
#include "i18n/Translator.h"
#include "i18n/TsConverter.h"
#include "support/LogCapture.h"
#include "support/WorkFolder.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
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
        folder.write(m_applicationFolder + "/readme.txt", "");
        QStringList languages = Translator::availableLanguages();
        languages.sort();
        QCOMPARE(languages, QStringList({"X", "pt"})); // up to the first dot

        const LogCapture log;
        Translator& service = Translator::instance();
        QSignalSpy changed(&service, &Translator::languageChanged);
        folder.write(m_applicationFolder + "/Broken.json", "[");
        QVERIFY(service.loadLanguage("X") && !service.loadLanguage("Broken")); // which changes nothing
        QCOMPARE(service.translate("a") + service.translate("n") + service.translate("b"), QStringLiteral("äb"));
        QCOMPARE(changed.size(), 1);
        QVERIFY(!service.loadLanguage("Missing")); // back to the source texts
        QCOMPARE(service.translate("a") + service.language(), QString("aX"));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(log.lines().join('|'),
                 "Translator: Loaded language: X|Translator: JSON parse error: unterminated array|"
                 "Translator: Failed to load file: "
                     + m_applicationFolder + "/Missing.json");
    }

    void converter()
    {
        const WorkFolder folder;
        const auto message = [](const QByteArray& source, const QByteArray& translation) {
            return "<message><location line=\"1\"/><source>" + source + "</source>" + translation + "</message>";
        };
        const QByteArray head = "<?xml version=\"1.0\"?><!DOCTYPE TS><TS version=\"2.1\"><context><name>A</name>";
        folder.write("x.ts",
                     head + message("Port &amp;&amp; Speed\n%1", "<translation>Ä\n%1</translation>")
                         + message("Open", "<translation type=\"unfinished\">Auf?</translation>")
                         + message("Empty", "<translation></translation>") + message("", "<translation>x</translation>")
                         + message("Twice", "<translation>eins</translation>") + "</context><context><name>B</name>"
                         + message("Twice", "<translation>zwei</translation>") + "</context></TS>");
        folder.write("plural.ts",
                     head + message("a", "<translation>ä</translation>")
                         + message("%n", "<translation><numerusform>1</numerusform></translation>")
                         + message("c", "<translation>ch</translation>"));
        const LogCapture log;
        convertTsToJson("x.ts", "Eins");
        convertTsToJson("plural.ts", "Zwei"); // converted up to the fault
        convertTsToJson("missing.ts", "Drei");
        convertTsToJson("x.ts", "no/folder");
        const auto file = [&](const QString& name) { return folder.read(m_applicationFolder + '/' + name + ".json"); };
        const QJsonObject expected {
            {"Port && Speed\n%1", "Ä\n%1"}, {"Open", "Open"}, {"Empty", "Empty"}, {"Twice", "zwei"}};
        QCOMPARE(QJsonDocument::fromJson(file("Eins")).object(), expected);
        QVERIFY(file("Zwei").contains("ä") && !file("Zwei").contains("ch") && file("Drei").isNull());
        const QString lines = "Converter: Successfully created #/Eins.json|Converter: XML Error: [^:]+|"
                              "Converter: Successfully created #/Zwei.json|Converter: Cannot open TS file: missing.ts|"
                              "Converter: Cannot write JSON to #/no/folder.json";
        const QString pattern =
            QString(lines).replace("|", "\\|").replace("#", QRegularExpression::escape(m_applicationFolder));
        QVERIFY2(
            QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(log.lines().join('|')).hasMatch(),
            qPrintable(log.lines().join('|')));
    }

private:
    const QString m_applicationFolder = QCoreApplication::applicationDirPath() + "/Languages";
};

QTEST_GUILESS_MAIN(tst_I18n)
#include "tst_i18n.moc"
