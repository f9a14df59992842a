#include "JtagMkII.h"

#include <QtEndian>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// Commands, answers, parameters and memory types of AVR067; those for ATxmega and UPDI as avrdude uses them.
enum Command : quint8 {
    SignOff = 0x00,
    GetSignOn = 0x01,
    SetParameter = 0x02,
    GetParameter = 0x03,
    WriteMemory = 0x04,
    ReadMemory = 0x05,
    Go = 0x08,
    ForcedStop = 0x0A,
    Reset = 0x0B,
    SetDeviceDescriptor = 0x0C,
    GetSync = 0x0F,
    EnterProgramming = 0x14,
    LeaveProgramming = 0x15,
    EraseMemory = 0x34
};
enum Answer : quint8 {
    Ok = 0x80,
    Parameter = 0x81,
    Memory = 0x82,
    SignOn = 0x86,
    Failed = 0xA0,
    IllegalParameter = 0xA1,
    IllegalMemoryType = 0xA2,
    IllegalMemoryRange = 0xA3,
    IllegalEmulatorMode = 0xA4,
    IllegalMcuState = 0xA5,
    IllegalCommand = 0xAA,
    NoTargetPower = 0xAB
};
enum Setting : quint8 {
    HardwareVersion = 0x01,
    FirmwareVersion = 0x02,
    EmulatorMode = 0x03,
    BaudRate = 0x05,
    TargetVoltage = 0x06,
    JtagClock = 0x07,
    TimersRunning = 0x09,
    ExternalReset = 0x13,
    DaisyChain = 0x1B,
    OffsetStart = 0x32,
    OffsetEnd = 0x33
};
constexpr quint8 modePdi = 0x06; // of UPDI too
constexpr quint8 firmwareMinor = 0;
constexpr quint8 firmwareMajor = 6; // before 7 all addresses are the chip's own
constexpr quint16 voltage = 5000; // mV

enum MemoryType : quint8 {
    EepromOne = 0x22,
    FlashPage = 0xB0,
    EepromPage = 0xB1,
    FuseBits = 0xB2,
    LockBits = 0xB3,
    SignatureBytes = 0xB4,
    Flash = 0xC0,
    BootFlash = 0xC1,
    EepromXmega = 0xC4,
    UserSignature = 0xC5,
    ProductionSignature = 0xC6
};

constexpr char messageStart = 0x1B;
constexpr char token = 0x0E;
constexpr int headerLength = 8; // start, sequence number, size, token
constexpr int checksumLength = 2;
constexpr int sizeAt = 3;
constexpr int memoryHeaderLength = 10; // command, type, size, address
constexpr int memorySizeAt = 2;
constexpr int memoryAddressAt = 6;

QByteArray littleEndian(quint32 number, int bytes)
{
    QByteArray text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(number >> 8 * i);
    return text;
}

quint32 numberAt(const QByteArray& bytes, int at)
{
    return bytes.size() < at + 4 ? 0 : qFromLittleEndian<quint32>(bytes.constData() + at);
}

QByteArray answer(Answer code, const QByteArray& data = {})
{
    return static_cast<char>(code) + data;
}

/// What the types of memories stand for.
constexpr std::pair<MemoryType, MappedPart::Memory> memoryTypes[] = {
    {Flash, MappedPart::Flash},
    {BootFlash, MappedPart::Flash},
    {FlashPage, MappedPart::Flash},
    {EepromOne, MappedPart::Eeprom},
    {EepromPage, MappedPart::Eeprom},
    {EepromXmega, MappedPart::Eeprom},
    {FuseBits, MappedPart::Fuses},
    {LockBits, MappedPart::Lock},
    {UserSignature, MappedPart::UserRow},
    {SignatureBytes, MappedPart::Signature},
    {ProductionSignature, MappedPart::ProductionSignature},
    {Flash, MappedPart::ProductionSignature}, // so avrdude reads the parts of it that have names, such as osccal16
};

bool isMemoryType(quint8 type)
{
    return std::any_of(std::begin(memoryTypes), std::end(memoryTypes),
                       [type](const auto& row) { return row.first == type; });
}

