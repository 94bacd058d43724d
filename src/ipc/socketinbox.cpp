#include "socketinbox_p.h"

namespace {

/// A peer that sends faster than anyone reads must not fill the memory.
constexpr qint64 readAhead = 15 * 1024 * 1024;

/// A line that is waited for may be longer; this much an array holds on every system.
constexpr qint64 longestLine = 1024 * 1024 * 1024;

/// The most that a caller receives at once.
constexpr qint64 chunk = 1024 * 1024;

} // namespace

SocketInbox::SocketInbox(std::function<void()> callWorker, std::function<bool()> hasListener)
    : m_callWorker(std::move(callWorker)), m_hasListener(std::move(hasListener)), m_limit(readAhead)
{
}

void SocketInbox::attach(qintptr socket)
{
    const Lock lock(m_mutex);
    if (m_bell.isUsable())
        m_twin.open(socket);
    m_isEndSeen = false;
    m_received = Clock::time_point();
}

/// A number that someone still sleeps at may not be given away.
void SocketInbox::detach()
{
    Lock lock(m_mutex);
    wake();
    m_condition.wait(lock, [this] { return !m_isPolled; });
    m_twin.close();
}

bool SocketInbox::claim()
{
    const Lock lock(m_mutex);
    const bool isLeftToCallers =
        m_isPolled || Clock::now() - m_received < std::chrono::milliseconds(patience);
    m_isClaimed = !isLeftToCallers || m_isEndSeen || m_hasListener();
    return m_isClaimed;
}

void SocketInbox::release()
{
    const Lock lock(m_mutex);
    m_isClaimed = m_isEndSeen = false;
    wake();
}

bool SocketInbox::promiseCall()
{
    const Lock lock(m_mutex);
    m_isWorkerDue = m_isPolled;
    return m_isPolled;
}

qint64 SocketInbox::room() const
{
    const Lock lock(m_mutex);
    return spare();
}

void SocketInbox::put(QByteArray&& bytes, bool isMoreThere)
{
    const Lock lock(m_mutex);
    append(std::move(bytes));
    m_isMoreThere = isMoreThere;
    wake();
}

void SocketInbox::clear()
{
    const Lock lock(m_mutex);
    drop();
    m_isMoreThere = false;
}

void SocketInbox::setState(QAbstractSocket::SocketState state, SocketReply&& fault)
{
    const Lock lock(m_mutex);
    m_state = state;
    m_fault = std::move(fault);
    wake();
}

void SocketInbox::close()
{
    const Lock lock(m_mutex);
    m_isClosing = true;
    wake();
}

/// All of it: a request that ends the connection may follow.
void SocketInbox::update()
{
    const Lock lock(m_mutex);
    while (receive()) { }
}

QAbstractSocket::SocketState SocketInbox::state() const
{
    const Lock lock(m_mutex);
    return m_state;
}

qint64 SocketInbox::size()
{
    update();
    const Lock lock(m_mutex);
    return available();
}

bool SocketInbox::hasLine()
{
    update();
    const Lock lock(m_mutex);
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
    Lock lock(m_mutex);
    int found = count();
    if (found == 0 && receive())
        found = count();
    if (found == 0) {
        m_limit = limit;
        found = waitFor(lock, timeout, count);
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

template <typename Count>
int SocketInbox::waitFor(Lock& lock, int timeout, const Count& count)
{
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(timeout);
    int found = 0;
    for (;;) {
        makeUseOfRoom(); // each time: the worker may just have stopped at the old limit
        if (hasEnded() || m_isClosing || Clock::now() >= end)
            break;
        sleep(lock, end);
        found = count();
        if (found > 0)
            break;
    }
    leave();
    return found;
}

/// Until \a end at the latest.
void SocketInbox::sleep(Lock& lock, Clock::time_point end)
{
    if (!isReceivable()) {
        m_condition.wait_until(lock, end);
        return;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
    m_isPolled = true;
    lock.unlock();
    const bool isReady = m_bell.wait(m_twin, int(left));
    lock.lock();
    m_isPolled = false;
    m_condition.notify_all(); // the worker may wait to detach
    if (!receive() && isReady)
        leaveEndToWorker();
}

void SocketInbox::leaveEndToWorker()
{
    m_isEndSeen = true;
    m_callWorker();
}

void SocketInbox::leave()
{
    if (std::exchange(m_isWorkerDue, false))
        m_callWorker();
}

void SocketInbox::wake()
{
    if (m_isPolled)
        m_bell.ring();
    else
        m_condition.notify_all();
}

/// What the worker has taken off the connection, or is about to, comes first.
bool SocketInbox::isReceivable() const
{
    return m_twin.isOpen() && !m_isClaimed && !m_isMoreThere && !m_isEndSeen && spare() > 0
        && !m_hasListener();
}

/// What is there, as far as there is room. False where that is nothing.
bool SocketInbox::receive()
{
    QByteArray bytes = isReceivable() ? m_twin.receive(int(qMin(spare(), chunk))) : QByteArray();
    if (bytes.isEmpty())
        return false;
    append(std::move(bytes));
    m_received = Clock::now();
    return true;
}

void SocketInbox::append(QByteArray&& bytes)
{
    if (m_begin > available()) { // seldom enough to cost nothing
        m_bytes.remove(0, m_begin);
        m_searched -= std::exchange(m_begin, 0);
    }
    if (m_bytes.isEmpty())
        m_bytes = std::move(bytes); // nobody else keeps a share in them
    else
        m_bytes += bytes;
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
    QByteArray bytes = m_bytes.mid(m_begin, count); // no copy where it is all
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
        m_callWorker();
}
