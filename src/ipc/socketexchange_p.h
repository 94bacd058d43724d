#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <condition_variable>
#include <mutex>
#include <optional>

/// What a request to a coTcpSocket comes to.
struct SocketReply {
    bool success = false;
    int errorCode = -1; ///< a QAbstractSocket::SocketError
    QString errorString;
    QByteArray data;
    QVariant result;

    static SocketReply done(const QVariant& result = QVariant());
    static SocketReply failed(int errorCode, const QString& errorString);
    static SocketReply timedOut();
};

/// The hand-over of one request at a time from a caller to the worker thread and of the reply back.
class SocketExchange {
public:
    static constexpr int defaultTimeout = 60000; // ms

    /// Counts a caller in; false once close() was called.
    bool enter();
    void leave();
    /// Ends the pending call, refuses later ones and returns when all callers have left.
    void close();

    /// Posts a request and sleeps until its reply is there; nothing where close() came first. The lock is
    /// held from before the request is posted: the worker cannot answer a caller that does not yet listen.
    template <typename Post>
    std::optional<SocketReply> call(const Post& post)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_reply.reset();
        post();
        m_condition.wait(lock, [this] { return m_reply || m_isClosing; });
        return std::exchange(m_reply, std::nullopt);
    }

    /// Ends the pending call.
    void reply(SocketReply&& reply);

    /// Posts what needs no reply.
    template <typename Post>
    void tell(const Post& post) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        post();
    }

    /// Takes and gives the lock. What one thread did before it is seen by the one that passes later; without
    /// it, tools that do not see the locks inside Qt would take these for races.
    void pass() const { const std::lock_guard<std::mutex> lock(m_mutex); }

    int timeout() const;
    void setTimeout(int milliseconds);

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_condition;
    std::optional<SocketReply> m_reply;
    int m_timeout = defaultTimeout;
    int m_callers = 0;
    bool m_isClosing = false;
};
