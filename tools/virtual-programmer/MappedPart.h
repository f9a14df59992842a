#pragma once

#include "ChipState.h"

#include <optional>

class QJsonObject;

/// What the virtual chip has to know about a part whose memories lie at addresses of one space, as those with UPDI or
/// PDI. Made of the description that ships with Korvel and of the memory map of the part's family. A plain value.
struct MappedPart {
    enum class Interface { Updi, Pdi };

    /// Memories that lie somewhere. The first ones are the chip's state, the others are never written.
    enum Memory { Flash, Eeprom, Fuses, Lock, UserRow, Signature, ProductionSignature, MemoryCount };

    struct Place {
        quint32 address = 0;
        int size = 0;
    };

    /// One bit of one fuse byte.
    struct FuseBit {
        int fuse = -1; ///< -1: the part does not have it
        quint8 mask = 0;
    };

    Interface interface = Interface::Updi;
    ChipShape shape;
    QByteArray signature; ///< three bytes
    Place places[MemoryCount];
    int flashPageSize = 0; ///< bytes
    int eepromPageSize = 0; ///< bytes
    FuseBit eesave; ///< EEPROM survives a chip erase
    bool eesaveKeepsAt1 = true; ///< the value at which it does
    bool lockedLosesEeprom = false; ///< whatever EESAVE says
    FuseBit updiPin; ///< the programming pin is one while this bit is 1

    /// One made of the description of a part with UPDI or PDI. Nothing where it is programmed in another way.
    [[nodiscard]] static std::optional<MappedPart> described(const QJsonObject& description);
};
