#include "socketinbox_p.h"

#include <chrono>

namespace {

/// A peer that sends faster than anyone reads must not fill the memory.
constexpr qint64 readAhead = 15 * 1024 * 1024;

/// A line that is waited for may be longer; this much an array holds on every system.
constexpr qint64 longestLine = 1024 * 1024 * 1024;

} // namespace

SocketInbox::SocketInbox(std::function<void()> askForMore)
    : m_askForMore(std::move(askForMore)), m_limit(readAhead)
{
}

qint64 SocketInbox::room() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return qMax<qint64>(0, m_limit - available());
}

void SocketInbox::put(QByteArray&& bytes, bool isMoreThere)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_begin > available()) { // seldom enough to cost nothing
            m_bytes.remove(0, m_begin);
            m_searched -= std::exchange(m_begin, 0);
        }
        if (m_bytes.isEmpty())
            m_bytes = std::move(bytes); // the worker keeps no share in them
        else
            m_bytes += bytes;
        m_isMoreThere = isMoreThere;
    }
    m_condition.notify_all();
}

void SocketInbox::clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    drop();
    m_isMoreThere = false;
}

void SocketInbox::setState(QAbstractSocket::SocketState state, SocketReply&& fault)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state = state;
        m_fault = std::move(fault);
    }
    m_condition.notify_all();
}

void SocketInbox::close()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isClosing = true;
    }
    m_condition.notify_all();
}

QAbstractSocket::SocketState SocketInbox::state() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state;
}

qint64 SocketInbox::size() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return available();
}

bool SocketInbox::hasLine()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return lineLength() > 0;
}

std::optional<SocketReply> SocketInbox::read(qint64 maxSize, int timeout)
{
    return take(timeout, readAhead,
                [=] { return maxSize > 0 ? int(qMin<qint64>(maxSize, available())) : available(); });
}

std::optional<SocketReply> SocketInbox::readLine(int timeout)
{
    return take(timeout, longestLine, [this] { return lineLength(); });
}

template <typename Count>
std::optional<SocketReply> SocketInbox::take(int timeout, qint64 limit, const Count& count)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    int found = count();
    if (found == 0) {
        m_limit = limit;
        m_condition.wait_for(lock, std::chrono::milliseconds(timeout), [&] {
            found = count();
            if (found == 0)
                makeUseOfRoom(); // each time: the worker may just have stopped at the old limit
            return found > 0 || hasEnded() || m_isClosing;
        });
        m_limit = readAhead;
    }
    if (found == 0 && m_isClosing)
        return std::nullopt;
    if (found == 0)
        return hasEnded() ? m_fault : SocketReply::timedOut();
    SocketReply reply = SocketReply::done();
    reply.data = taken(found);
    makeUseOfRoom();
    return reply;
}

/// With its line feed; 0 where none has come. No byte is looked at twice.
int SocketInbox::lineLength()
{
    const int end = m_bytes.indexOf('\n', m_searched);
    m_searched = end < 0 ? m_bytes.size() : end;
    return end < 0 ? 0 : end + 1 - m_begin;
}

QByteArray SocketInbox::taken(int count)
{
    const QByteArray bytes = m_bytes.mid(m_begin, count); // no copy where it is all
    m_begin += count;
    m_searched = qMax(m_searched, m_begin);
    if (available() == 0)
        drop();
    return bytes;
}

void SocketInbox::drop()
{
    m_bytes.clear();
    m_begin = m_searched = 0;
}

bool SocketInbox::hasEnded() const
{
    return m_state == QAbstractSocket::UnconnectedState && !m_isMoreThere;
}

/// Not for the room of every single line: waking the worker up is dear.
void SocketInbox::makeUseOfRoom() const
{
    if (m_isMoreThere && available() <= m_limit / 2)
        m_askForMore();
}
