#include "app/JsonFile.h"
#include "app/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "mcu/BytesModel.h"
#include "support/BoxAnswerer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

namespace {

QString run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    return process.waitForFinished() ? QString::fromUtf8(process.readAll()) : QString();
}

/// The lines of avrdude's tables: "-p" for parts, "-c" for programmers.
QVector<QStringList> avrdudeTable(const QString& option)
{
    QVector<QStringList> lines;
    for (const QString& line : run("avrdude", {option, "*/St"}).split('\n'))
        lines += line.split('\t');
    return lines;
}

QString unquoted(const QString& cell)
{
    return cell.mid(1, cell.size() - 2);
}

/// An AVR microcontroller as avrdude knows it.
struct Part {
    QString id;
    QString signature; ///< "0x1e 0x94 0x03"
    QString interfaces; ///< "PM_SPM | PM_ISP"
    QStringList bytes; ///< fuse and lock memories of one byte, in avrdude's order
};

/// By display name.
QHash<QString, Part> avrdudeParts()
{
    static const QRegularExpression avr("^(AT(mega|tiny|xmega|90)|AVR)\\w+$");
    QHash<QString, Part> parts;
    for (const QStringList& cells : avrdudeTable("-p")) {
        if (cells.size() < 4 || !avr.match(cells[1]).hasMatch())
            continue;
        Part& part = parts[cells[1]];
        const QString kind = cells[0] + ' ' + cells[2];
        if (kind == ".pt id")
            part.id = unquoted(cells[3]);
        else if (kind == ".pt signature")
            part.signature = cells[3];
        else if (kind == ".pt prog_modes")
            part.interfaces = cells[3];
        else if (cells.mid(3) == QStringList {"size", "1"} && QRegExp(".?fuse\\d?|lock(bits)?").exactMatch(cells[2]))
            part.bytes += cells[2];
    }
    return parts;
}

/// The bytes that avrdude names and the files leave out; docs/devices.md tells why.
const QVector<QPair<QRegularExpression, QString>> leftOut {
    {QRegularExpression("^ATtiny(4|5|9|10)$|^ATmega406$"), "lockbits"},
    {QRegularExpression("^ATtiny(11|12|15|28)$"), "lock"},
    {QRegularExpression("^AVR|^ATmega\\d+0[89]$|^ATtiny\\d+[02]\\d$"), "fuse4"},
    {QRegularExpression("^ATxmega(64|128)A1(revD)?$"), "fuse2 fuse5"},
    {QRegularExpression("^ATxmega(16|32)A4$"), "fuse0"},
};

/// What the vendor delivers, from the datasheets: the bytes of each microcontroller in the order of its file.
const QMap<QString, QByteArray> factoryBytes {
    {"AT90CAN128", "62 99 FF FF"},
    {"AT90PWM3B", "62 DF F9 FF"},
    {"AT90USB1287", "5E 99 F3 FF"},
    {"AT90USB162", "5E D9 F4 FF"},
    {"ATmega128", "E1 99 FD FF"},
    {"ATmega1284P", "62 99 FF FF"},
    {"ATmega16", "E1 99 FF"},
    {"ATmega162", "62 99 FF FF"},
    {"ATmega164P", "62 99 FF FF"},
    {"ATmega168", "62 DF F9 FF"},
    {"ATmega169P", "62 99 FF FF"},
    {"ATmega2560", "62 99 FF FF"},
    {"ATmega32", "E1 99 FF"},
    {"ATmega328P", "62 D9 FF FF"},
    {"ATmega328PB", "62 D9 F7 FF"},
    {"ATmega32U2", "5E D9 F4 FF"},
    {"ATmega32U4", "52 99 FB FF"}, // the RC order codes; the others come with 5E
    {"ATmega48", "62 DF FF FF"},
    {"ATmega4809", "00 00 02 C4 07 00 00 C5"},
    {"ATmega64", "E1 99 FD FF"},
    {"ATmega644P", "62 99 FF FF"},
    {"ATmega8", "E1 D9 FF"},
    {"ATmega8515", "E1 D9 FF"},
    {"ATmega8535", "E1 D9 FF"},
    {"ATmega88PA", "62 DF F9 FF"},
    {"ATtiny10", "FF"},
    {"ATtiny13A", "6A FF FF"},
    {"ATtiny1634", "62 DF FF FF"},
    {"ATtiny1614", "00 00 02 00 C4 07 00 00 C5"},
    {"ATtiny2313", "64 DF FF FF"},
    {"ATtiny24A", "62 DF FF FF"},
    {"ATtiny26", "E1 F7 FF"},
    {"ATtiny412", "00 00 02 00 C4 07 00 00 C5"},
    {"ATtiny44", "62 DF FF FF"},
    {"ATtiny45", "62 DF FF FF"},
    {"ATtiny84", "62 DF FF FF"},
    {"ATtiny85", "62 DF FF FF"},
    {"ATtiny861", "62 DF FF FF"},
    {"ATtiny88", "6E DF FF FF"},
    {"ATxmega128A1U", "FF 00 FF FE FF FF"},
    {"AVR128DA28", "00 00 00 C0 00 00 00"},
    {"AVR128DB48", "00 00 00 C0 08 00 00"},
    {"AVR64DD32", "00 00 00 D0 08 00 00"},
};

