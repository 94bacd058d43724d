#include "socketoutlet_p.h"

void SocketOutlet::open(qintptr descriptor)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_twin.isOpen())
        m_twin.open(descriptor);
}

void SocketOutlet::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_twin.close();
}

int SocketOutlet::send(const QByteArray& bytes) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_twin.send(bytes.constData(), bytes.size());
}
