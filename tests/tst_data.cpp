#include "app/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "base/JsonFile.h"
#include "mcu/BytesModel.h"
#include "support/BoxAnswerer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

namespace {

/// The lines of avrdude's tables: "-p" for parts, "-c" for programmers.
QVector<QStringList> avrdudeTable(const QString& option)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("avrdude", {option, "*/St"});
    process.waitForFinished();
    QVector<QStringList> lines;
    for (const QString& line : QString::fromUtf8(process.readAll()).split('\n'))
        lines += line.split('\t');
    return lines;
}

/// An AVR microcontroller as avrdude knows it.
struct Part {
    QJsonObject facts; ///< identifier, signature ("1E 94 03") and sizes of flash and EEPROM, by the keys of our files
    bool isSerial = false; ///< can be programmed over SPI
    QStringList bytes; ///< fuse and lock memories of one byte, without those that are left out
};

/// The bytes that avrdude names and the files leave out; docs/devices.md tells why.
const QRegularExpression leftOut("^(ATtiny(4|5|9|10)|ATmega406) lockbits$|^ATtiny(11|12|15|28) lock$"
                                 "|^(AVR\\w+|ATmega\\d+0[89]|ATtiny\\d+[02]\\d) fuse4$"
                                 "|^ATxmega(64|128)A1(revD)? fuse[25]$|^ATxmega(16|32)A4 fuse0$");

/// How the bytes are called: microcontroller, identifier, name.
const QRegularExpression titles(
    "^(\\w+ (lfuse Low Fuse|hfuse High Fuse|efuse Extended Fuse|fuse Fuse|lock Lock Bits)"
    "|ATxmega\\w+ fuse(\\d) Fuse \\3 FUSEBYTE\\3"
    "|(ATmega|ATtiny|AVR)\\w+ fuse(0 Fuse 0 WDTCFG|1 Fuse 1 BODCFG|2 Fuse 2 OSCCFG|5 Fuse 5 SYSCFG0|6 Fuse 6 SYSCFG1)"
    "|(ATmega|ATtiny)\\w+ fuse(4 Fuse 4 TCD0CFG|7 Fuse 7 APPEND|8 Fuse 8 BOOTEND)"
    "|AVR\\w+ fuse(7 Fuse 7 CODESIZE|8 Fuse 8 BOOTSIZE))$");

/// What the vendor delivers, from the datasheets: the bytes in the order of the files. ATmega32U4 as the RC order codes
/// have it; the others come with 5E.
const QString factoryBytes =
    "AT90CAN128 ATmega1284P ATmega162 ATmega164P ATmega169P ATmega2560 ATmega644P: 62 99 FF FF; "
    "AT90PWM3B ATmega168 ATmega88PA: 62 DF F9 FF; AT90USB1287: 5E 99 F3 FF; AT90USB162 ATmega32U2: 5E D9 F4 FF; "
    "ATmega128 ATmega64: E1 99 FD FF; ATmega16 ATmega32: E1 99 FF; ATmega328P: 62 D9 FF FF; "
    "ATmega328PB: 62 D9 F7 FF; ATmega32U4: 52 99 FB FF; "
    "ATmega48 ATtiny1634 ATtiny24A ATtiny44 ATtiny45 ATtiny84 ATtiny85 ATtiny861: 62 DF FF FF; "
    "ATmega4809: 00 00 02 C4 07 00 00 C5; ATmega8 ATmega8515 ATmega8535: E1 D9 FF; ATtiny10: FF; "
    "ATtiny13A: 6A FF FF; ATtiny1614 ATtiny412: 00 00 02 00 C4 07 00 00 C5; ATtiny2313: 64 DF FF FF; "
    "ATtiny26: E1 F7 FF; ATtiny88: 6E DF FF FF; ATxmega128A1U: FF 00 FF FE FF FF; "
    "AVR128DA28: 00 00 00 C0 00 00 00; AVR128DB48: 00 00 00 C0 08 00 00; AVR64DD32: 00 00 00 D0 08 00 00";

