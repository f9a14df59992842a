#include "app/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "base/JsonFile.h"
#include "fuses/FuseMeanings.h"
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
    process.waitForFinished(-1); // half a minute may not do
    QVector<QStringList> lines;
    for (const QString& line : QString::fromUtf8(process.readAll()).remove('\r').split('\n'))
        lines += line.split('\t');
    return lines;
}

/// An AVR microcontroller as the table of facts has it.
struct Part {
    QJsonObject facts; ///< by the keys of our files, without the bytes
    bool isSerial = false; ///< can be programmed over SPI
    QStringList bytes; ///< in the order of the files: "lfuse=E1/FF", factory value and which bits exist
};

/// How the bytes are called: microcontroller, identifier, name.
const QRegularExpression titles(
    "^(\\w+ (lfuse Low Fuse|hfuse High Fuse|efuse Extended Fuse|fuse Fuse|lock(bits)? Lock Bits)"
    "|ATxmega\\w+ fuse(\\d) Fuse \\4 FUSEBYTE\\4"
    "|(ATmega|ATtiny|AVR)\\w+ fuse(0 Fuse 0 WDTCFG|1 Fuse 1 BODCFG|2 Fuse 2 OSCCFG|5 Fuse 5 SYSCFG0|6 Fuse 6 SYSCFG1)"
    "|(ATmega|ATtiny)\\w+ fuse(4 Fuse 4 TCD0CFG|7 Fuse 7 APPEND|8 Fuse 8 BOOTEND)"
    "|AVR\\w+ fuse(7 Fuse 7 CODESIZE|8 Fuse 8 BOOTSIZE))$");

} // namespace

