#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "parameter ...": named formulas that use each other.
class ParameterCommands {
    Q_DECLARE_TR_FUNCTIONS(ParameterCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool define(ShellCall& call);
    static bool list(ShellCall& call);
    static bool value(ShellCall& call);
    static bool remove(ShellCall& call);

    static bool exists(const ShellCall& call, const QString& name);
};
