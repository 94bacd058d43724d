#include "platform.h"

namespace nPlatform {

bool ExclusiveFile::succeed()
{
    m_failure = Failure::None;
    m_errorCode = 0;
    return true;
}

bool ExclusiveFile::fail(Failure failure, unsigned long errorCode)
{
    m_failure = failure;
    m_errorCode = errorCode;
    return false;
}

void MappedFile::fail(Failure failure, unsigned long errorCode)
{
    m_failure = failure;
    m_errorCode = errorCode;
}

} // namespace nPlatform