class tst_Data : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(DATA_FOLDER));
        QFile table(DATA_FOLDER "/../tests/data/parts.txt");
        QVERIFY(table.open(QIODevice::ReadOnly));
        for (const QString& line : QString::fromUtf8(table.readAll()).split('\n')) {
            const QStringList cells = line.split(' ');
            if (cells.size() < 6 || line.startsWith('#'))
                continue;
            const QString signature = QString(cells[2]).insert(4, ' ').insert(2, ' ');
            Part& part = m_parts[cells[0]];
            part.facts = {{"mcu", cells[0]}, {"id", cells[1]}, {"signature", signature}, {"flash", cells[3].toInt()}};
            if (cells[4] != "-")
                part.facts["eeprom"] = cells[4].toInt();
            part.isSerial = cells[5].contains("ISP");
            for (QString byte : cells.mid(6))
                if (!byte.startsWith('(')) // left out
                    part.bytes += byte.remove('*') + (byte.contains('/') ? "" : "/FF");
        }
        for (const QStringList& cells : avrdudeTable("-p")) {
            if (cells.size() > 3 && cells[0] + cells[2] == ".ptid")
                m_installed[cells[1]] += QString(cells[3]).remove('"'); // comes first
            else if (cells.size() > 4 && cells[3] == "size" && cells[4] == "1")
                m_installed[cells[1]] += cells[2];
        }
        QVERIFY(m_parts.contains("ATmega16") && m_installed["ATmega16"].contains("lfuse"));
    }

    void everyFileIsAnObjectWithOneDotInItsName()
    {
        for (QDirIterator files(".", {"*.json"}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
            const QString file = files.next();
            QVERIFY2(JsonFile::read(file).isObject() && files.fileName().count('.') == 1, qPrintable(file));
        }
    }

    void descriptionsAgreeWithFacts()
    {
        for (const QString& name : jsonBaseNames("mcu")) {
            QJsonObject description = JsonFile::read("mcu/" + name + ".json").document.object();
            Part part = m_parts.value(name);
            for (const QJsonValue& byte : description.take("FuseBytes").toArray()) {
                const QString title = name + ' ' + byte["id"].toString() + ' ' + byte["name"].toString();
                QVERIFY2(titles.match(title).hasMatch(), qPrintable(title));
                QVERIFY2(byte["bits"] == wellFormed(byte["bits"].toArray(), part.isSerial), qPrintable(title));
            }
            const QStringList installed = m_installed.value(name);
            QStringList bytes;
            for (const FuseByte& byte : load(name)) {
                unsigned existing = 0;
                for (const FuseBit& bit : byte.fuseBits)
                    existing |= bit.isUsed() ? 1U << bit.bitNumber : 0;
                bytes += QString::asprintf("%s=%02X/%02X", qPrintable(byte.id), byte.defaultValue, existing);
                QVERIFY2(installed.isEmpty() || installed.contains(byte.id), qPrintable(name + ' ' + byte.id));
            }
            QCOMPARE(name + ' ' + bytes.join(' '), name + ' ' + part.bytes.join(' '));
            if (installed.contains(name.toLower())) // newer ones know the part by its name too
                part.facts["id"] = name.toLower();
            QVERIFY2(description == part.facts, qPrintable(name));
            QVERIFY2(installed.isEmpty() || installed.first() == description["id"].toString(), qPrintable(name));
        }
    }

    void everyBitBelongsToOneField()
    {
        const QRegularExpression otherName("^(LVL|OSCSEL|OSCHFFRQ|PLLCK|NVLB|JTAGUSERID)"); // than their field's
        for (const QString& name : jsonBaseNames("mcu"))
            for (const QJsonValue& byte : JsonFile::read("mcu/" + name + ".json").document["FuseBytes"].toArray()) {
                const QJsonObject fields = byte["fields"].toObject();
                QHash<QString, QString> before; // the bit before, by field and name without its number
                for (int i = 0; i < 8; ++i) {
                    const QString bit = byte["bits"][i]["name"].toString();
                    QStringList owners;
                    for (const QString& mask : fields.keys())
                        if ((mask.toUInt(nullptr, 16) << i & 0x80) != 0)
                            owners += fields[mask].toString().toUpper();
                    const QString stem = QString(bit).remove(QRegularExpression("\\d+$"));
                    QString& last = before[owners.value(0) + stem];
                    const bool isNext =
                        last.isEmpty() || last.mid(stem.size()).toInt() == bit.mid(stem.size()).toInt() + 1;
                    const bool isNamed = owners.value(0).contains(stem) || bit.contains(otherName);
                    QVERIFY2(bit == "NOT USED" || (owners.size() == 1 && isNext && isNamed),
                             qPrintable(name + ' ' + byte["id"].toString() + ' ' + bit + ' ' + owners.join(' ')));
                    last = bit;
                }
            }
    }

    void everySettingHasWords()
    {
        const QJsonObject symbols = JsonFile::read("mcu/meanings/fields.json").document.object();
        QStringList left = symbols.keys();
        for (const QString& name : jsonBaseNames("mcu")) {
            Avrdude avrdude(nullptr, nullptr);
            BytesModel(avrdude).load(name);
            FuseMeanings meanings;
            meanings.load(avrdude.settings());
            const QJsonValue described = BytesModel::description(avrdude.settings())["FuseBytes"];
            for (int i = 0; i < avrdude.settings().fusesBytes.size(); ++i) {
                const QJsonObject fields = described[i]["fields"].toObject();
                QCOMPARE(meanings.of(avrdude.settings().fusesBytes[i]).size(), fields.size());
                for (const QString& mask : fields.keys()) {
                    const QString field = fields[mask].toString();
                    if (!left.removeOne(field))
                        continue; // seen with another part
                    const auto bits = mask.toUInt(nullptr, 16);
                    const QJsonObject settings = symbols[field].toObject();
                    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
                        FuseByte byte = avrdude.settings().fusesBytes[i];
                        byte.currentValue = setting.key().toUInt() * (bits & (~bits + 1));
                        QString words;
                        for (const FuseMeanings::Text& about : meanings.of(byte))
                            if ((about.bits & bits) != 0)
                                words = about.text.section('\n', 1, 1).section(": ", 1);
                        QVERIFY2(words.contains(QRegularExpression("^[^_]+$")) && words != "reserved"
                                     && words != setting.value().toString(),
                                 qPrintable(field + ' ' + setting.key() + ' ' + words));
                    }
                }
            }
        }
        QCOMPARE(left, QStringList());
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
#ifdef Q_OS_WIN
            if (id == "linuxspi") // is in no archive for Windows
                continue;
#endif
            const QString newer = QString("| %1 | `%2` | %3 |").arg(name, id, programmer["port"].toString());
            QVERIFY2(ports.contains(id) != devices("What needs avrdude 8").contains(newer), qPrintable(newer));
            const QString port = arguments.contains("-P ") ? "usb" : ports.value(id, programmer["port"].toString());
            const QJsonObject expected {{"id", id}, {"arguments", arguments}, {"port", port}};
            QVERIFY2(programmer == expected, qPrintable(name));
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
                     text(JsonFile::read("mcu/" + sample.mcuName + ".json").document["id"].toString(),
                          load(sample.mcuName)));
        }
    }

    void theListOfDevicesIsTrue()
    {
        const QString missing = devices("Microcontrollers that do not ship");
        const QString newer = devices("What needs avrdude 8");
        const QStringList ships = jsonBaseNames("mcu");
        for (const QString& name : m_parts.keys()) {
            const QRegularExpression word("\\b" + name + "\\b");
            QVERIFY2(ships.contains(name) != missing.contains(word), qPrintable(name));
            QVERIFY2(newer.contains(word) == (ships.contains(name) && !m_installed.contains(name)), qPrintable(name));
        }
        const QString counts = "descriptions of %1 microcontrollers (`data/mcu`) and entries for %2 programmers";
        QVERIFY(devices().contains(counts.arg(ships.size()).arg(jsonBaseNames("programmer").size())));
    }

private:
    /// A section of the list of devices, or what stands above the first.
    static QString devices(const QString& title = {})
    {
        QFile file(DATA_FOLDER "/../docs/devices.md");
        const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        return (title.isEmpty() ? text : text.section("\n## " + title, 1)).section("\n## ", 0, 0);
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
    QHash<QString, QStringList> m_installed; ///< of each part that avrdude knows: identifier, memories of one byte
};

QTEST_MAIN(tst_Data)
#include "tst_data.moc"
