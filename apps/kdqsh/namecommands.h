#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "name ...": display and internal names that keep the rules and are not taken.
class NameCommands {
    Q_DECLARE_TR_FUNCTIONS(NameCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool internal(ShellCall& call);
    static bool unique(ShellCall& call);
    static bool check(ShellCall& call);
    static bool number(ShellCall& call);

    static bool readKind(const ShellCall& call, bool& isInternal);
};
