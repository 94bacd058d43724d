#pragma once

#include "workspace.h"

#include <kdQCore/kdCommand>

/// A command of the window. Every change of an open document is one, so that each can be undone and could as
/// well come from a script or another process.
class ViewCommand : public kdCommand {
    Q_OBJECT

public:
    using kdCommand::kdCommand;

    /// For the menus, in the user's language: "change value".
    virtual QString text() const = 0;
    bool allowUndo() override { return true; }

    /// Registers all commands with the dispatcher.
    static void registerAll();

protected:
    /// Reports the error; always false.
    bool fail(const QString& errorText) const;
};