/// Different parts with one signature: one die, some with fewer pins or without USB host, and in the last pair given
/// twice, to parts that no one programmer interface reaches. Besides these, revisions of one part share it.
const QStringList sameSignature {"AT90PWM2 AT90PWM3",     "AT90PWM2B AT90PWM3B",     "AT90PWM216 AT90PWM316",
                                 "AT90USB646 AT90USB647", "AT90USB1286 AT90USB1287", "ATmega4809 ATxmega64B3"};

} // namespace

class tst_Data : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(DATA_FOLDER));
        const QRegularExpression avr("^(AT(mega|tiny|xmega|90)|AVR)\\w+$");
        const QRegularExpression isSize("^(flash|eeprom) size ");
        const QRegularExpression wanted("^(.?fuse\\d?|lock(bits)?) size 1$");
        for (const QStringList& cells : avrdudeTable("-p")) {
            if (cells.size() < 4 || !avr.match(cells[1]).hasMatch())
                continue;
            Part& part = m_parts[cells[1]];
            const QString kind = cells[0] + ' ' + cells[2];
            if (kind == ".pt id")
                part.facts["id"] = QString(cells[3]).remove('"');
            else if (kind == ".pt signature")
                part.facts["signature"] = QString(cells[3]).remove("0x").toUpper();
            else if (isSize.match(cells.mid(2).join(' ')).hasMatch() && cells[1] + cells[2] != "ATtiny11eeprom")
                part.facts[cells[2]] = cells[4].toInt(nullptr, 0); // ATtiny11 has no EEPROM; avrdude 8 knows
            else if (kind == ".pt prog_modes")
                part.isSerial = cells[3].contains("PM_ISP");
            else if (wanted.match(cells.mid(2).join(' ')).hasMatch()
                     && !leftOut.match(cells[1] + ' ' + cells[2]).hasMatch())
                part.bytes += cells[2];
        }
        QVERIFY(m_parts.contains("ATmega16"));
    }

    void everyFileIsAnObjectWithOneDotInItsName()
    {
        for (QDirIterator files(".", {"*.json"}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
            const QString file = files.next();
            QVERIFY2(JsonFile::read(file).isObject() && files.fileName().count('.') == 1, qPrintable(file));
        }
    }

    void descriptionsAgreeWithAvrdude()
    {
        for (const QString& name : jsonBaseNames("mcu")) {
            QJsonObject description = JsonFile::read("mcu/" + name + ".json").document.object();
            Part part = m_parts.value(name);
            QStringList ids;
            for (const QJsonValue& byte : description.take("FuseBytes").toArray()) {
                ids += byte["id"].toString();
                const QString title = name + ' ' + ids.last() + ' ' + byte["name"].toString();
                QVERIFY2(titles.match(title).hasMatch(), qPrintable(title));
                QVERIFY2(byte["bits"] == wellFormed(byte["bits"].toArray(), part.isSerial), qPrintable(title));
            }
            if (part.bytes.removeOne("lock"))
                part.bytes += "lock"; // comes last in the files
            QCOMPARE(name + ' ' + ids.join(' '), name + ' ' + part.bytes.join(' '));
            part.facts["mcu"] = name;
            QCOMPARE(description, part.facts);
        }
    }

    void factoryValues()
    {
        for (const QString& group : factoryBytes.split("; "))
            for (const QString& name : group.section(": ", 0, 0).split(' ')) {
                QByteArray bytes;
                for (const FuseByte& byte : load(name))
                    bytes += static_cast<char>(byte.defaultValue);
                QCOMPARE(name + ": " + bytes.toHex(' ').toUpper(), name + ": " + group.section(": ", 1));
            }
    }

    void signaturesAreSharedForAReason()
    {
        static const QRegularExpression revision("(P|P?A|[RU])$");
        QHash<QString, QStringList> owners;
        for (const QString& name : jsonBaseNames("mcu"))
            owners[JsonFile::read("mcu/" + name + ".json").document["signature"].toString()] += name;
        for (QStringList& names : owners) {
            names.sort();
            QSet<QString> bare;
            for (QString name : names)
                bare += name.remove(revision);
            QVERIFY2(bare.size() == 1 || sameSignature.contains(names.join(' ')), qPrintable(names.join(' ')));
        }
    }

    void programmersAgreeWithAvrdude()
    {
        QHash<QString, QString> ports;
        for (const QStringList& cells : avrdudeTable("-c")) // each with its id first, and not always with a connection
            if (cells.value(2) == "id" || cells.value(2) == "connection_type")
                ports[cells[1]] = cells[3] == "serial" ? "com" : "usb";
        QSet<QString> offered; // identifiers, and identifiers with arguments
        for (const QString& name : jsonBaseNames("programmer")) {
            const QJsonObject programmer = JsonFile::read("programmer/" + name + ".json").document.object();
            const QString id = programmer["id"].toString();
            const QString arguments = programmer["arguments"].toString();
            const QJsonObject expected {
                {"id", id}, {"arguments", arguments}, {"port", arguments.contains("-P ") ? "usb" : ports.value(id)}};
            QVERIFY2(programmer == expected && ports.contains(id), qPrintable(name));
            QVERIFY2(!offered.contains(id + ' ' + arguments), qPrintable(name + " is there twice"));
            offered << id << id + ' ' + arguments;
        }
        const QString missing = devices("Programmers that do not ship");
        for (const QString& id : ports.keys())
            QVERIFY2(offered.contains(id) != missing.contains(QRegularExpression("[ ]" + id + "\\b")), qPrintable(id));
    }

    void sampleSettingsFitTheirDescription()
    {
        QVERIFY(QFileInfo(VIRTUAL_PROGRAMMER).dir().exists("save.json")); // laid beside the program
        const auto text = [](const QString& id, const FuseBytes& bytes) {
            QString all = id;
            for (const FuseByte& byte : bytes)
                all += ' ' + byte.id + ' ' + QString::number(byte.defaultValue);
            return all;
        };
        for (const QFileInfo& file : jsonFiles("profiles") + QFileInfoList {QFileInfo("save.json")}) {
            SettingsRecord sample;
            QVERIFY2(sample.loadFromFile(file.filePath()), qPrintable(file.filePath()));
            QCOMPARE(text(sample.mcuId, sample.fusesBytes),
                     text(m_parts.value(sample.mcuName).facts["id"].toString(), load(sample.mcuName)));
        }
    }

    void theListOfDevicesTellsWhatIsMissing()
    {
        const QString told = devices("Microcontrollers that do not ship");
        const QStringList ships = jsonBaseNames("mcu");
        for (const QString& name : m_parts.keys())
            QVERIFY2(ships.contains(name) != told.contains(QRegularExpression("\\b" + name + "\\b")), qPrintable(name));
    }

private:
    /// A section of the list of devices.
    static QString devices(const QString& title)
    {
        QFile file(DATA_FOLDER "/../docs/devices.md");
        const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        return text.section("## " + title, 1).section("\n## ", 0, 0);
    }

    /// What the program makes of a description that ships.
    static FuseBytes load(const QString& name)
    {
        const BoxAnswerer boxes; // a missing file opens one
        Avrdude avrdude(nullptr, nullptr);
        BytesModel(avrdude).load(name);
        return avrdude.settings().fusesBytes;
    }

    /// What an array of eight bits has to look like that has these names and values.
    static QJsonArray wellFormed(const QJsonArray& bits, bool isSerial)
    {
        QJsonArray expected;
        QSet<QString> taken {""};
        for (int i = 0; i < 8; ++i) {
            const QString name = bits.at(i)["name"].toString();
            const bool mayChange = name != "NOT USED" && !(name == "SPIEN" && isSerial);
            expected += QJsonObject {{"name", mayChange && taken.contains(name) ? "a name of its own" : name},
                                     {"default", bits.at(i)["default"].toInt() & 1},
                                     {"enabled", mayChange ? 1 : 0}};
            taken += name;
        }
        return expected;
    }

    QHash<QString, Part> m_parts;
};

QTEST_MAIN(tst_Data)
#include "tst_data.moc"
