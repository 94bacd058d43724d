#include "lockrecord_p.h"

#include <cstdlib>

/// Any bytes as the record in a lock file.
extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    const QByteArray record(reinterpret_cast<const char*>(data), static_cast<int>(size));
    coSysLockFile::Info info;
    if (!lockRecord::read(record, info))
        return 0;
    if (!record.endsWith('\n') || !record.contains("PID="))
        abort();
    const int length = info.hostName.size() + info.userName.size() + info.processName.size()
        + info.processStartTime.size() + info.applicationName.size();
    if (length > record.size())
        abort();
    lockRecord::isOfThisHost(info);
    lockRecord::isOwnerRunning(info);

    // The part of a record that ends before its process id is none.
    coSysLockFile::Info partial;
    if (lockRecord::read(record.left(record.indexOf("PID=")), partial))
        abort();
    return 0;
}
