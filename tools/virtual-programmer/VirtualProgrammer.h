#pragma once

#include "ChipState.h"

#include <QObject>
#include <QTcpServer>

#include <optional>

class Protocol;
class QTcpSocket;
class Target;

/// Offers one chip to whoever connects on this machine, one connection after another; a second one waits until the
/// first is closed. The chip and the protocol outlive it.
class VirtualProgrammer : public QObject
{
    Q_OBJECT

public:
    VirtualProgrammer(Target& chip, Protocol& protocol, QObject* parent = nullptr);

    /// Keeps the memories of the chip in the file at `path`: takes them over if the file exists, creates it if not,
    /// and rewrites it whenever programming ends with changed memories. False, and `error` says why, when the file
    /// is not usable; it is then as before.
    [[nodiscard]] bool setStateFile(const QString& path, QString& error);

    /// Brings back a chip that fuses have shut off, see Target::rescue(); the state file follows.
    void rescueChip();

    /// Takes every byte and never answers.
    void setSilent(bool isSilent) { m_isSilent = isSilent; }

    /// Resets each connection once `bytes` (at least 1; 0: never) of flash page data have come in. The page that they
    /// end in or with is not written.
    void setUnplugAfter(int bytes) { m_unplugAfter = bytes; }

    /// Listens on 127.0.0.1 at `port` (0: a free one). False when that is not possible; errorString() says why.
    [[nodiscard]] bool listen(quint16 port);

    /// The port listened on.
    [[nodiscard]] quint16 port() const { return m_server.serverPort(); }

    [[nodiscard]] QString errorString() const { return m_server.errorString(); }

private:
    void serveNext();
    void onReadyRead();
    void onDisconnected();
    void saveState();

    Target& m_chip;
    Protocol& m_protocol;
    QString m_statePath;
    std::optional<ChipState> m_savedState;
    bool m_isSilent = false;
    int m_unplugAfter = 0;
    QTcpServer m_server;
    QTcpSocket* m_socket = nullptr; // of the connection being served; owned by the server
};
