#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

class RemoteLink;

/// The commands "remote ...": one shell runs commands in another.
class RemoteCommands {
    Q_DECLARE_TR_FUNCTIONS(RemoteCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool serve(ShellCall& call);
    static bool connect(ShellCall& call);
    static bool run(ShellCall& call);
    static bool close(ShellCall& call);

    static bool isConnected(const ShellCall& call);
    static bool showAnswers(const ShellCall& call, RemoteLink& link);
    static bool lost(const ShellCall& call, const RemoteLink& link);
};
