#include "MappedChip.h"

namespace {

// The bits LB of an ATxmega's lock, and their settings besides that which forbids reading too. The other bits restrict
// the chip's own program alone.
constexpr quint8 lockBits = 0x03;
constexpr quint8 noLock = 0x03;
constexpr quint8 writeLock = 0x02;

} // namespace

MappedChip::MappedChip(MappedPart part)
    : Target(part.shape)
    , m_part(std::move(part))
{
}

bool MappedChip::enterProgramming()
{
    m_access = accessByLock();
    m_isProgramming = m_part.updiPin.mask == 0 || m_state.isSet(m_part.updiPin);
    return m_isProgramming;
}

bool MappedChip::mayRead(MappedPart::Memory memory) const
{
    // With PDI the signature is a register: its address, 0x1000090, is one of the data, as avrdude has them. Whether a
    // closed lock leaves the fuses readable is not known; here it does not.
    return m_access != Access::None || (memory == MappedPart::Signature && !m_part.isUpdi);
}

bool MappedChip::mayWrite(MappedPart::Memory memory) const
{
    return m_access == Access::All || (m_access == Access::Reading && memory == MappedPart::Lock);
}

void MappedChip::leaveProgramming()
{
    m_isProgramming = false;
}

void MappedChip::rescue()
{
    enterProgramming();
    if (m_access != Access::All)
        eraseChip();
    leaveProgramming();
    m_state.fuses = m_shape.factory.fuses;
}

std::optional<QByteArray> MappedChip::read(quint32 address, int size) const
{
    const auto found = find(address, size);
    if (!found)
        return std::nullopt;
    switch (found->memory) {
    case MappedPart::Flash:
        return m_state.flash.mid(found->offset, size);
    case MappedPart::Eeprom:
        return m_state.eeprom.mid(found->offset, size);
    case MappedPart::Fuses:
        return QByteArray(reinterpret_cast<const char*>(m_state.fuses.constData()) + found->offset, size);
    case MappedPart::Lock:
        return m_state.lock.mid(found->offset, size);
    case MappedPart::UserRow:
        return m_state.userRow.mid(found->offset, size);
    case MappedPart::Signature:
        return m_part.signature.mid(found->offset, size);
    default: // each chip has its own serial number and calibration; these are this one's
        break;
    }
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(0xA0 + (found->offset + i) % 0x20);
    return bytes;
}

bool MappedChip::write(quint32 address, const QByteArray& bytes)
{
    const auto found = find(address, static_cast<int>(bytes.size()));
    if (!found)
        return false;
    for (int i = 0; i < bytes.size(); ++i) {
        const int offset = found->offset + i;
        const char byte = bytes.at(i);
        switch (found->memory) {
        case MappedPart::Flash:
            writeFlash(offset, byte);
            break;
        case MappedPart::Eeprom:
            m_state.eeprom[offset] = byte;
            break;
        case MappedPart::Fuses:
            writeFuseBits(offset, static_cast<quint8>(byte), m_shape.fuseBits[offset]);
            break;
        case MappedPart::Lock: // with UPDI a key, with PDI bits that only an erase makes 1
            m_state.lock[offset] = m_part.isUpdi ? byte : static_cast<char>(m_state.lock.at(offset) & byte);
            break;
        case MappedPart::UserRow:
            m_state.userRow[offset] = byte;
            break;
        default:
            return false;
        }
    }
    return true;
}

bool MappedChip::erase(Erase what, quint32 address)
{
    const auto found = find(address, 1);
    const auto erasePage = [&found](MappedPart::Memory memory, QByteArray& bytes, int size) {
        if (!found || found->memory != memory)
            return false;
        const int begin = found->offset - found->offset % size;
        bytes.replace(begin, size, QByteArray(size, '\xFF'));
        return true;
    };
    switch (what) {
    case Erase::Chip:
        eraseChip();
        return true;
    case Erase::Flash:
        m_state.flash.fill('\xFF');
        return true;
    case Erase::Eeprom:
        m_state.eeprom.fill('\xFF');
        return true;
    case Erase::UserRow:
        m_state.userRow.fill('\xFF');
        return true;
    case Erase::FlashPage:
        return erasePage(MappedPart::Flash, m_state.flash, m_part.flashPageSize);
    case Erase::EepromPage:
        return erasePage(MappedPart::Eeprom, m_state.eeprom, m_part.eepromPageSize);
    }
    return false;
}

MappedChip::Access MappedChip::accessByLock() const
{
    if (m_state.lock == m_shape.factory.lock)
        return Access::All;
    const int bits = m_part.isUpdi ? 0 : m_state.lock.at(0) & lockBits;
    return bits == noLock ? Access::All : bits == writeLock ? Access::Reading : Access::None;
}

std::optional<MappedPart::Memory> MappedChip::memoryAt(quint32 address, int size) const
{
    const auto found = find(address, size);
    return found ? std::optional(found->memory) : std::nullopt;
}

std::optional<MappedChip::Found> MappedChip::find(quint32 address, int size) const
{
    for (int memory = 0; memory < MappedPart::MemoryCount; ++memory) {
        const MappedPart::Place& place = m_part.places[memory];
        const qint64 offset = static_cast<qint64>(address) - place.address;
        if (offset >= 0 && size >= 0 && offset + size <= place.size)
            return Found {static_cast<MappedPart::Memory>(memory), static_cast<int>(offset)};
    }
    return std::nullopt;
}

void MappedChip::eraseChip()
{
    const bool isSaved = m_part.eesave.mask != 0 && m_state.isSet(m_part.eesave) == m_part.isUpdi;
    eraseMemories(isSaved && (m_access == Access::All || !m_part.lockedLosesEeprom));
    m_access = Access::All;
}
