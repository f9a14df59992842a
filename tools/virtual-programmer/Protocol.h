#pragma once

#include <QByteArray>

/// The byte at `index` of a message; 0 beyond its end.
inline quint8 byteAt(const QByteArray& bytes, int index)
{
    return index < bytes.size() ? static_cast<quint8>(bytes.at(index)) : quint8 {0};
}

/// A programmer's side of a protocol: bytes in, bytes out.
class Protocol
{
public:
    virtual ~Protocol() = default;

    /// Forgets what the last connection left unfinished.
    virtual void beginConnection() = 0;

    /// Takes the next bytes of the stream, cut anywhere, and returns the answers to the commands that they complete.
    [[nodiscard]] virtual QByteArray receive(const QByteArray& bytes) = 0;

    /// How many bytes of flash page data have come in on this connection, those of a page still under way included.
    [[nodiscard]] virtual int flashBytesReceived() const = 0;

    /// How many of the bytes that came in while a connection had to wait count, from the last one back.
    [[nodiscard]] virtual int waitingBytes() const = 0;
};
