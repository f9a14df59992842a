#include "Stk500.h"

#include <algorithm>

namespace {

// Commands, answers and parameters of AVR061.
enum Command : quint8 {
    GetSync = 0x30,
    GetSignOn = 0x31,
    SetParameter = 0x40,
    GetParameter = 0x41,
    SetDevice = 0x42,
    SetDeviceExtended = 0x45,
    EnterProgramming = 0x50,
    LeaveProgramming = 0x51,
    ChipErase = 0x52,
    LoadAddress = 0x55,
    Universal = 0x56,
    ProgramPage = 0x64,
    ReadPage = 0x74,
    ReadSignature = 0x75
};
constexpr char endMark = 0x20;
constexpr int pageHeaderLength = 4; // what comes before the data of a page
constexpr quint8 flashMemory = 'F';
constexpr quint8 eepromMemory = 'E';

constexpr int crystal = 7372800; // Hz

constexpr char ok = 0x10;
constexpr char failed = 0x11;
constexpr char noDevice = 0x13;
constexpr char inSync = 0x14;
constexpr char noSync = 0x15;

constexpr std::size_t hardwareVersion = 0x80;
constexpr std::size_t softwareMajor = 0x81;
constexpr std::size_t softwareMinor = 0x82;
constexpr std::size_t targetVoltage = 0x84; // 0.1 V
constexpr std::size_t referenceVoltage = 0x85; // 0.1 V
constexpr std::size_t sckDuration = 0x89; // of one bit, in 8 cycles of the 7.3728 MHz crystal

int wordAt(const QByteArray& bytes, int high, int low)
{
    return byteAt(bytes, high) << 8 | byteAt(bytes, low);
}

/// Length of the command that stands at `at`, end mark included; 0: no command. Where the byte that tells the length
/// has not come in, the length reaches to that byte at least.
int commandLength(const QByteArray& bytes, int at)
{
    switch (byteAt(bytes, at)) {
    case GetSync:
    case GetSignOn:
    case EnterProgramming:
    case LeaveProgramming:
    case ChipErase:
    case ReadSignature:
        return 2;
    case GetParameter:
        return 3;
    case SetParameter:
    case LoadAddress:
        return 4;
    case ReadPage:
        return 5;
    case Universal:
        return 6;
    case SetDevice:
        return 22;
    case SetDeviceExtended:
        return 2 + qMax<int>(1, byteAt(bytes, at + 1)); // the length byte counts itself
    case ProgramPage:
        return pageHeaderLength + 1 + wordAt(bytes, at + 1, at + 2);
    default:
        return 0;
    }
}

bool needsProgramming(quint8 command)
{
    return command == ChipErase || command == ProgramPage || command == ReadPage || command == ReadSignature;
}

QByteArray answer(const QByteArray& data = {}, char result = ok)
{
    return inSync + data + result;
}

} // namespace

Stk500::Stk500(Chip& chip)
    : m_chip(chip)
{
    m_parameters[hardwareVersion] = 2;
    m_parameters[softwareMajor] = 1;
    m_parameters[softwareMinor] = 18;
    m_parameters[targetVoltage] = 50;
    m_parameters[referenceVoltage] = 50;
    m_parameters[sckDuration] = 8; // 115.2 kHz, which a new chip at 1 MHz can follow
}

void Stk500::beginConnection()
{
    m_pending.clear();
    m_address = 0;
    m_flashBytes = 0;
}

QByteArray Stk500::receive(const QByteArray& bytes)
{
    m_pending += bytes;
    QByteArray answers;
    int begin = 0;
    while (begin < m_pending.size()) {
        const int length = commandLength(m_pending, begin);
        if (begin + length > m_pending.size())
            break;
        if (length == 0 || m_pending.at(begin + length - 1) != endMark)
            answers += noSync;
        else
            answers += execute(m_pending.mid(begin, length));
        begin += qMax(length, 1);
    }
    m_pending.remove(0, begin);
    return answers;
}

int Stk500::flashBytesReceived() const
{
    const bool isWithinPage = byteAt(m_pending, 0) == ProgramPage && byteAt(m_pending, 3) == flashMemory;
    return m_flashBytes + (isWithinPage ? static_cast<int>(m_pending.size()) - pageHeaderLength : 0);
}

QByteArray Stk500::execute(const QByteArray& command)
{
    const auto byte = [&command](int index) { return byteAt(command, index); };
    if (needsProgramming(byte(0)) && !m_chip.isProgramming())
        return answer({}, noDevice);

    switch (byte(0)) {
    case GetSignOn:
        return answer(QByteArrayLiteral("AVR STK"));
    case SetParameter:
        m_parameters[byte(1)] = byte(2);
        return answer();
    case GetParameter:
        return answer(QByteArray(1, static_cast<char>(m_parameters[byte(1)])));
    case SetDevice: // the description of the part, which this programmer mostly knows already
        m_chip.setFlashPageSize(wordAt(command, 13, 14));
        return answer();
    case EnterProgramming:
        return answer({}, m_chip.enterProgramming(bitClock()) ? ok : noDevice);
    case LeaveProgramming:
        m_chip.leaveProgramming();
        return answer();
    case ChipErase:
        m_chip.transfer({0xAC, 0x80, 0x00, 0x00});
        return answer();
    case LoadAddress:
        m_address = wordAt(command, 2, 1);
        return answer();
    case Universal:
        return answer(QByteArray(1, static_cast<char>(m_chip.transfer({byte(1), byte(2), byte(3), byte(4)})[3])));
    case ProgramPage:
        return programPage(byte(3), command.mid(pageHeaderLength).chopped(1));
    case ReadPage:
        return readPage(byte(3), wordAt(command, 1, 2));
    case ReadSignature:
        return answer(readSignature());
    default: // more of that description, and synchronisation
        return answer();
    }
}

QByteArray Stk500::programPage(quint8 memory, const QByteArray& data)
{
    if (memory == eepromMemory) {
        for (int i = 0; i < data.size(); ++i)
            instruct(0xC0, m_address + i, byteAt(data, i));
        return answer();
    }
    if (memory != flashMemory)
        return answer({}, failed);

    m_flashBytes += static_cast<int>(data.size());
    for (int i = 0; i < data.size(); ++i) {
        const int word = m_address + i / 2;
        const int next = 2 * m_address + i + 1;
        instruct(i % 2 == 0 ? 0x40 : 0x48, word, byteAt(data, i));
        if (i + 1 == data.size() || next % std::max(m_chip.flashPageSize(), 2) == 0)
            instruct(0x4C, word);
    }
    return answer();
}

QByteArray Stk500::readPage(quint8 memory, int size)
{
    if (memory != flashMemory && memory != eepromMemory)
        return answer({}, failed);
    QByteArray data;
    for (int i = 0; i < size; ++i) {
        data += static_cast<char>(memory == eepromMemory ? instruct(0xA0, m_address + i)
                                                         : instruct(i % 2 == 0 ? 0x20 : 0x28, m_address + i / 2));
    }
    return answer(data);
}

QByteArray Stk500::readSignature()
{
    QByteArray signature;
    for (int i = 0; i < 3; ++i)
        signature += static_cast<char>(instruct(0x30, i));
    return signature;
}

int Stk500::bitClock() const
{
    return crystal / 8 / qMax<int>(1, m_parameters[sckDuration]);
}

quint8 Stk500::instruct(int opcode, int address, int data)
{
    return m_chip.transfer({static_cast<quint8>(opcode), static_cast<quint8>(address >> 8),
                            static_cast<quint8>(address), static_cast<quint8>(data)})[3];
}
