#pragma once

#include "ChipState.h"

#include <optional>

struct Description;

/// What the virtual chip has to know about a part whose memories lie at addresses of one space, as those with UPDI or
/// PDI. Made of the description that ships with Korvel and of the memory map of the part's family. A plain value.
struct MappedPart {
    /// Memories that lie somewhere. The first ones are the chip's state, the others are never written.
    enum Memory { Flash, Eeprom, Fuses, Lock, UserRow, Signature, ProductionSignature, MemoryCount };

    struct Place {
        quint32 address = 0;
        int size = 0;
    };

    bool isUpdi = true; ///< or PDI
    ChipShape shape;
    QByteArray signature; ///< three bytes
    Place places[MemoryCount];
    int flashPageSize = 0; ///< bytes
    int eepromPageSize = 0; ///< bytes
    ChipState::FuseBit eesave; ///< EEPROM survives a chip erase: with UPDI at 1, with PDI at 0
    bool lockedLosesEeprom = false; ///< whatever EESAVE says
    ChipState::FuseBit updiPin; ///< the programming pin is one while this bit is 1

    /// One made of the description of a part with UPDI or PDI. Nothing where it is programmed in another way.
    [[nodiscard]] static std::optional<MappedPart> described(const Description& description);
};
