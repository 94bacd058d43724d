#pragma once

#include "shellconsole.h"
#include "shelllineparser.h"

#include <kdQCore/kdCommand>

#include <QCoreApplication>
#include <QSharedPointer>
#include <QStringList>

class LineSource;

/// Reads statements, runs its own words (undo, redo, help, history, quit) and hands all others to the command
/// dispatcher, one by one. Commands that change nothing are run aside, so that undo goes past them.
class Shell {
    Q_DECLARE_TR_FUNCTIONS(Shell)

public:
    /// With \a keepsGoing a failed command does not end the run.
    Shell(ShellConsole& console, bool keepsGoing) : m_console(console), m_keepsGoing(keepsGoing) { }

    /// Runs until the source ends, "quit", or a failure that ends it. True where nothing failed.
    bool run(LineSource& source);

    /// The shell's own words.
    static QStringList words();

private:
    bool runLine(const QString& line);
    bool runStatement(const ShellStatement& statement);
    bool runOwnWord(const ShellStatement& statement, bool& isOwn);
    bool runCommand(const ShellStatement& statement);
    bool takesNothing(const ShellStatement& statement);
    bool undo();
    bool redo();
    void showResult(const kdCommand& command, int level);
    /// Opens the error lines from here on.
    void setPlace(int line, const QString& command = QString());

    ShellConsole& m_console;
    ShellLineParser m_parser;
    QString m_sourceName;
    QStringList m_history;
    bool m_keepsGoing;
    bool m_isQuitting = false;
};
