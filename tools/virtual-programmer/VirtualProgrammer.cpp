#include "VirtualProgrammer.h"

#include "Protocol.h"
#include "Target.h"

#include <QFileInfo>
#include <QTcpSocket>

VirtualProgrammer::VirtualProgrammer(Target& chip, Protocol& protocol, QObject* parent)
    : QObject(parent)
    , m_chip(chip)
    , m_protocol(protocol)
{
    connect(&m_server, &QTcpServer::newConnection, this, &VirtualProgrammer::serveNext);
}

bool VirtualProgrammer::setStateFile(const QString& path, QString& error)
{
    if (QFileInfo::exists(path)) {
        m_savedState = ChipState::load(path, m_chip.shape(), error);
        if (!m_savedState)
            return false;
        m_chip.setState(*m_savedState);
    } else {
        if (!m_chip.state().save(path, m_chip.shape(), error))
            return false;
        m_savedState = m_chip.state();
    }
    m_statePath = path;
    return true;
}

void VirtualProgrammer::rescueChip()
{
    m_chip.rescue();
    saveState();
}

bool VirtualProgrammer::listen(quint16 port)
{
    return m_server.listen(QHostAddress::LocalHost, port);
}

void VirtualProgrammer::serveNext()
{
    if (m_socket || !m_server.hasPendingConnections())
        return;
    m_socket = m_server.nextPendingConnection();
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_socket->setReadBufferSize(m_unplugAfter);
    m_protocol.beginConnection();
    connect(m_socket, &QTcpSocket::readyRead, this, &VirtualProgrammer::onReadyRead);
    // Queued: a connection may be closed from within onReadyRead().
    connect(m_socket, &QTcpSocket::disconnected, this, &VirtualProgrammer::onDisconnected, Qt::QueuedConnection);

    m_socket->skip(qMax<qint64>(0, m_socket->bytesAvailable() - m_protocol.waitingBytes()));
    // What came in while the connection was waiting is not announced any more, and neither is its end.
    if (m_socket->state() == QAbstractSocket::UnconnectedState)
        QMetaObject::invokeMethod(this, &VirtualProgrammer::onDisconnected, Qt::QueuedConnection);
    onReadyRead();
}

void VirtualProgrammer::onReadyRead()
{
    const QByteArray bytes = m_socket->readAll();
    if (m_isSilent)
        return;
    const QByteArray answers = m_protocol.receive(bytes);
    // Saved before the answer goes out: whoever has seen the end of a session finds its result in the file.
    if (!m_chip.isProgramming())
        saveState();
    m_socket->write(answers);

    if (m_unplugAfter > 0) {
        // Never reads beyond the point where the plug comes out. The rest of the page stays unread, and closing a
        // connection with unread bytes resets it: avrdude waits for ever where one is closed in an orderly way.
        const int bytesLeft = m_unplugAfter - m_protocol.flashBytesReceived();
        if (bytesLeft > 0)
            m_socket->setReadBufferSize(bytesLeft);
        else
            m_socket->abort();
    }
}

void VirtualProgrammer::onDisconnected()
{
    m_chip.leaveProgramming();
    saveState();
    m_socket->deleteLater();
    m_socket = nullptr;
    serveNext();
}

void VirtualProgrammer::saveState()
{
    if (!m_savedState || *m_savedState == m_chip.state())
        return;
    QString error;
    if (m_chip.state().save(m_statePath, m_chip.shape(), error))
        m_savedState = m_chip.state();
    else
        qCritical("%s", qUtf8Printable(error));
}
