#include "i18n/JsonToQtTranslator.h"
#include "i18n/Translator.h"
#include "i18n/TsConverter.h"
#include "support/WorkFolder.h"

#include <QtTest>

class tst_I18n : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_alone.lock()); }
    void cleanup() { QDir(m_languages).removeRecursively(); }

    void interfaceTexts()
    {
        const WorkFolder folder;
        qputenv("APPIMAGE", QDir::current().filePath("Korvel.AppImage").toUtf8()); // read from beside the package
        folder.write("Languages/X.json", R"({"A && B": "Ä && B", "a\nb %1": "ä\n%1", "Empty": "", "Number": 5})");
        folder.write("Languages/Broken.json", "{\"a\":");
        folder.write(m_languages + "X.json", R"({"Unknown": "beside the program"})");
        JsonToQtTranslator translator;
        QVERIFY(translator.loadLanguage("X") && QCoreApplication::installTranslator(&translator));
        QString texts;
        for (const char* text : {"A && B", "a\nb %1", "Unknown", "Empty", "Number"})
            texts += QCoreApplication::translate("Any", text) + '|';
        QCOMPARE(texts, QStringLiteral("Ä && B|ä\n%1|Unknown|Empty|Number|"));
        for (const QString unusable : {"Broken", "Missing"})
            QVERIFY(translator.loadLanguage("X") && !translator.loadLanguage(unusable) && translator.isEmpty());
        qunsetenv("APPIMAGE");
        QVERIFY(translator.loadLanguage("X") && tr("Unknown") == "beside the program");

        Translator& service = Translator::instance();
        QVERIFY(service.loadLanguage("X") && service.translate("Unknown") == "beside the program");
        QVERIFY(!service.loadLanguage("Missing") && service.translate("Unknown") == "Unknown");
    }

    void converter()
    {
        const WorkFolder folder;
        const QByteArray source = folder.read(TEST_FOLDER "/data/sample.ts");
        folder.write("whole.ts", source);
        folder.write("half.ts", source.left(source.indexOf("Open"))); // converted up to the fault
        QString texts;
        for (const QString name : {"whole", "half", "missing"}) {
            texts += convertTsToJson(name + ".ts", name) ? "whole " : "failed ";
            texts += QJsonDocument::fromJson(folder.read(m_languages + name + ".json")).toJson(QJsonDocument::Compact);
        }
        QCOMPARE(texts.remove('"'),
                 QStringLiteral("whole {A && B:Ä,Empty:Empty,Open:Open,Twice:zwei}failed {A && B:Ä}failed "));
        QCOMPARE(QProcess::execute(CONVERTER, {"missing.ts", "missing"}), 1); // a build has to stop there
    }

private:
    const QString m_languages = QCoreApplication::applicationDirPath() + "/Languages/";
    QLockFile m_alone {QCoreApplication::applicationDirPath() + "/tst_i18n.lock"}; // with the program's folder
};

QTEST_GUILESS_MAIN(tst_I18n)
#include "tst_i18n.moc"
