#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include <atomic>
#include <functional>
#include <future>
#include <thread>

/// A server on loopback, in a thread of its own, whose script talks to one connection after the other. The
/// connection is closed when the script returns.
class ScriptedPeer {
public:
    using Script = std::function<void(QTcpSocket&)>;

    explicit ScriptedPeer(const Script& script, const QHostAddress& address = QHostAddress::LocalHost)
    {
        std::promise<quint16> port;
        std::future<quint16> listening = port.get_future();
        m_thread = std::thread([this, script, address, &port] { serve(script, address, port); });
        m_port = listening.get();
    }

    ~ScriptedPeer()
    {
        m_isEnding = true;
        m_thread.join();
    }

    Q_DISABLE_COPY(ScriptedPeer)

    quint16 port() const { return m_port; }
    bool isEnding() const { return m_isEnding; }

    static bool send(QTcpSocket& socket, const QByteArray& bytes)
    {
        socket.write(bytes);
        while (socket.bytesToWrite() > 0)
            if (!socket.waitForBytesWritten(30000))
                return false;
        return true;
    }

    /// Sends back what comes until the other side closes.
    void echo(QTcpSocket& socket) const
    {
        while (!m_isEnding && socket.state() == QAbstractSocket::ConnectedState)
            if (socket.bytesAvailable() > 0 || socket.waitForReadyRead(50))
                send(socket, socket.readAll());
    }

    /// Says nothing until the other side closes.
    void staySilent(QTcpSocket& socket) const
    {
        while (!m_isEnding && socket.state() == QAbstractSocket::ConnectedState)
            socket.waitForReadyRead(50);
    }

private:
    void serve(const Script& script, const QHostAddress& address, std::promise<quint16>& port)
    {
        QTcpServer server;
        server.listen(address);
        port.set_value(server.serverPort());
        while (!m_isEnding) {
            if (!server.hasPendingConnections() && !server.waitForNewConnection(20))
                continue;
            const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
            script(*socket);
        }
    }

    std::thread m_thread;
    std::atomic<bool> m_isEnding{false};
    quint16 m_port = 0;
};
