#pragma once

#include "ChipState.h"

/// A chip on the bench, whatever it is programmed by: what it remembers, and what happens to it besides programming.
class Target
{
public:
    explicit Target(ChipShape shape)
        : m_shape(std::move(shape))
        , m_state(m_shape.factory)
    {
    }
    virtual ~Target() = default;
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    [[nodiscard]] const ChipShape& shape() const { return m_shape; }
    [[nodiscard]] const ChipState& state() const { return m_state; }

    /// Takes over all memories, which must have the sizes that the part has.
    void setState(const ChipState& state) { m_state = state; }

    /// Makes the flash byte at `address` (0 to flash size - 1) faulty: each write to it turns bit 0 over.
    void setFaultyAddress(int address) { m_faultyAddress = address; }

    /// Puts the factory fuses back as a high-voltage programmer does, which needs none of them to be right. A chip
    /// whose lock protects them is erased first.
    virtual void rescue() = 0;

    /// Whether programming has been enabled and not been left since.
    [[nodiscard]] bool isProgramming() const { return m_isProgramming; }

    /// Ends programming: the chip starts, and its fuses take effect.
    virtual void leaveProgramming() = 0;

protected:
    /// What a write of `value` to the flash leaves at `address`: it makes no 0 a 1.
    void writeFlash(int address, char value)
    {
        const char before = m_state.flash.at(address);
        m_state.flash[address] = static_cast<char>(address == m_faultyAddress ? value ^ 0x01 : value & before);
    }

    /// Writes those `bits` of a fuse byte, and leaves the others as they are.
    void writeFuseBits(int fuse, quint8 value, int bits)
    {
        m_state.fuses[fuse] = static_cast<quint8>((m_state.fuses[fuse] & ~bits) | (value & bits));
    }

    /// What an erase of the whole chip does: the lock opens, and the fuses stay.
    void eraseMemories(bool keepsEeprom)
    {
        m_state.flash.fill('\xFF');
        if (!keepsEeprom)
            m_state.eeprom.fill('\xFF');
        m_state.lock = m_shape.factory.lock;
    }

    ChipShape m_shape;
    ChipState m_state;
    bool m_isProgramming = false;

private:
    int m_faultyAddress = -1;
};
