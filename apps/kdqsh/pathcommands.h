#pragma once

#include "shellcommand.h"

#include <kdQCore/coProductType>

#include <QCoreApplication>

class coVersionNumber;

/// The commands "paths ...": the installation that the shell belongs to.
class PathCommands {
    Q_DECLARE_TR_FUNCTIONS(PathCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool list(ShellCall& call);
    static bool show(ShellCall& call);
    static bool set(ShellCall& call);
    static bool reset(ShellCall& call);
    static bool forget(ShellCall& call);

    static bool application(ShellCall& call);
    static bool executables(ShellCall& call);
    static bool executable(ShellCall& call);
    static bool store(ShellCall& call);
    static bool remove(ShellCall& call);

    static bool change(const ShellCall& call, const QString& path);
    static bool readProduct(const ShellCall& call, coProductType& product);
    static bool readVersion(const ShellCall& call, coVersionNumber& version);
    static QString originText(int origin);
};
