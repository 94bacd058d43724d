#pragma once

#include "platform.h"
#include "socketexchange_p.h"

#include <QAbstractSocket>

#include <chrono>
#include <functional>

/// What a coTcpSocket has received and nobody has read yet, and the state of its connection.
///
/// Who waits here receives by himself, on a descriptor of his own, and goes on receiving while he comes back
/// often: waking up another thread, which then wakes him, would cost more than all the rest. At other times
/// the worker thread receives; it asks by claim(), so that the bytes keep their order. Finding the end of the
/// connection is left to the worker.
class SocketInbox {
public:
    /// \a callWorker makes the worker receive again, where it had to stop because there was no room or left
    /// that to callers. While someone \a hasListener of what arrives, it leaves nothing to them.
    SocketInbox(std::function<void()> callWorker, std::function<bool()> hasListener);

    /// Lets callers receive from the socket. Where the system gives no second descriptor the worker does it
    /// all.
    void attach(qintptr socket);
    /// Before the socket is closed.
    void detach();

    /// Whether the worker may receive. Then it does, puts in what it got and calls release().
    bool claim();
    void release();
    /// How long callers must have stayed away before claim() succeeds.
    static constexpr int patience = 10; // ms
    /// True where a caller waits here: the worker is called when he leaves.
    bool promiseCall();

    /// How many bytes the worker may put in.
    qint64 room() const;
    /// \a isMoreThere: the worker had to leave bytes behind.
    void put(QByteArray&& bytes, bool isMoreThere);
    void clear();
    /// \a fault is what a read ends with once the connection has ended.
    void setState(QAbstractSocket::SocketState state, SocketReply&& fault);
    /// Ends a pending read and refuses later ones.
    void close();

    /// Receives what has come meanwhile.
    void update();
    QAbstractSocket::SocketState state() const;
    qint64 size();
    bool hasLine();

    /// These wait where there is nothing, for \a timeout milliseconds or until the connection ends. Nothing
    /// after close().
    std::optional<SocketReply> read(qint64 maxSize, int timeout);
    std::optional<SocketReply> readLine(int timeout);

private:
    using Clock = std::chrono::steady_clock;
    using Lock = std::unique_lock<std::mutex>;

    /// Takes as many bytes as \a count() says, once that is more than none; up to \a limit may come in
    /// meanwhile.
    template <typename Count>
    std::optional<SocketReply> take(int timeout, qint64 limit, const Count& count);
    template <typename Count>
    int waitFor(Lock& lock, int timeout, const Count& count);
    void sleep(Lock& lock, Clock::time_point end);
    void leave();
    void wake();
    bool isReceivable() const;
    bool receive();
    void leaveEndToWorker();
    void append(QByteArray&& bytes);
    qint64 spare() const { return qMax<qint64>(0, m_limit - available()); }
    int available() const { return m_bytes.size() - m_begin; }
    int lineLength();
    QByteArray taken(int count);
    void drop();
    bool hasEnded() const;
    void makeUseOfRoom() const;

    const std::function<void()> m_callWorker;
    const std::function<bool()> m_hasListener;
    mutable std::mutex m_mutex;
    std::condition_variable m_condition;
    nPlatform::SocketTwin m_twin;
    nPlatform::SocketBell m_bell;
    QByteArray m_bytes;
    int m_begin = 0;    ///< of what was not read yet
    int m_searched = 0; ///< no line ends before this
    qint64 m_limit;
    bool m_isMoreThere = false;
    bool m_isClaimed = false;
    bool m_isPolled = false;      ///< a caller sleeps at the bell, not at the condition
    bool m_isEndSeen = false;     ///< the worker is to find out
    bool m_isWorkerDue = false;   ///< when the caller leaves
    Clock::time_point m_received; ///< by a caller
    bool m_isClosing = false;
    QAbstractSocket::SocketState m_state = QAbstractSocket::UnconnectedState;
    SocketReply m_fault;
};
