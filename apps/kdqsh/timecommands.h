#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "time ...".
class TimeCommands {
    Q_DECLARE_TR_FUNCTIONS(TimeCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool ask(ShellCall& call);
};
