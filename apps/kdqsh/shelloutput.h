#pragma once

#include "shellcall.h"

#include <QIODevice>

class kdDataTable;

/// Files that commands write: whole or not at all. A file is written beside its final place and takes it in
/// the end, so neither Ctrl-C nor a full disk costs the one that was there; devices and pipes are written as
/// they are.
namespace nShellOutput {

using Write = std::function<bool(QIODevice& device)>;
using WriteTable = std::function<bool(const kdDataTable& table, QIODevice& device)>;

/// Reports what failed; shows how much of \a expectedSize has been written.
bool write(const ShellCall& call, const QString& path, qint64 expectedSize, const Write& write);

/// As above; \a write gives the table its form.
bool write(const ShellCall& call, const QString& path, const kdDataTable& table, const WriteTable& write);

} // namespace nShellOutput
