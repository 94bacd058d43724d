#pragma once

#include "socketexchange_p.h"

#include <QAbstractSocket>

#include <functional>

/// What a coTcpSocket has received and nobody has read yet, and the state of its connection. The worker
/// thread puts in what arrives; callers take it out, and sleep here until there is something to take. No
/// request has to be handed over for it.
class SocketInbox {
public:
    /// \a askForMore lets the worker go on where it had to stop because there was no room.
    explicit SocketInbox(std::function<void()> askForMore);

    /// How many bytes the worker may put in.
    qint64 room() const;
    /// \a isMoreThere: the worker had to leave bytes behind.
    void put(QByteArray&& bytes, bool isMoreThere);
    void clear();
    /// \a fault is what a read ends with once the connection has ended.
    void setState(QAbstractSocket::SocketState state, SocketReply&& fault);
    /// Ends a pending read and refuses later ones.
    void close();

    QAbstractSocket::SocketState state() const;
    qint64 size() const;
    bool hasLine();

    /// These wait where there is nothing, for \a timeout milliseconds or until the connection ends. Nothing
    /// after close().
    std::optional<SocketReply> read(qint64 maxSize, int timeout);
    std::optional<SocketReply> readLine(int timeout);

private:
    /// Takes as many bytes as \a count() says, once that is more than none; up to \a limit may come in
    /// meanwhile.
    template <typename Count>
    std::optional<SocketReply> take(int timeout, qint64 limit, const Count& count);
    int available() const { return m_bytes.size() - m_begin; }
    int lineLength();
    QByteArray taken(int count);
    void drop();
    bool hasEnded() const;
    void makeUseOfRoom() const;

    const std::function<void()> m_askForMore;
    mutable std::mutex m_mutex;
    std::condition_variable m_condition;
    QByteArray m_bytes;
    int m_begin = 0;    ///< of what was not read yet
    int m_searched = 0; ///< no line ends before this
    qint64 m_limit;
    bool m_isMoreThere = false;
    bool m_isClosing = false;
    QAbstractSocket::SocketState m_state = QAbstractSocket::UnconnectedState;
    SocketReply m_fault;
};
