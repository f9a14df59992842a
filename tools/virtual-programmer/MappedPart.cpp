#include "MappedPart.h"

#include "Description.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

/// Where a family has its memories, and how large those are that no description tells (avrdude's configuration,
/// `avrdude -p PART/s`; the key of an open lock: the datasheets of AVR Dx, "LOCKBIT").
struct Map {
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

constexpr Map tiny {0x8000, 0x1400, 0x1280, 9, 0x128A, "C5", 0x1300, 0x1100, 0x1103, 61};
constexpr Map mega {0x4000, 0x1400, 0x1280, 9, 0x128A, "C5", 0x1300, 0x1100, 0x1103, 61};
constexpr Map xmega {0x800000, 0x8C0000, 0x8F0020, 7, 0x8F0027, "FF", 0x8E0400, 0x1000090, 0x8E0200, 50};
constexpr Map avr {0x800000, 0x1400, 0x1050, 9, 0x1040, "5CC5C55C", 0x1080, 0x1100, 0x1103, 125};

/// Parts of a family that are alike in sizes, in bytes, as in avrdude's configuration.
struct Series {
    const char* begin; ///< of their names, a regular expression; the first that fits counts
    const Map& map;
    int flashPage;
    int eepromPage;
    int userRow;
    /// A locked chip loses its EEPROM, as the datasheets of the tinyAVR 0- and 1-series and the megaAVR 0-series say of
    /// SYSCFG0. That of AVR DA contradicts itself: kept, says SYSCFG0, lost, says the chip erase command. Here it is
    /// kept, as AVR DB does it. Of the tinyAVR 2-series and the others nothing is known.
    bool lockedLosesEeprom;
};

constexpr Series allSeries[] = {
    {"ATtiny(4|8|16)2[4-7]", tiny, 64, 32, 32, false},
    {"ATtiny322[4-7]", tiny, 128, 64, 32, false},
    {"ATtiny32", tiny, 128, 64, 64, true},
    {"ATtiny", tiny, 64, 32, 32, true},
    {"ATmega(32|48)0", mega, 128, 64, 64, true},
    {"ATmega", mega, 64, 32, 32, true},
    {"ATxmega\\d+E5", xmega, 128, 32, 128, false},
    {"ATxmega(16|32|64|128A4U|128B)", xmega, 256, 32, 256, false},
    {"ATxmega128D4", xmega, 256, 32, 512, false},
    {"ATxmega", xmega, 512, 32, 512, false},
    {"AVR64E", avr, 128, 8, 64, false},
    {"AVR\\d+(E|LA)", avr, 64, 8, 64, false},
    {"AVR", avr, 512, 1, 32, false},
};

} // namespace

std::optional<MappedPart> MappedPart::described(const Description& description)
{
    const bool isUpdi = description.interfaces.contains(QLatin1String("UPDI"));
    const auto* const series = std::find_if(std::begin(allSeries), std::end(allSeries), [&](const Series& one) {
        return QRegularExpression(QLatin1Char('^') + QLatin1String(one.begin)).match(description.name).hasMatch();
    });
    if (series == std::end(allSeries) || (!isUpdi && !description.interfaces.contains(QLatin1String("PDI"))))
        return std::nullopt;

    const Map& map = series->map;
    MappedPart part;
    part.isUpdi = isUpdi;
    part.signature = description.signature;
    part.flashPageSize = series->flashPage;
    part.eepromPageSize = series->eepromPage;
    part.lockedLosesEeprom = series->lockedLosesEeprom;

    ChipShape& shape = part.shape;
    shape.part = description.name;
    shape.factory.flash.fill('\xFF', description.flashSize);
    shape.factory.eeprom.fill('\xFF', description.eepromSize);
    shape.factory.userRow.fill('\xFF', series->userRow);
    shape.factory.lock = QByteArray::fromHex(map.openLock);
    shape.lockBits.fill('\xFF', static_cast<int>(shape.factory.lock.size()));
    for (int i = 0; i < map.fuseCount; ++i) {
        shape.fuseNames += QStringLiteral("fuse%1").arg(i);
        const auto byte = description.bytes.value(shape.fuseNames.constLast());
        shape.factory.fuses += byte.factory;
        shape.fuseBits += byte.bits;
    }
    part.eesave = description.findBit(shape.fuseNames, QStringLiteral("EESAVE"));
    // With tinyAVR one pin is both, and 1 and 3 of its settings leave it for UPDI.
    part.updiPin = description.findBit(shape.fuseNames,
                                       &map == &tiny ? QStringLiteral("RSTPINCFG0") : QStringLiteral("UPDIPINCFG"));

    const auto place = [&part](Memory memory, quint32 address, qint64 size) {
        part.places[memory] = {address, static_cast<int>(size)};
    };
    place(Flash, map.flash, shape.factory.flash.size());
    place(Eeprom, map.eeprom, shape.factory.eeprom.size());
    place(Fuses, map.fuses, map.fuseCount);
    place(Lock, map.lock, shape.factory.lock.size());
    place(UserRow, map.userRow, shape.factory.userRow.size());
    place(Signature, map.signature, part.signature.size());
    place(ProductionSignature, map.productionSignature, map.productionSignatureSize);
    return part;
}
