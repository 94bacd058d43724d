#include "shellsession.h"

#include <QDir>

namespace {
ShellSession* session = nullptr;
}

ShellSession::ShellSession()
{
    session = this;
}

ShellSession::~ShellSession()
{
    session = nullptr;
}

ShellSession& ShellSession::I()
{
    Q_ASSERT(session != nullptr);
    return *session;
}

QString ShellSession::inputPath(const QString& path) const
{
    if (m_scriptFolder.isEmpty() || QFile::exists(path))
        return path;
    const QString besideScript = QDir(m_scriptFolder).filePath(path);
    return QFile::exists(besideScript) ? besideScript : path;
}
