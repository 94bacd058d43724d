#include "stdiodevice_p.h"

StdioDevice::StdioDevice(std::FILE* file) : m_file(file)
{
    open(WriteOnly | Unbuffered);
}

StdioDevice::~StdioDevice()
{
    flushPending();
}

bool StdioDevice::flush()
{
    m_isPending = false;
    return std::fflush(m_file) == 0 && std::ferror(m_file) == 0;
}

void StdioDevice::flushPending()
{
    if (m_isPending)
        flush();
}

qint64 StdioDevice::readData(char*, qint64)
{
    return -1;
}

qint64 StdioDevice::writeData(const char* data, qint64 size)
{
    m_isPending = true;
    const std::size_t count = static_cast<std::size_t>(size);
    return std::fwrite(data, 1, count, m_file) == count ? size : -1;
}
