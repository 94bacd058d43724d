#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "tcp ...": signed lines to and from another process.
class TcpCommands {
    Q_DECLARE_TR_FUNCTIONS(TcpCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool serve(ShellCall& call);
    static bool connect(ShellCall& call);
    static bool send(ShellCall& call);
    static bool receive(ShellCall& call);
    static bool close(ShellCall& call);

    static bool isConnected(const ShellCall& call);
    static bool isLatin1(const ShellCall& call, const QString& text);
};
