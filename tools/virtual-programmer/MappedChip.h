#pragma once

#include "MappedPart.h"
#include "Target.h"

/// A chip whose memories lie at addresses, as a programmer sees it through UPDI or PDI. Every write is done at once.
class MappedChip : public Target
{
public:
    enum class Erase { Chip, Flash, Eeprom, FlashPage, EepromPage, UserRow };

    /// A chip fresh from the factory.
    explicit MappedChip(MappedPart part);

    [[nodiscard]] const MappedPart& part() const { return m_part; }

    /// Starts the chip anew, in the hands of the programmer: the fuses as they are now take effect. False when it does
    /// not answer, as its fuses have taken the programming pin away.
    bool enterProgramming();

    void leaveProgramming() override;

    /// No lock protects the fuses from high voltage, which erases the chip all the same: there is no other way in.
    void rescue() override;

    /// Whether the lock, as it was when the chip started, lets the programmer read this memory.
    [[nodiscard]] bool mayRead(MappedPart::Memory memory) const;

    /// The same for writing it, or erasing it without the rest of the chip.
    [[nodiscard]] bool mayWrite(MappedPart::Memory memory) const;

    /// The memory that the `size` bytes from `address` on lie in. Nothing where not all of them lie in one.
    [[nodiscard]] std::optional<MappedPart::Memory> memoryAt(quint32 address, int size) const;

    /// The `size` bytes from `address` on. Nothing where not all of them lie in one memory.
    [[nodiscard]] std::optional<QByteArray> read(quint32 address, int size) const;

    /// Writes `bytes` from `address` on. The flash takes no 1 where it has a 0. False, and nothing is written, where
    /// not all of them lie in one memory that can be written.
    bool write(quint32 address, const QByteArray& bytes);

    /// Erases the whole of what `what` names, or the page that `address` lies in. False where there is no such page.
    bool erase(Erase what, quint32 address);

private:
    enum class Access { All, Reading, None };
    struct Found {
        MappedPart::Memory memory;
        int offset; ///< in that
    };
    [[nodiscard]] std::optional<Found> find(quint32 address, int size) const;
    [[nodiscard]] Access accessByLock() const;
    void eraseChip();

    const MappedPart m_part;
    Access m_access = Access::All;
};
