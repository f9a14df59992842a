#include "memory/FirmwareFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <optional>

namespace {

constexpr qint64 largestFile =
    32LL * 1024 * 1024; // bytes; as text the largest flash, of 384 KiB, takes a thirtieth of it

enum class Format { IntelHex, SRecords, Elf, Raw, Unknown };

QString say(const char* sentence)
{
    return QCoreApplication::translate("FirmwareFile", sentence);
}

QString notAt(int line, const char* format)
{
    return say(QT_TRANSLATE_NOOP("FirmwareFile", "Line %1 is not %2.")).arg(line).arg(QLatin1String(format));
}

QString badChecksum(int line)
{
    return say(QT_TRANSLATE_NOOP("FirmwareFile", "The checksum of line %1 is wrong.")).arg(line);
}

/// Notes that a file has @p count bytes for @p address, and what speaks against it.
void addData(FirmwareFile& file, qint64 address, qint64 count, qint64 memorySize)
{
    file.bytes += count;
    if (memorySize > 0 && address + count > memorySize)
        file.fault =
            say(QT_TRANSLATE_NOOP("FirmwareFile", "The file has data at address 0x%1, the memory only %2 bytes."))
                .arg(std::max(address, memorySize), 0, 16)
                .arg(memorySize);
}

/// A text file's lines, without the line breaks. As for avrdude, a line ends at a zero byte.
class Lines
{
public:
    explicit Lines(const QByteArray& content)
        : m_content(content)
    {
    }

    /// Goes on to the next line, in pieces of @p longest characters; false when there is none.
    bool next(int longest = static_cast<int>(largestFile))
    {
        if (m_next >= m_content.size())
            return false;
        const char* const begin = m_content.constData() + m_next;
        const int rest = std::min(longest, static_cast<int>(m_content.size()) - m_next);
        const char* const end = std::find(begin, begin + rest, '\n');
        const bool isWhole = end != begin + rest;
        m_line = QByteArray::fromRawData(begin, static_cast<int>(std::find(begin, end, '\0') - begin));
        m_next += static_cast<int>(end - begin) + (isWhole ? 1 : 0);
        ++m_number;
        return true;
    }

    [[nodiscard]] const QByteArray& line() const { return m_line; }
    [[nodiscard]] int number() const { return m_number; }

private:
    const QByteArray& m_content;
    QByteArray m_line;
    int m_next = 0;
    int m_number = 0;
};

/// Takes numbers of two hexadecimal digits each from a record, as avrdude does: blanks and signs before a digit pass.
class Record
{
public:
    Record(const QByteArray& line, int begin)
        : m_line(line)
        , m_next(begin)
    {
    }

    /// The number of the next @p bytes bytes (1 to 4), the high one first, each added to the sum; nothing at the line's
    /// end or where there is none.
    std::optional<quint32> take(int bytes = 1)
    {
        const int size = 2 * bytes;
        if (m_next + size > m_line.size())
            return {};
        std::array<char, 9> digits {};
        std::copy_n(m_line.constData() + m_next, size, digits.begin());
        m_next += size;
        char* end = nullptr;
        const auto number = static_cast<quint32>(std::strtoul(digits.data(), &end, 16));
        if (end != digits.data() + size)
            return {};
        for (int i = 0; i < bytes; ++i)
            m_sum += number >> 8 * i;
        return number;
    }