bool isTypeOf(quint8 type, MappedPart::Memory memory)
{
    return std::any_of(std::begin(memoryTypes), std::end(memoryTypes),
                       [&](const auto& row) { return row.first == type && row.second == memory; });
}

/// The answer to a message about `size` bytes from `address` on, as far as type, place and lock decide: Ok or what is
/// wrong. `isAllowed` asks for the lock.
Answer checked(const MappedChip& chip, quint8 type, quint32 address, int size,
               bool (MappedChip::*isAllowed)(MappedPart::Memory) const)
{
    const auto memory = chip.memoryAt(address, size);
    if (!isMemoryType(type))
        return IllegalMemoryType;
    if (!chip.isProgramming() || (memory && !(chip.*isAllowed)(*memory)))
        return IllegalMcuState;
    return memory && isTypeOf(type, *memory) ? Ok : IllegalMemoryRange;
}

/// The length of a command with all that has to come with it, in bytes. What may follow is data.
int shortestLength(quint8 command)
{
    switch (command) {
    case GetParameter:
    case ForcedStop:
    case Reset:
        return 2;
    case SetParameter:
        return 3;
    case EraseMemory:
        return 6;
    case WriteMemory:
    case ReadMemory:
        return memoryHeaderLength;
    default:
        return 1;
    }
}

} // namespace

quint16 JtagMkII::checksumOf(const QByteArray& bytes)
{
    quint16 sum = 0xFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = static_cast<quint16>((sum & 1U) != 0 ? sum >> 1U ^ 0x8408U : sum >> 1U);
    }
    return sum;
}

void JtagMkII::beginConnection()
{
    m_pending.clear();
    m_flashBytes = 0;
}

QByteArray JtagMkII::receive(const QByteArray& bytes)
{
    m_pending += bytes;
    QByteArray answers;
    int begin = 0; // of the next message, if it is one
    while (true) {
        begin = static_cast<int>(m_pending.indexOf(messageStart, begin));
        if (begin < 0)
            begin = static_cast<int>(m_pending.size());
        if (m_pending.size() - begin < headerLength)
            break;
        const quint32 size = numberAt(m_pending, begin + sizeAt);
        if (byteAt(m_pending, begin + headerLength - 1) != token || size > longestMessage) {
            ++begin;
            continue;
        }
        const int whole = headerLength + static_cast<int>(size) + checksumLength;
        if (m_pending.size() - begin < whole)
            break;
        const QByteArray message = m_pending.mid(begin, whole);
        if (checksumOf(message.chopped(checksumLength)) != qFromLittleEndian<quint16>(message.right(checksumLength))) {
            ++begin;
            continue;
        }
        begin += whole;
        const QByteArray result = execute(message.mid(headerLength).chopped(checksumLength));
        QByteArray frame = message.left(sizeAt) + littleEndian(static_cast<quint32>(result.size()), 4) + token + result;
        answers += frame + littleEndian(checksumOf(frame), checksumLength);
    }
    m_pending.remove(0, begin);
    return answers;
}

int JtagMkII::flashBytesReceived() const
{
    const bool isWithin = m_pending.size() > headerLength + memoryHeaderLength
        && byteAt(m_pending, headerLength) == WriteMemory
        && isTypeOf(byteAt(m_pending, headerLength + 1), MappedPart::Flash);
    const qint64 length = qMin<qint64>(m_pending.size() - headerLength, numberAt(m_pending, sizeAt)); // no checksum
    return m_flashBytes + (isWithin ? static_cast<int>(length) - memoryHeaderLength : 0);
}