/// Different parts with one signature, each group for a reason of its own. Besides these, revisions of one part share
/// it: ATmega8 and ATmega8A.
const QVector<QSet<QString>> sameSignature {
    {"AT90PWM2", "AT90PWM3"}, // one die, fewer pins
    {"AT90PWM2B", "AT90PWM3B"}, // likewise
    {"AT90PWM216", "AT90PWM316"}, // likewise
    {"AT90USB646", "AT90USB647"}, // one die, without and with USB host
    {"AT90USB1286", "AT90USB1287"}, // likewise
    {"ATmega4809", "ATxmega64B3"}, // given twice, to parts that no one programmer interface reaches
};

} // namespace

class tst_Data : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(DATA_FOLDER));
        m_parts = avrdudeParts();
        QVERIFY(m_parts.contains("ATmega16"));
    }

    void everyFileIsAnObjectWithOneDotInItsName()
    {
        QDirIterator files(".", {"*.json"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            QVERIFY2(JsonFile::read(file).isObject(), qPrintable(file));
            QVERIFY2(files.fileInfo().baseName() == files.fileInfo().completeBaseName(), qPrintable(file));
        }
    }

    void descriptionsAgreeWithAvrdude()
    {
        for (const QString& name : jsonBaseNames("mcu")) {
            const QJsonObject description = JsonFile::read("mcu/" + name + ".json").document.object();
            const QString failure = complaint(name, description);
            QVERIFY2(failure.isEmpty(), qPrintable(name + ": " + failure));
        }
    }

    void factoryValues()
    {
        for (auto known = factoryBytes.cbegin(); known != factoryBytes.cend(); ++known) {
            QByteArray bytes;
            for (const FuseByte& byte : load(known.key()))
                bytes += static_cast<char>(byte.defaultValue);
            QCOMPARE(known.key() + ' ' + bytes.toHex(' ').toUpper(), known.key() + ' ' + known.value());
        }
    }

    void signaturesAreSharedForAReason()
    {
        static const QRegularExpression revision("(P|P?A|[RU])$");
        QHash<QString, QSet<QString>> owners;
        for (const QString& name : jsonBaseNames("mcu"))
            owners[JsonFile::read("mcu/" + name + ".json").document["signature"].toString()] += name;
        for (const QSet<QString>& names : qAsConst(owners)) {
            QSet<QString> bare;
            for (QString name : names)
                bare += name.remove(revision);
            QVERIFY2(bare.size() == 1 || sameSignature.contains(names), qPrintable(names.values().join(' ')));
        }
    }

    void programmersAgreeWithAvrdude()
    {
        QHash<QString, QString> ports;
        for (const QStringList& cells : avrdudeTable("-c")) {
            if (cells.value(2) == "id")
                ports.insert(cells[1], "usb");
            else if (cells.value(2) == "connection_type" && cells[3] == "serial")
                ports[cells[1]] = "com";
        }
        QSet<QString> ids;
        QSet<QString> runs;
        for (const QString& name : jsonBaseNames("programmer")) {
            const QJsonObject programmer = JsonFile::read("programmer/" + name + ".json").document.object();
            const QString id = programmer["id"].toString();
            const QString arguments = programmer["arguments"].toString();
            const QJsonObject expected {
                {"id", id}, {"arguments", arguments}, {"port", arguments.contains("-P ") ? "usb" : ports.value(id)}};
            QVERIFY2(programmer == expected && ports.contains(id), qPrintable(name));
            QVERIFY2(!runs.contains(id + ' ' + arguments), qPrintable(name + " is there twice"));
            runs += id + ' ' + arguments;
            ids += id;
        }
        const QString missing = devices("Programmers that do not ship");
        for (auto port = ports.cbegin(); port != ports.cend(); ++port)
            QVERIFY2(ids.contains(port.key()) != missing.contains(QRegularExpression("[ ]" + port.key() + "\\b")),
                     qPrintable(port.key()));
    }

    void sampleSettingsFitTheirDescription()
    {
        QStringList files {"save.json"};
        for (const QString& name : jsonBaseNames("profiles"))
            files += "profiles/" + name + ".json";
        for (const QString& file : qAsConst(files)) {
            SettingsRecord sample;
            QVERIFY2(sample.loadFromFile(file), qPrintable(file));
            const FuseBytes bytes = load(sample.mcuName);
            QCOMPARE(sample.mcuId, m_parts.value(sample.mcuName).id);
            QCOMPARE(sample.fusesBytes.size(), bytes.size());
            for (int i = 0; i < bytes.size(); ++i)
                QVERIFY2(sample.fusesBytes[i].id == bytes[i].id
                             && sample.fusesBytes[i].defaultValue == bytes[i].defaultValue,
                         qPrintable(file));
        }
    }

    void theListOfDevicesTellsWhatIsMissing()
    {
        const QString missing = devices("Microcontrollers that do not ship");
        for (auto part = m_parts.cbegin(); part != m_parts.cend(); ++part) {
            const bool isTold = missing.contains(QRegularExpression("\\b" + part.key() + "\\b"));
            QVERIFY2(QFile::exists("mcu/" + part.key() + ".json") != isTold, qPrintable(part.key()));
        }
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

    /// What is wrong with a description; empty when nothing is.
    QString complaint(const QString& name, const QJsonObject& description) const
    {
        if (!m_parts.contains(name) || description["mcu"] != name)
            return "name";
        const Part part = m_parts[name];
        const QString signature = description["signature"].toString();
        if (description["id"] != part.id || "0x" + signature.toLower().replace(" ", " 0x") != part.signature
            || signature != signature.toUpper())
            return "identifier or signature";
        QStringList expected = part.bytes;
        expected.removeOne("lock");
        expected += part.bytes.filter(QRegularExpression("^lock$"));
        for (const auto& [parts, bytes] : leftOut)
            for (const QString& byte : parts.match(name).hasMatch() ? bytes.split(' ') : QStringList())
                expected.removeOne(byte);
        QStringList ids;
        for (const QJsonValue& byte : description["FuseBytes"].toArray()) {
            const QString id = byte["id"].toString();
            ids += id;
            const QString bit = complaint(byte["bits"].toArray(), part.interfaces.contains("PM_ISP"));
            if (byte["name"] != title(name, id) || !bit.isEmpty())
                return id + ' ' + byte["name"].toString() + ' ' + bit;
        }
        return ids == expected ? QString() : ids.join(' ') + " and not " + expected.join(' ');
    }

    /// How a byte is to be called.
    static QString title(const QString& mcu, const QString& id)
    {
        const QHash<QString, QString> names {{"lfuse", "Low Fuse"},
                                             {"hfuse", "High Fuse"},
                                             {"efuse", "Extended Fuse"},
                                             {"fuse", "Fuse"},
                                             {"lock", "Lock Bits"}};
        if (names.contains(id))
            return names.value(id);
        const int number = id.right(1).toInt();
        const bool isDx = mcu.startsWith("AVR");
        const QStringList registers {"WDTCFG",
                                     "BODCFG",
                                     "OSCCFG",
                                     {},
                                     "TCD0CFG",
                                     "SYSCFG0",
                                     "SYSCFG1",
                                     isDx ? "CODESIZE" : "APPEND",
                                     isDx ? "BOOTSIZE" : "BOOTEND"};
        return QString("Fuse %1 %2")
            .arg(number)
            .arg(mcu.startsWith("ATxmega") ? "FUSEBYTE" + id.right(1) : registers[number]);
    }

    static QString complaint(const QJsonArray& bits, bool isSerial)
    {
        QSet<QString> names;
        for (const QJsonValue& bit : bits) {
            const QString name = bit["name"].toString();
            const bool mayChange = name != "NOT USED" && !(name == "SPIEN" && isSerial);
            const QJsonObject expected {
                {"name", name}, {"default", bit["default"].toInt() & 1}, {"enabled", mayChange ? 1 : 0}};
            if (bit != expected || name.isEmpty() || (mayChange && names.contains(name)))
                return "bit " + name;
            names += name;
        }
        return bits.size() == 8 ? QString() : "has not eight bits";
    }

    QHash<QString, Part> m_parts;
};

QTEST_MAIN(tst_Data)

#include "tst_data.moc"
