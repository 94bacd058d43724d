#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "lock ...": who may write in a project folder.
class LockCommands {
    Q_DECLARE_TR_FUNCTIONS(LockCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool take(ShellCall& call);
    static bool hold(ShellCall& call);
    static bool show(ShellCall& call);
    static bool release(ShellCall& call);
    static bool breakStale(ShellCall& call);
};