QByteArray JtagMkII::execute(const QByteArray& command)
{
    if (command.size() < shortestLength(byteAt(command, 0)))
        return answer(Failed);
    switch (byteAt(command, 0)) {
    case GetSignOn: {
        const char cpu[] = {1, firmwareMinor, firmwareMajor, 1};
        const QByteArray version(cpu, sizeof cpu); // of both processors of such a programmer: boot loader, firmware
        return answer(SignOn, '\1' + version + version + QByteArray(6, '\0') + QByteArray("JTAGICE mkII", 13));
    }
    case SetParameter:
        return setParameter(command);
    case GetParameter:
        return getParameter(byteAt(command, 1));
    case WriteMemory:
        return writeMemory(command);
    case ReadMemory:
        return readMemory(command);
    case EraseMemory:
        return erase(command);
    case EnterProgramming:
        return answer(m_chip.enterProgramming() ? Ok : NoTargetPower);
    case LeaveProgramming: // after which avrdude sends a reset, and goes on
    case Go:
    case SignOff:
        m_chip.leaveProgramming();
        return answer(Ok);
    case ForcedStop:
    case Reset:
        // The chip stays in the programmer's hands: avrdude writes single bytes of the EEPROM so.
        m_chip.enterProgramming();
        return answer(Ok);
    case GetSync:
    case SetDeviceDescriptor: // which this programmer knows already
        return answer(Ok);
    default:
        return answer(IllegalCommand);
    }
}

QByteArray JtagMkII::setParameter(const QByteArray& command)
{
    switch (byteAt(command, 1)) {
    case EmulatorMode:
        return answer(byteAt(command, 2) == modePdi ? Ok : IllegalEmulatorMode);
    case BaudRate: // there is none on a network
    case JtagClock:
    case TimersRunning:
    case ExternalReset:
    case DaisyChain:
    case OffsetStart:
    case OffsetEnd:
        return answer(Ok);
    default:
        return answer(IllegalParameter);
    }
}

QByteArray JtagMkII::getParameter(quint8 parameter) const
{
    switch (parameter) {
    case HardwareVersion:
        return answer(Parameter, QByteArray("\1\1", 2));
    case FirmwareVersion: {
        const char versions[] = {firmwareMinor, firmwareMajor, firmwareMinor, firmwareMajor};
        return answer(Parameter, QByteArray(versions, sizeof versions));
    }
    case EmulatorMode:
        return answer(Parameter, QByteArray(1, modePdi));
    case TargetVoltage:
        return answer(Parameter, littleEndian(voltage, 2));
    case BaudRate:
    case JtagClock:
        return answer(Parameter, QByteArray(1, '\1'));
    default:
        return answer(IllegalParameter);
    }
}

QByteArray JtagMkII::writeMemory(const QByteArray& command)
{
    const quint8 type = byteAt(command, 1);
    const QByteArray data = command.mid(memoryHeaderLength);
    const quint32 address = numberAt(command, memoryAddressAt);
    if (isTypeOf(type, MappedPart::Flash))
        m_flashBytes += static_cast<int>(data.size());
    if (data.size() != static_cast<qint64>(numberAt(command, memorySizeAt)))
        return answer(Failed);
    const Answer taken = checked(m_chip, type, address, static_cast<int>(data.size()), &MappedChip::mayWrite);
    return answer(taken == Ok && !m_chip.write(address, data) ? IllegalMemoryRange : taken);
}

QByteArray JtagMkII::readMemory(const QByteArray& command) const
{
    const quint32 size = numberAt(command, memorySizeAt);
    const quint32 address = numberAt(command, memoryAddressAt);
    if (size > longestRead)
        return answer(IllegalMemoryRange);
    const int bytes = static_cast<int>(size);
    const Answer taken = checked(m_chip, byteAt(command, 1), address, bytes, &MappedChip::mayRead);
    return taken == Ok ? answer(Memory, *m_chip.read(address, bytes)) : answer(taken);
}

QByteArray JtagMkII::erase(const QByteArray& command)
{
    using Erase = MappedChip::Erase;
    // The codes of avrdude: chip, application, boot section, EEPROM, a page of each of these, user signature.
    constexpr Erase kinds[] = {Erase::Chip,      Erase::Flash,     Erase::Flash,      Erase::Eeprom,
                               Erase::FlashPage, Erase::FlashPage, Erase::EepromPage, Erase::UserRow};
    const std::size_t kind = byteAt(command, 1);
    if (kind >= std::size(kinds))
        return answer(IllegalMemoryType);
    const bool isAllowed = kinds[kind] == Erase::Chip || m_chip.mayWrite(MappedPart::Flash); // the others go with it
    if (!m_chip.isProgramming() || !isAllowed)
        return answer(IllegalMcuState);
    return answer(m_chip.erase(kinds[kind], numberAt(command, 2)) ? Ok : IllegalMemoryRange);
}
