#include "Part.h"

#include "Description.h"

namespace {

constexpr Part::FuseBit highBit(int bit)
{
    return {Part::HighFuse, static_cast<quint8>(1 << bit)};
}

constexpr Part::FuseBit lowBit(int bit)
{
    return {Part::LowFuse, static_cast<quint8>(1 << bit)};
}

// Signatures, sizes and calibration bytes: avrdude's description of the part (`avrdude -p PART/s`).
// Fuse and lock bits and their factory values: the part's datasheet, "Memory Programming". Oscillators: "System Clock".
const std::array<Part, 7> parts = {{
    // name, signature, flash, page, EEPROM, page, calibration, factory fuses, fuse bits, lock bits, SPIEN, EESAVE,
    // RSTDISBL and DWEN, CKDIV8, CKSEL, oscillators
    {QStringLiteral("ATmega16"),
     {0x1E, 0x94, 0x03},
     16384,
     128,
     512,
     4,
     4,
     {0xE1, 0x99, 0xFF},
     {0xFF, 0xFF, 0x00},
     0x3F,
     highBit(5),
     highBit(3),
     0x00,
     0x00,
     0x0F,
     {0, 1000000, 2000000, 4000000, 8000000}},
    {QStringLiteral("ATmega8"),
     {0x1E, 0x93, 0x07},
     8192,
     64,
     512,
     0,
     4,
     {0xE1, 0xD9, 0xFF},
     {0xFF, 0xFF, 0x00},
     0x3F,
     highBit(5),
     highBit(3),
     0x80,
     0x00,
     0x0F,
     {0, 1000000, 2000000, 4000000, 8000000}},
    {QStringLiteral("ATmega328P"),
     {0x1E, 0x95, 0x0F},
     32768,
     128,
     1024,
     4,
     1,
     {0x62, 0xD9, 0xFF},
     {0xFF, 0xFF, 0x07},
     0x3F,
     highBit(5),
     highBit(3),
     0xC0,
     0x80,
     0x0F,
     {0, 0, 8000000, 128000}},
    {QStringLiteral("ATmega2560"),
     {0x1E, 0x98, 0x01},
     262144,
     256,
     4096,
     8,
     1,
     {0x62, 0x99, 0xFF},
     {0xFF, 0xFF, 0x07},
     0x3F,
     highBit(5),
     highBit(3),
     0x00,
     0x80,
     0x0F,
     {0, 0, 8000000, 128000}},
    {QStringLiteral("ATtiny13A"),
     {0x1E, 0x90, 0x07},
     1024,
     32,
     64,
     4,
     2,
     {0x6A, 0xFF, 0xFF},
     {0xFF, 0x1F, 0x00},
     0x03,
     lowBit(7),
     lowBit(6),
     0x09,
     0x10,
     0x03,
     {0, 4800000, 9600000, 128000}},
    {QStringLiteral("ATtiny85"),
     {0x1E, 0x93, 0x0B},
     8192,
     64,
     512,
     4,
     1,
     {0x62, 0xDF, 0xFF},
     {0xFF, 0xFF, 0x01},
     0x03,
     highBit(5),
     highBit(3),
     0xC0,
     0x80,
     0x0F,
     {0, 16000000, 8000000, 1600000, 128000}},
    {QStringLiteral("ATtiny2313A"),
     {0x1E, 0x91, 0x0A},
     2048,
     32,
     128,
     4,
     2,
     {0x62, 0xDF, 0xFF},
     {0xFF, 0xFF, 0x01},
     0x03,
     highBit(5),
     highBit(6),
     0x81,
     0x80,
     0x0F,
     {0, 0, 4000000, 0, 8000000, 0, 128000}},
}};

} // namespace

ChipShape Part::shape() const
{
    const auto listed = [](const std::array<quint8, FuseCount>& bytes) {
        return QVector<quint8>(bytes.begin(), bytes.end());
    };
    return {name,
            {QByteArray(flashSize, '\xFF'), QByteArray(eepromSize, '\xFF'), listed(factoryFuses), QByteArray(1, '\xFF'),
             QByteArray()},
            {QStringLiteral("low"), QStringLiteral("high"), QStringLiteral("extended")},
            listed(fuseBits),
            QByteArray(1, static_cast<char>(lockBits))};
}

const Part* Part::find(const QString& name)
{
    for (const Part& part : parts) {
        if (name.compare(part.name, Qt::CaseInsensitive) == 0)
            return &part;
    }
    return nullptr;
}

std::optional<Part> Part::described(const Description& description)
{
    if (!description.interfaces.contains(QLatin1String("ISP")))
        return std::nullopt;
    constexpr int clock = 1000000; // Hz
    constexpr int calibrationSize = 4;
    const QStringList ids {QStringLiteral("lfuse"), QStringLiteral("hfuse"), QStringLiteral("efuse")};
    Part part {};
    part.name = description.name;
    std::copy_n(description.signature.begin(), part.signature.size(), part.signature.begin());
    part.flashSize = description.flashSize;
    part.eepromSize = description.eepromSize;
    part.calibrationSize = calibrationSize;
    part.oscillators = {clock};
    for (int i = 0; i < FuseCount; ++i) {
        const auto fuse = static_cast<Fuse>(i);
        const auto byte = description.bytes.value(ids[i], {0xFF, 0x00, {}});
        part.factoryFuses[fuse] = byte.factory;
        part.fuseBits[fuse] = byte.bits;
    }
    part.lockBits = description.bytes.value(QStringLiteral("lock")).bits;
    part.spien = description.findBit(ids, QStringLiteral("SPIEN"));
    part.eesave = description.findBit(ids, QStringLiteral("EESAVE"));
    const auto& highBits = description.bytes.value(ids[HighFuse]).masks;
    part.resetPin = highBits.value(QStringLiteral("RSTDISBL")) | highBits.value(QStringLiteral("DWEN"));
    return part;
}

QStringList Part::names()
{
    QStringList names;
    for (const Part& part : parts)
        names.append(part.name);
    return names;
}