    /// The sum of all bytes so far, its lowest byte.
    [[nodiscard]] quint32 sum() const { return m_sum & 0xFF; }

private:
    const QByteArray& m_line;
    int m_next;
    quint32 m_sum = 0;
};

void readIntelHex(FirmwareFile& file, const QByteArray& content, qint64 memorySize)
{
    enum Type : quint32 { Data, EndOfFile, SegmentAddress, SegmentStart, LinearAddress, LinearStart };
    qint64 base = 0;
    bool hasRecord = false;
    for (Lines lines(content); file.fault.isEmpty() && lines.next();) {
        if (!lines.line().startsWith(':'))
            continue; // a comment, says avrdude
        Record record(lines.line(), 1);
        const auto count = record.take();
        const auto address = record.take(2);
        const auto type = record.take();
        bool isWhole = count && address && type && *type <= LinearStart;
        quint32 firstTwo = 0;
        for (quint32 i = 0; isWhole && i < *count; ++i) {
            const auto byte = record.take();
            isWhole = byte.has_value();
            if (isWhole && i < 2)
                firstTwo = firstTwo << 8 | (*byte & 0xFF);
        }
        isWhole = isWhole && record.take();
        if (!isWhole)
            file.fault = notAt(lines.number(), "Intel HEX");
        else if (record.sum() != 0)
            file.fault = badChecksum(lines.number());
        else if (*type == Data)
            addData(file, base + *address, *count, memorySize);
        else if (*type == SegmentAddress)
            base = static_cast<qint64>(firstTwo) << 4;
        else if (*type == LinearAddress)
            base = static_cast<qint64>(firstTwo) << 16;
        hasRecord = true;
        if (isWhole && *type == EndOfFile)
            return;
    }
    if (!hasRecord)
        file.fault = notAt(1, "Intel HEX");
}

void readSRecords(FirmwareFile& file, const QByteArray& content, qint64 memorySize)
{
    quint32 records = 0;
    for (Lines lines(content); file.fault.isEmpty() && lines.next();) {
        if (!lines.line().startsWith('S'))
            continue;
        const char type = lines.line().size() > 1 ? lines.line().at(1) : '\0';
        const int addressBytes = type == '2' || type == '8' ? 3 : type == '3' || type == '7' ? 4 : 2;
        Record record(lines.line(), 2);
        const auto count = record.take(); // of all bytes that follow
        const auto address = record.take(addressBytes);
        bool isWhole = type >= '0' && type <= '9' && type != '4' && type != '6' && count && address;
        const qint64 dataBytes = isWhole ? static_cast<qint64>(*count) - addressBytes - 1 : 0;
        isWhole = isWhole && dataBytes >= 0;
        for (qint64 i = 0; isWhole && i <= dataBytes; ++i) // the checksum too
            isWhole = record.take().has_value();
        const bool isData = type >= '1' && type <= '3';
        if (!isWhole || (type == '5' && *address != records))
            file.fault = notAt(lines.number(), "Motorola S-record");
        else if (record.sum() != 0xFF)
            file.fault = badChecksum(lines.number());
        else if (isData)
            addData(file, *address, dataBytes, memorySize);
        records += isData ? 1 : 0;
        if (isWhole && type >= '7')
            return;
    }
}

QString cutOff()
{
    return say(QT_TRANSLATE_NOOP("FirmwareFile", "The end of the file is missing."));
}

/// The ELF file for AVR that avr-gcc's linker makes: of each part that is loaded, where it goes.
void readElf(FirmwareFile& file, const QByteArray& content, bool isEeprom, qint64 memorySize)
{
    const auto number = [&content](qint64 at, int bytes) {
        quint32 value = 0;
        for (int i = bytes; i-- > 0;)
            value =
                value << 8 | (at + i < content.size() ? static_cast<uchar>(content.at(static_cast<int>(at) + i)) : 0U);
        return value;
    };
    constexpr quint32 executable = 2;
    constexpr quint32 avr = 83;
    constexpr quint32 load = 1;
    const bool is32BitLittleEndian = content.startsWith("\177ELF\1\1");
    if (!is32BitLittleEndian || number(16, 2) != executable || number(18, 2) != avr) {
        file.fault = say(QT_TRANSLATE_NOOP("FirmwareFile", "The file is not an ELF program for AVR."));
        return;
    }
    // avr-libc's linker scripts: the EEPROM from here on, SRAM and fuses around it, the flash below them.
    constexpr quint32 sram = 0x800000;
    constexpr quint32 eeprom = 0x810000;
    constexpr quint32 fuses = 0x820000;
    const quint32 begin = isEeprom ? eeprom : 0;
    const quint32 end = isEeprom ? fuses : sram;
    const auto isMissing = [&content](qint64 offset, qint64 size) { return offset + size > content.size(); };
    if (isMissing(number(32, 4), static_cast<qint64>(number(46, 2)) * number(48, 2))) {
        file.fault = cutOff(); // the list of its sections, without which avrdude finds nothing
        return;
    }
    const qint64 headers = number(28, 4);
    const quint32 headerSize = number(42, 2);
    const quint32 headerCount = number(44, 2);
    for (quint32 i = 0; i < headerCount && file.fault.isEmpty(); ++i) {
        const qint64 header = headers + static_cast<qint64>(i) * headerSize;
        const quint32 address = number(header + 12, 4); // where it lies in the chip, not where it works
        const quint32 size = number(header + 16, 4);
        const bool isMeant = number(48, 2) > 0 && number(header, 4) == load && address >= begin && address < end;
        if (isMeant && size > 0 && isMissing(number(header + 4, 4), size))
            file.fault = cutOff();
        else if (isMeant && size > 0)
            addData(file, address - begin, size, memorySize);
    }
}

/// What the file is by its content, as avrdude finds out.
Format formatOf(const QByteArray& content)
{
    constexpr int longest = 255; // characters that it looks at in one piece
    if (content.startsWith("\177ELF"))
        return Format::Elf;
    for (Lines lines(content); lines.next(longest);) {
        const QByteArray& line = lines.line();
        const auto isAscii = [](char character) { return static_cast<uchar>(character) < 0x80; };
        if (!std::all_of(line.begin(), line.end(), isAscii))
            return Format::Raw;
        if (line.size() >= 11 && line.at(0) == ':' && std::isxdigit(static_cast<uchar>(line.at(1))))
            return Format::IntelHex;
        if (line.size() >= 10 && line.at(0) == 'S' && std::isdigit(static_cast<uchar>(line.at(1))))
            return Format::SRecords;
    }
    return Format::Unknown;
}

/// The ending under which avrdude takes a file of @p format; empty where none is certain: a broken download may look
/// like raw bytes too.
QString endingFor(Format format)
{
    switch (format) {
    case Format::IntelHex:
        return QStringLiteral(".hex");
    case Format::SRecords:
        return QStringLiteral(".mot"); // any without a code of its own
    case Format::Elf:
        return QStringLiteral(".elf");
    case Format::Raw:
    case Format::Unknown:
        break;
    }
    return {};
}

} // namespace

