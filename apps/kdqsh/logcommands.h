#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "log ...": the debug log of this run.
class LogCommands {
    Q_DECLARE_TR_FUNCTIONS(LogCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool path(ShellCall& call);
    static bool echo(ShellCall& call);
    static bool write(ShellCall& call);
    static bool flush(ShellCall& call);
};
