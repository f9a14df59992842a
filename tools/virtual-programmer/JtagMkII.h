#pragma once

#include "MappedChip.h"
#include "Protocol.h"

/// The programmer's side of the JTAGICE mkII protocol (Atmel application note AVR067), as far as it programs chips
/// through UPDI or PDI: what avrdude calls jtag2updi and jtag2pdi. Its chip outlives it.
class JtagMkII : public Protocol
{
public:
    explicit JtagMkII(MappedChip& chip)
        : m_chip(chip)
    {
    }

    void beginConnection() override;

    /// What is no message is skipped up to the next one, which may lie within what looked like one. A message with a
    /// wrong checksum has no answer, so that it is sent again.
    [[nodiscard]] QByteArray receive(const QByteArray& bytes) override;

    [[nodiscard]] int flashBytesReceived() const override;
    [[nodiscard]] int waitingBytes() const override { return mostWaiting; }

    /// The checksum of a message: CRC-16 of CCITT, lowest bit first, as AVR067 tells. 0 for a message with its own.
    [[nodiscard]] static quint16 checksumOf(const QByteArray& bytes);

private:
    static constexpr int longestMessage = 1024; ///< bytes; a page has 512 at most
    static constexpr int longestRead = 1024; ///< bytes; avrdude asks for 512 at most
    static constexpr int mostWaiting = 1024; ///< bytes; who has to wait sends a few short messages

    [[nodiscard]] QByteArray execute(const QByteArray& command);
    [[nodiscard]] QByteArray setParameter(const QByteArray& command);
    [[nodiscard]] QByteArray getParameter(quint8 parameter) const;
    [[nodiscard]] QByteArray writeMemory(const QByteArray& command);
    [[nodiscard]] QByteArray readMemory(const QByteArray& command) const;
    [[nodiscard]] QByteArray erase(const QByteArray& command);

    MappedChip& m_chip;
    QByteArray m_pending;
    int m_flashBytes = 0;
};
