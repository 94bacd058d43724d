#include "cotcpsocket.h"
#include "socketexchange_p.h"

SocketReply SocketReply::done(const QVariant& result)
{
    SocketReply reply;
    reply.success = true;
    reply.result = result;
    return reply;
}

SocketReply SocketReply::failed(int errorCode, const QString& errorString)
{
    SocketReply reply;
    reply.errorCode = errorCode;
    reply.errorString = errorString;
    return reply;
}

SocketReply SocketReply::timedOut()
{
    return failed(QAbstractSocket::SocketTimeoutError, coTcpSocket::tr("Operation timed out."));
}

bool SocketExchange::enter()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isClosing)
        return false;
    ++m_callers;
    return true;
}

void SocketExchange::leave()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    --m_callers;
    if (m_isClosing)
        m_condition.notify_all();
}

void SocketExchange::close()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_isClosing = true;
    m_condition.notify_all();
    m_condition.wait(lock, [this] { return m_callers == 0; });
}

void SocketExchange::reply(SocketReply&& reply)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_reply = std::move(reply);
    }
    m_condition.notify_all();
}

int SocketExchange::timeout() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_timeout;
}

void SocketExchange::setTimeout(int milliseconds)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_timeout = milliseconds < 0 ? defaultTimeout : milliseconds;
}