FirmwareFile FirmwareFile::read(const QString& path, const QString& format, const QString& memory, qint64 memorySize)
{
    FirmwareFile result;
    const bool isRefused = format == QLatin1String("m"); // no format of files for avrdude, which looks into none
    QFile file(path);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        if (isRefused)
            result.fault = say(QT_TRANSLATE_NOOP("FirmwareFile", "The file cannot be read."));
        return result;
    }
    if (file.size() > largestFile) {
        if (isRefused || format == QLatin1String("i"))
            result.fault = say(QT_TRANSLATE_NOOP("FirmwareFile", "The file is too large to be firmware."));
        return result;
    }
    const QByteArray content = file.readAll();
    const Format found = format == QLatin1String("r") ? Format::Raw : formatOf(content);
    const Format expected = format == QLatin1String("i") ? Format::IntelHex
        : format == QLatin1String("e")                   ? Format::Elf
        : format == QLatin1String("r")                   ? Format::Raw
        : format == QLatin1String("a")                   ? found
                                                         : Format::Unknown;
    if (expected == Format::Unknown && !isRefused)
        return result;
    result.bytes = 0;
    if (expected == Format::IntelHex)
        readIntelHex(result, content, memorySize);
    else if (expected == Format::SRecords)
        readSRecords(result, content, memorySize);
    else if (expected == Format::Elf)
        readElf(result, content, memory == QLatin1String("eeprom"), memorySize);
    else if (expected == Format::Raw)
        result.bytes = content.size();
    else
        result.fault = notAt(1, "Motorola S-record");

    const QString ending = found == expected ? QString() : endingFor(found);
    if (content.isEmpty())
        result.fault = say(QT_TRANSLATE_NOOP("FirmwareFile", "The file is empty."));
    else if (!ending.isEmpty() && (!result.fault.isEmpty() || result.bytes == 0))
        result.fault = say(QT_TRANSLATE_NOOP("FirmwareFile",
                                             "avrdude does not take this file with the ending .%1: let its name end in "
                                             "%2."))
                           .arg(QFileInfo(path).suffix(), ending);
    else if (result.fault.isEmpty() && result.bytes == 0)
        result.fault = say(QT_TRANSLATE_NOOP("FirmwareFile", "The file holds no data for this memory."));
    return result;
}
