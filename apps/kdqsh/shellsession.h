#pragma once

#include "shelldeck.h"
#include "shellformulas.h"
#include "shelllocks.h"
#include "shellprocesses.h"
#include "shellsockets.h"
#include "shelltables.h"

/// What the commands of one run work on. Made once, in main; commands reach it through I(), as the
/// dispatcher's factories cannot carry it.
class ShellSession {
public:
    ShellSession();
    ~ShellSession();
    ShellSession(const ShellSession&) = delete;
    ShellSession& operator=(const ShellSession&) = delete;

    static ShellSession& I();

    ShellTables tables;
    ShellFormulas parameters;
    ShellLocks locks;
    ShellProcesses processes;
    ShellDeck deck;
    std::unique_ptr<ShellSocket> lines;  ///< of the commands "tcp"; null without a connection
    std::unique_ptr<ShellSocket> remote; ///< to a remote shell; null without one

    void setScriptFolder(const QString& folder) { m_scriptFolder = folder; }
    /// A file to read is looked for in the working directory, then beside the script.
    QString inputPath(const QString& path) const;

    void setSettingsFile(const QString& path) { m_settingsFile = path; }
    /// Where the user's choices are kept from run to run.
    QString settingsFile() const { return m_settingsFile; }

private:
    QString m_scriptFolder;
    QString m_settingsFile;
};
