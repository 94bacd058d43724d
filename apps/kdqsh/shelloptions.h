#pragma once

#include "shellconsole.h"

#include <QCoreApplication>
#include <QStringList>

/// What the command line asks of the shell.
struct ShellOptions {
    Q_DECLARE_TR_FUNCTIONS(ShellOptions)

public:
    enum Source { Prompt, StandardInput, CommandText, ScriptFile };
    enum Outcome { Run, ShowText, Refuse };

    Source source = StandardInput;
    QString commands;        ///< of CommandText
    QString scriptFile;      ///< of ScriptFile
    bool keepsGoing = false; ///< goes on after a command that failed
    bool isQuiet = false;    ///< shows errors and asked-for results only
    ShellConsole::Colours colours = ShellConsole::OnTerminals;

    QString text; ///< help, version, or why the command line is refused

    /// Reads the arguments, the program's name first. \a isInteractive tells that a person types into
    /// standard input, which then is the source where nothing else is named.
    Outcome parse(const QStringList& arguments, bool isInteractive);

private:
    Outcome refuse(const QString& reason);
    // False, and text says why.
    bool readColours(const QString& word);
    bool readSource(const QStringList& scripts, const QStringList& commandTexts, bool isInteractive);
};
