#include "advice/Advice.h"
#include "advice/Surroundings.h"
#include "settings/SettingsModel.h"
#include "support/Table.h"

class tst_Advice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QDir::setCurrent(DATA_FOLDER); } // with the descriptions and the catalogue that ship

    void lines_data() { casesFrom("advice.txt", {"printed", "arguments", "part", "programmer", "around", "told"}); }
    void lines()
    {
        compare(cell("printed"), cell("arguments").split(' '), cell("part"), cell("programmer"), cell("around"));
    }

    void everyVersion_data()
    {
        for (const char* column : {"printed", "arguments", "programmer", "told"})
            QTest::addColumn<QString>(column);
        const auto table = linesOf("aftermaths.txt");
        for (const QString version : {"6.3", "7.0", "7.1", "7.3", "8.2"}) {
            const QString recordings = WorkFolder::read(TEST_FOLDER "/recordings/avrdude-" + version + ".txt");
            const QStringList commands = recordings.split("### -").mid(1);
            for (const QStringList& line : table) {
                const int number = line[1].toInt();
                const QStringList words = commands[number].section("\n", 0, 0).split(' ');
                const QString told = line.size() > 4 && line[3].split(' ').contains(version) ? line[4] : line[2];
                QTest::newRow(qPrintable(version + ": " + line[0]))
                    << commands[number].section('\n', 1).section("### exit", 0, 0) << words.mid(6).join(' ') << words[3]
                    << told;
            }
        }
    }

    void everyVersion() { compare(cell("printed"), cell("arguments").split(' '), "ATmega16", cell("programmer"), {}); }

private:
    /// Sees that a run that printed @p printed comes to the case's advice. @p programmer is a name or an identifier.
    static void compare(const QString& printed, const QStringList& arguments, const QString& part,
                        const QString& programmer, const QString& around)
    {
        FailedRun run;
        run.output = printed;
        run.isStarted = printed != "-";
        run.isStopped = around == "stopped";
        run.arguments = arguments;
        run.settings.mcuName = part;
        run.settings.mcuId = QJsonDocument::fromJson(WorkFolder::read("mcu/" + part + ".json"))["id"].toString();
        run.settings.programmer = {
            programmer,
            QJsonDocument::fromJson(WorkFolder::read("programmer/" + programmer + ".json"))["id"].toString()};
        run.settings.port = "/dev/ttyUSB0";
        run.settings.arguments =
            QJsonDocument::fromJson(WorkFolder::read("programmer/" + programmer + ".json"))["arguments"].toString();
        Surroundings surroundings;
        const QStringList words = around.split(' ');
        surroundings.system = words[0] == "Windows" ? Surroundings::System::Windows : Surroundings::System::Linux;
        for (const QString& word : words) {
            if (word.contains(':'))
                surroundings.usbDevices += word;
            else if (word.startsWith("tty") || word.startsWith("COM"))
                surroundings.serialPorts += word;
            else if (word.startsWith("usb"))
                surroundings.knowsUsb = true;
            else if (word == "slowest")
                run.settings.speed = SettingsModel().speedList().constLast();
            else if (word != "Windows")
                surroundings.portGroup = word;
        }
        const Explanation told = Advice::explain(run, surroundings);
        const QString all = told.lines.join('\n') + (told.parts.isEmpty() ? "" : " -> ") + told.parts.join(", ");
        QCOMPARE(cell("told").isEmpty() ? all : all.left(cell("told").size()), cell("told"));
    }
};

QTEST_GUILESS_MAIN(tst_Advice)
#include "tst_advice.moc"
