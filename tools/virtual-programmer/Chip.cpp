#include "Chip.h"

#include <algorithm>

namespace {

// Lock bits LB1 and LB2 (datasheets, "Lock Bit Protection Modes"). A bit is programmed when it is 0.
constexpr quint8 lockWriting = 0x01;
constexpr quint8 lockReading = 0x02;

// Every chip is measured in the factory and has its own calibration bytes; these are this one's.
constexpr std::array<quint8, 4> calibration = {0xA9, 0xA4, 0xA2, 0x9F};

} // namespace

Chip::Chip(const Part& part)
    : Target(part.shape())
    , m_part(part)
    , m_flashPageSize(part.flashPageSize)
{
    leaveProgramming();
}

void Chip::setFlashPageSize(int bytes)
{
    const bool isPowerOfTwo = bytes > 1 && (bytes & (bytes - 1)) == 0;
    if (m_part.flashPageSize == 0)
        m_flashPageSize = isPowerOfTwo ? std::min(bytes, m_part.flashSize) : 0;
}

void Chip::rescue()
{
    if (!mayWrite())
        eraseChip();
    m_state.fuses = m_shape.factory.fuses;
}

bool Chip::enterProgramming(int bitClock)
{
    leaveProgramming();
    m_isProgramming = answers(bitClock);
    return m_isProgramming;
}

Chip::Instruction Chip::transfer(const Instruction& in)
{
    if (!m_isProgramming)
        return {0xFF, 0xFF, 0xFF, 0xFF};
    return {0x00, in[0], in[1], execute(in).value_or(in[2])};
}

void Chip::leaveProgramming()
{
    m_isProgramming = false;
    m_extendedAddress = 0;
    m_flashPage.fill('\xFF', m_flashPageSize);
    m_eepromPage.fill(std::nullopt);
}

bool Chip::answers(int bitClock) const
{
    const bool hasResetPin = (~m_state.fuses[Part::HighFuse] & m_part.resetPin) == 0;
    const bool isSerialEnabled = !m_state.isSet(m_part.spien);
    // "Serial Programming": SCK has to be low and high for more than 2 cycles each. (From 12 MHz on for more than 3,
    // which is still twice as fast as an STK500 can be.)
    return hasResetPin && isSerialEnabled && 4 * bitClock < clockFrequency();
}

int Chip::clockFrequency() const
{
    const quint8 low = m_state.fuses[Part::LowFuse];
    const int oscillator = m_part.oscillators[low & m_part.cksel];
    const int source = oscillator > 0 ? oscillator : m_clockInput;
    return (~low & m_part.ckdiv8) == 0 ? source : source / 8;
}

std::optional<quint8> Chip::execute(const Instruction& in)
{
    const std::size_t index = in[2] & 0x03;
    const bool isSecond = (in[1] & 0x08) != 0; // tells the two bytes apart that share an opcode
    switch (in[0]) {
    case 0x20:
    case 0x28:
        // A protected memory does not answer. What is read instead is the low byte of each address, shifted back.
        return mayRead() ? std::optional(static_cast<quint8>(m_state.flash.at(flashAddress(in)))) : std::nullopt;
    case 0xA0:
        return mayRead() && m_part.eepromSize > 0
            ? std::optional(static_cast<quint8>(m_state.eeprom.at(eepromAddress(in))))
            : std::nullopt;
    case 0x30:
        return index < m_part.signature.size() ? m_part.signature[index] : quint8 {0xFF};
    case 0x38:
        return in[2] < m_part.calibrationSize ? calibration[index] : quint8 {0xFF};
    case 0x50:
        return m_state.fuses[isSecond ? Part::ExtendedFuse : Part::LowFuse];
    case 0x58:
        return isSecond ? m_state.fuses[Part::HighFuse] : lock();
    case 0xF0:
        return quint8 {0}; // RDY/BSY: never busy
    default:
        executeWrite(in);
        return std::nullopt;
    }
}

void Chip::executeWrite(const Instruction& in)
{
    switch (in[0]) {
    case 0x40:
    case 0x48:
        if (m_flashPageSize > 0)
            m_flashPage[flashAddress(in) % m_flashPageSize] = static_cast<char>(in[3]);
        else if (mayWrite())
            writeFlash(flashAddress(in), static_cast<char>(in[3]));
        break;
    case 0x4C:
        writeFlashPage(flashAddress(in));
        break;
    case 0x4D:
        m_extendedAddress = in[2];
        break;
    case 0xC0:
        writeEeprom(eepromAddress(in), in[3]);
        break;
    case 0xC1:
        if (m_part.eepromPageSize > 0)
            m_eepromPage[in[2] % static_cast<std::size_t>(m_part.eepromPageSize)] = in[3];
        break;
    case 0xC2:
        writeEepromPage(eepromAddress(in));
        break;
    case 0xAC:
        if ((in[1] & 0xE0) == 0x80)
            eraseChip();
        else if (in[1] == 0xA0)
            writeFuse(Part::LowFuse, in[3]);
        else if (in[1] == 0xA8)
            writeFuse(Part::HighFuse, in[3]);
        else if (in[1] == 0xA4)
            writeFuse(Part::ExtendedFuse, in[3]);
        else if ((in[1] & 0xE0) == 0xE0 && mayRead()) // in mode 3 the boot lock bits are locked too
            m_state.lock[0] = static_cast<char>(lock() & (in[3] | ~m_part.lockBits));
        break;
    default:
        break;
    }
}

void Chip::eraseChip()
{
    eraseMemories(m_part.eesave.mask != 0 && !m_state.isSet(m_part.eesave));
}

void Chip::writeFuse(Part::Fuse fuse, quint8 value)
{
    if (!mayWrite())
        return;
    // SPIEN cannot be reached by serial programming: nobody shuts the door from inside.
    writeFuseBits(fuse, value, m_part.fuseBits[fuse] & ~(fuse == m_part.spien.fuse ? m_part.spien.mask : 0));
}

void Chip::writeFlashPage(int address)
{
    const int begin = address & ~(m_flashPageSize - 1);
    for (int i = 0; mayWrite() && i < m_flashPageSize; ++i)
        writeFlash(begin + i, m_flashPage.at(i));
    m_flashPage.fill('\xFF');
}

void Chip::writeEeprom(int address, quint8 value)
{
    if (mayWrite() && m_part.eepromSize > 0)
        m_state.eeprom[address] = static_cast<char>(value);
}

void Chip::writeEepromPage(int address)
{
    const int begin = address & ~(m_part.eepromPageSize - 1);
    for (int i = 0; i < m_part.eepromPageSize; ++i) {
        if (const auto& loaded = m_eepromPage[static_cast<std::size_t>(i)])
            writeEeprom(begin + i, *loaded);
    }
    m_eepromPage.fill(std::nullopt);
}

int Chip::flashAddress(const Instruction& in) const
{
    const int word = m_extendedAddress << 16 | in[1] << 8 | in[2];
    const int highByte = (in[0] & 0x08) != 0 ? 1 : 0;
    return (2 * word + highByte) & (m_part.flashSize - 1);
}

int Chip::eepromAddress(const Instruction& in) const
{
    return (in[1] << 8 | in[2]) & (m_part.eepromSize - 1);
}

bool Chip::mayRead() const
{
    return (lock() & lockReading) != 0;
}

bool Chip::mayWrite() const
{
    return mayRead() && (lock() & lockWriting) != 0;
}

quint8 Chip::lock() const
{
    return static_cast<quint8>(m_state.lock.at(0));
}
