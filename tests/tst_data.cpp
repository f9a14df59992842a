#include "app/JsonFile.h"
#include "app/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "mcu/BytesModel.h"

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

/// An AVR microcontroller as avrdude knows it.
struct Part {
    QString id;
    QString signature; ///< "0x1e 0x94 0x03"
    QString interfaces; ///< "PM_SPM | PM_ISP"
    QStringList bytes; ///< memories of one byte, in avrdude's order
    QStringList registers; ///< "fuse2 osccfg": further names of memories
};

/// By display name.
QHash<QString, Part> avrdudeParts()
{
    QHash<QString, Part> parts;
    const QString dump = run("avrdude", {"-p", "*/St"});
    for (const QString& line : dump.split('\n')) {
        const QStringList cells = line.split('\t');
        if (cells.size() < 4 || !QRegularExpression("^(AT(mega|tiny|xmega|90)|AVR)\\w+$").match(cells[1]).hasMatch())
            continue;
        Part& part = parts[cells[1]];
        const QString kind = cells[0] + ' ' + cells[2];
        if (kind == ".pt id")
            part.id = cells[3].mid(1, cells[3].size() - 2);
        else if (kind == ".pt signature")
            part.signature = cells[3];
        else if (kind == ".pt prog_modes")
            part.interfaces = cells[3];
        else if (cells[3] == "alias")
            part.registers += cells[4] + ' ' + cells[2];
        else if (cells.mid(3) == QStringList {"size", "1"})
            part.bytes += cells[2];
    }
    return parts;
}

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
        QVERIFY(factoryBytes.size() >= 30);
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

    void programmers()
    {
        static const QRegularExpression entry("^ +(\\S+) += ", QRegularExpression::MultilineOption);
        QSet<QString> known;
        for (auto match = entry.globalMatch(run("avrdude", {"-c", "?"})); match.hasNext();)
            known += match.next().captured(1);
        QSet<QString> seen;
        for (const QString& name : jsonBaseNames("programmer")) {
            const QJsonObject programmer = JsonFile::read("programmer/" + name + ".json").document.object();
            QCOMPARE(programmer.keys(), QStringList({"arguments", "id", "port"}));
            QVERIFY2(known.contains(programmer["id"].toString()), qPrintable(name));
            QVERIFY2(QSet<QString>({"com", "usb"}).contains(programmer["port"].toString()), qPrintable(name));
            QVERIFY2(programmer["arguments"].isString(), qPrintable(name));
            const QString run = programmer["id"].toString() + ' ' + programmer["arguments"].toString();
            QVERIFY2(!seen.contains(run), qPrintable(name + " is there twice"));
            seen += run;
        }
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
            QCOMPARE(sample.mcuId, m_parts[sample.mcuName].id);
            QCOMPARE(sample.fusesBytes.size(), bytes.size());
            for (int i = 0; i < bytes.size(); ++i)
                QVERIFY2(sample.fusesBytes[i].id == bytes[i].id
                             && sample.fusesBytes[i].defaultValue == bytes[i].defaultValue,
                         qPrintable(file));
        }
    }

    void theListOfDevicesTellsWhatIsMissing()
    {
        QFile file(DATA_FOLDER "/../docs/devices.md");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString missing = QString::fromUtf8(file.readAll()).section("## ", 2, 2);
        QVERIFY(missing.startsWith("Microcontrollers that do not ship"));
        for (auto part = m_parts.cbegin(); part != m_parts.cend(); ++part) {
            const bool isTold = missing.contains(QRegularExpression("\\b" + part.key() + "\\b"));
            QVERIFY2(QFile::exists("mcu/" + part.key() + ".json") != isTold, qPrintable(part.key()));
        }
    }

private:
    /// What the program makes of a description that ships.
    static FuseBytes load(const QString& name)
    {
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
        QStringList order = part.bytes.filter(QRegularExpression("^.?fuse"));
        order += part.bytes.filter(QRegularExpression("^lock$"));
        int place = -1;
        for (const QJsonValue& byte : description["FuseBytes"].toArray()) {
            const QString id = byte["id"].toString();
            if (order.indexOf(id) <= place)
                return id + " is no byte of it, or out of order";
            place = order.indexOf(id);
            const QString title = byte["name"].toString();
            static const QRegularExpression numbered("^Fuse (\\d) (\\w+)$");
            const auto parts = numbered.match(title);
            const bool isTitled = parts.hasMatch() ? "fuse" + parts.captured(1) == id
                    && (name.startsWith("ATxmega") || part.registers.contains(id + ' ' + parts.captured(2).toLower()))
                                                   : titles.value(id) == title;
            if (!isTitled)
                return id + " is called " + title;
            const QString bit = complaint(byte["bits"].toArray(), part.interfaces.contains("PM_ISP"));
            if (!bit.isEmpty())
                return id + ' ' + bit;
        }
        return place < 0 ? "no bytes" : QString();
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

    const QHash<QString, QString> titles {{"lfuse", "Low Fuse"},
                                          {"hfuse", "High Fuse"},
                                          {"efuse", "Extended Fuse"},
                                          {"fuse", "Fuse"},
                                          {"lock", "Lock Bits"}};
    QHash<QString, Part> m_parts;
};

QTEST_MAIN(tst_Data)

#include "tst_data.moc"
