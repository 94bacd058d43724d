#include "cosntpclient.h"

#include <QtEndian>
#include <QUdpSocket>

namespace {

constexpr quint16 standardPort = 123;
constexpr int packetSize = 48;
constexpr int transmitTimeOffset = 40;
constexpr int defaultTimeout = 30000; // ms
constexpr qint64 secondsFrom1900To1970 = 2208988800;
constexpr int firstCredibleYear = 2016;

QByteArray query()
{
    QByteArray packet(packetSize, '\0');
    packet[0] = '\xE3'; // clock not synchronised, version 4, client
    packet[2] = '\x06'; // asks every 2^6 s
    packet[3] = '\xEC'; // precision of 2^-20 s
    packet.replace(12, 4, "1N14");
    return packet;
}

} // namespace

coSntpClient::coSntpClient() : coSntpClient(QStringLiteral("pool.ntp.org"), standardPort) { }

coSntpClient::coSntpClient(const QString& server, quint16 port) : m_server(server), m_port(port) { }

bool coSntpClient::update(int timeoutMs)
{
    const int timeout = timeoutMs < 0 ? defaultTimeout : timeoutMs;
    QUdpSocket socket;
    socket.connectToHost(m_server, m_port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
    if (!socket.waitForConnected(timeout) || !writeQuery(socket) || !socket.waitForReadyRead(timeout))
        return fail(socket.errorString());
    return readResponse(socket);
}

bool coSntpClient::writeQuery(QUdpSocket& socket)
{
    return socket.write(query()) == packetSize;
}

bool coSntpClient::readResponse(QUdpSocket& socket)
{
    // Extensions may follow. Some systems report a datagram that does not fit as an error.
    char packet[1024];
    if (socket.readDatagram(packet, sizeof packet) < packetSize)
        return fail(socket.errorString());
    const qint64 seconds = qFromBigEndian<quint32>(packet + transmitTimeOffset);
    m_dateTime = QDateTime::fromMSecsSinceEpoch((seconds - secondsFrom1900To1970) * 1000, Qt::UTC);
    if (!m_dateTime.isValid() || m_dateTime.date().year() < firstCredibleYear)
        return fail(tr("Invalid date."));
    return true;
}

bool coSntpClient::fail(const QString& text)
{
    m_errorString = text;
    return false;
}
