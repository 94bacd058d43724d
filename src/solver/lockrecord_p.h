#pragma once

#include <kdQCore/coSysLockFile>

/// The owner's record in a lock file: lines of key "=" value in UTF-8.
namespace lockRecord {

/// No record is longer, in bytes.
constexpr int maximalSize = 8192;

/// The record of this process. The process id stands last, so that no part of a record passes for the whole.
QByteArray ofThisProcess();

/// False for a half-written record: one without the end of its last line, or without a process id.
bool read(const QByteArray& record, coSysLockFile::Info& info);

/// Whether the owner's machine is this one, so that its process can be looked at.
bool isOfThisHost(const coSysLockFile::Info& info);

/// Whether the owner still runs on this machine: the same program, started at the same time.
bool isOwnerRunning(const coSysLockFile::Info& info);

} // namespace lockRecord
