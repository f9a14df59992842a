#include "MappedPart.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

/// Where the families have their memories, and how large those are that no description tells (avrdude's configuration,
/// `avrdude -p PART/s`; the key of an open lock: the datasheets of AVR Dx, "LOCKBIT").
struct Family {
    const char* begin; ///< of the names of its parts
    quint32 flash;
    quint32 eeprom;
    quint32 fuses;
    int fuseCount;
    quint32 lock;
    const char* openLock; ///< hexadecimal
    quint32 userRow;
    quint32 signature;
    quint32 productionSignature;
    int productionSignatureSize;
};

constexpr Family families[] = {
    {"ATtiny", 0x8000, 0x1400, 0x1280, 9, 0x128A, "C5", 0x1300, 0x1100, 0x1103, 61},
    {"ATmega", 0x4000, 0x1400, 0x1280, 9, 0x128A, "C5", 0x1300, 0x1100, 0x1103, 61},
    {"ATxmega", 0x800000, 0x8C0000, 0x8F0020, 7, 0x8F0027, "FF", 0x8E0400, 0x1000090, 0x8E0200, 50},
    {"AVR", 0x800000, 0x1400, 0x1050, 16, 0x1040, "5CC5C55C", 0x1080, 0x1100, 0x1103, 125},
};

/// Bytes of a flash page and of an EEPROM page: by family and size, as in avrdude's configuration.
std::pair<int, int> pageSizes(const QString& name, int flashSize)
{
    constexpr int small = 16 * 1024;
    if (name.startsWith(QLatin1String("ATxmega"))) {
        static const QRegularExpression shortPages(QStringLiteral("128(A4U|B1|B3|D4)$"));
        constexpr int most = 70 * 1024; // with the boot section
        const bool isShort = flashSize < most || name.contains(shortPages);
        return {name.endsWith(QLatin1String("E5")) ? 128 : isShort ? 256 : 512, 32};
    }
    if (name.startsWith(QLatin1String("AT")))
        return flashSize > small ? std::pair(128, 64) : std::pair(64, 32);
    const bool isEx =
        name.contains(QLatin1String("EA")) || name.contains(QLatin1String("EB")) || name.contains(QLatin1String("LA"));
    return isEx ? std::pair(flashSize > 2 * small ? 128 : 64, 8) : std::pair(512, 1);
}

} // namespace

std::optional<MappedPart> MappedPart::described(const QJsonObject& description)
{
    const QString partName = description.value(QLatin1String("mcu")).toString();
    const QJsonArray interfaces = description.value(QLatin1String("interfaces")).toArray();
    const auto* const family = std::find_if(std::begin(families), std::end(families), [&partName](const Family& one) {
        return partName.startsWith(QLatin1String(one.begin));
    });
    const bool isUpdi = interfaces.contains(QStringLiteral("UPDI"));
    if (family == std::end(families) || (!isUpdi && !interfaces.contains(QStringLiteral("PDI"))))
        return std::nullopt;

    MappedPart part;
    part.interface = isUpdi ? Interface::Updi : Interface::Pdi;
    part.signature = QByteArray::fromHex(description.value(QLatin1String("signature")).toString().toLatin1());
    ChipShape& shape = part.shape;
    shape.part = partName;
    shape.factory.flash.fill('\xFF', description.value(QLatin1String("flash")).toInt());
    shape.factory.eeprom.fill('\xFF', description.value(QLatin1String("eeprom")).toInt());
    shape.factory.fuses.fill(0, family->fuseCount);
    shape.factory.lock = QByteArray::fromHex(family->openLock);
    std::tie(part.flashPageSize, part.eepromPageSize) =
        pageSizes(partName, static_cast<int>(shape.factory.flash.size()));
    shape.factory.userRow.fill('\xFF', isUpdi ? 64 : part.flashPageSize);
    shape.lockBits.fill('\xFF', static_cast<int>(shape.factory.lock.size()));
    shape.fuseBits.fill(0, family->fuseCount);
    for (int i = 0; i < family->fuseCount; ++i)
        shape.fuseNames += QStringLiteral("fuse%1").arg(i);

    const QJsonArray bytes = description.value(QLatin1String("FuseBytes")).toArray();
    for (const QJsonValue& byte : bytes) {
        const int fuse = static_cast<int>(shape.fuseNames.indexOf(byte[QLatin1String("id")].toString()));
        if (fuse < 0)
            continue; // the lock
        const QJsonArray bits = byte[QLatin1String("bits")].toArray();
        for (int i = 0; i < bits.size(); ++i) {
            const auto mask = static_cast<quint8>(0x80 >> i);
            const QString bit = bits[i][QLatin1String("name")].toString();
            if (bits[i][QLatin1String("default")].toInt() != 0)
                shape.factory.fuses[fuse] |= mask;
            if (bit != QLatin1String("NOT USED"))
                shape.fuseBits[fuse] |= mask;
            if (bit == QLatin1String("EESAVE"))
                part.eesave = {fuse, mask};
            // With tinyAVR one pin is both, and 1 and 3 of its settings leave it for UPDI.
            if (bit == QLatin1String("UPDIPINCFG")
                || (bit == QLatin1String("RSTPINCFG0") && partName.startsWith(QLatin1String("ATtiny"))))
                part.updiPin = {fuse, mask};
        }
    }
    part.eesaveKeepsAt1 = isUpdi;
    // From the datasheets' SYSCFG0; the tinyAVR 2-series (ATtiny424 to 3227) is not told to.
    const bool isSecondSeries = partName.size() > 2 && partName.at(partName.size() - 2) == QLatin1Char('2')
        && partName.at(partName.size() - 1) >= QLatin1Char('4') && partName.startsWith(QLatin1String("ATtiny"));
    part.lockedLosesEeprom = isUpdi && partName.startsWith(QLatin1String("AT")) && !isSecondSeries;

    const auto place = [&part](Memory memory, quint32 address, qint64 size) {
        part.places[memory] = {address, static_cast<int>(size)};
    };
    place(Flash, family->flash, shape.factory.flash.size());
    place(Eeprom, family->eeprom, shape.factory.eeprom.size());
    place(Fuses, family->fuses, family->fuseCount);
    place(Lock, family->lock, shape.factory.lock.size());
    place(UserRow, family->userRow, shape.factory.userRow.size());
    place(Signature, family->signature, part.signature.size());
    place(ProductionSignature, family->productionSignature, family->productionSignatureSize);
    return part;
}
