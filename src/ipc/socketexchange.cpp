#include "socketexchange_p.h"

#include <chrono>
#include <thread>

namespace {

// About one wake-up of a thread: a caller that goes on takes less from a reply to its next request.
constexpr std::chrono::microseconds moment{15};

} // namespace

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

void SocketExchange::reply(SocketReply&& reply, Next next)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_reply = std::move(reply);
        m_isPosted.store(false, std::memory_order_relaxed);
    }
    m_condition.notify_all();
    if (next == Soon)
        awaitNextRequest();
}

void SocketExchange::awaitNextRequest() const
{
    const auto end = std::chrono::steady_clock::now() + moment;
    while (!m_isPosted.load(std::memory_order_relaxed) && std::chrono::steady_clock::now() < end)
        std::this_thread::yield();
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
