#pragma once

#include "shellcommand.h"

#include <kdQCore/nKaldoranProducts>

#include <QCoreApplication>

class IpcPeer;

/// The commands "ipc ...": two shells greet each other over a local socket and exchange a text.
class IpcCommands {
    Q_DECLARE_TR_FUNCTIONS(IpcCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool listen(ShellCall& call);
    static bool greet(ShellCall& call);

    static bool readProduct(const ShellCall& call, nKaldoranProducts::e_Product& product);
    static bool checkSeconds(const ShellCall& call, int seconds);
    static void serve(const ShellCall& call, IpcPeer& peer);
};
