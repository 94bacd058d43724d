#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

class coSntpClient;

/// The commands "time ...".
class TimeCommands {
    Q_DECLARE_TR_FUNCTIONS(TimeCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool ask(ShellCall& call);
    static bool exchange(const ShellCall& call, coSntpClient& client, int timeout, QString& error);
};
