#pragma once

#include "Part.h"
#include "Target.h"

#include <QByteArray>

#include <array>
#include <optional>

/// An AVR chip held in reset, as a serial programmer sees it: four bytes in, four bytes out. Follows the datasheets'
/// "Serial Programming Instruction Set" and lock bit protection modes; every write is done at once.
class Chip : public Target
{
public:
    using Instruction = std::array<quint8, 4>;

    /// A chip fresh from the factory. `part` must outlive it.
    explicit Chip(const Part& part);

    [[nodiscard]] const Part& part() const { return m_part; }

    /// Tells the size of a page of the flash, in bytes, where the part does not: of a part without pages 0.
    void setFlashPageSize(int bytes);
    [[nodiscard]] int flashPageSize() const { return m_flashPageSize; }

    /// The clock at the clock pins, in Hz (0: none). It serves whichever source outside the chip the fuses choose: a
    /// generator, a crystal or a resonator of any range.
    void setClockInput(int frequency) { m_clockInput = frequency; }

    /// Lock modes 2 and 3 protect the fuses.
    void rescue() override;

    /// Starts the chip anew, held in reset: the fuses as they are now take effect. Then enables programming with
    /// instructions shifted at `bitClock` (1 Hz to 10 MHz). False when the chip does not answer: its fuses have taken
    /// reset or serial programming away, or its clock is not there or too slow.
    bool enterProgramming(int bitClock);

    /// Shifts one instruction in and returns what the chip shifts out meanwhile: the answer in the last byte where
    /// the instruction has one, otherwise each byte is the one that came in before it. Until programming is enabled
    /// the chip does nothing and its output stays high (0xFF).
    Instruction transfer(const Instruction& in);

    /// Releases reset: ends programming and forgets page buffers and extended address.
    void leaveProgramming() override;

private:
    [[nodiscard]] bool answers(int bitClock) const;
    [[nodiscard]] int clockFrequency() const;
    std::optional<quint8> execute(const Instruction& in);
    void executeWrite(const Instruction& in);
    void eraseChip();
    void writeFuse(Part::Fuse fuse, quint8 value);
    void writeFlashPage(int address);
    void writeEeprom(int address, quint8 value);
    void writeEepromPage(int address);
    [[nodiscard]] int flashAddress(const Instruction& in) const;
    [[nodiscard]] int eepromAddress(const Instruction& in) const;
    [[nodiscard]] bool mayRead() const;
    [[nodiscard]] bool mayWrite() const;
    [[nodiscard]] quint8 lock() const;

    const Part& m_part;
    int m_clockInput = 0; // Hz
    int m_flashPageSize; // bytes; 0: each byte is written at once
    int m_extendedAddress = 0;
    QByteArray m_flashPage;
    std::array<std::optional<quint8>, 8> m_eepromPage; // no part has longer EEPROM pages
};
