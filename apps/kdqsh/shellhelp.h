#pragma once

#include <QStringList>

/// The help texts, made from the tables of commands.
namespace nShellHelp {

/// The help on \a topic: empty for the overview, a command, a group's command ("table import") with its
/// example, or "prompt". False, with one line that says so, where there is none.
bool find(const QString& topic, QStringList& lines);

} // namespace nShellHelp
