#pragma once

#include "Chip.h"
#include "Protocol.h"

#include <QByteArray>

#include <array>

/// The programmer's side of the STK500 version 1 protocol (Atmel application note AVR061): bytes in, bytes out. It
/// turns commands into instructions for its chip, which outlives it. Its parameters stay from one connection to the
/// next, as those of an STK500 do.
class Stk500 : public Protocol
{
public:
    explicit Stk500(Chip& chip);

    void beginConnection() override;

    /// What is no command, or has no end mark where it belongs, is dropped and answered with STK_NOSYNC.
    [[nodiscard]] QByteArray receive(const QByteArray& bytes) override;

    [[nodiscard]] int flashBytesReceived() const override;

    /// Who has to wait asks for synchronisation again and again and is confused by more answers than one.
    [[nodiscard]] int waitingBytes() const override { return 2; }

private:
    [[nodiscard]] QByteArray execute(const QByteArray& command);
    [[nodiscard]] QByteArray programPage(quint8 memory, const QByteArray& data);
    [[nodiscard]] QByteArray readPage(quint8 memory, int size);
    [[nodiscard]] QByteArray readSignature();
    [[nodiscard]] int bitClock() const;
    quint8 instruct(int opcode, int address, int data = 0);

    Chip& m_chip;
    QByteArray m_pending;
    std::array<quint8, 256> m_parameters {};
    int m_address = 0;
    int m_flashBytes = 0;
};
