#include "shellgroups.h"

#include "csvcommands.h"
#include "deckcommands.h"
#include "formulacommands.h"
#include "heatcommands.h"
#include "ipccommands.h"
#include "lockcommands.h"
#include "logcommands.h"
#include "namecommands.h"
#include "parametercommands.h"
#include "pathcommands.h"
#include "plotcommands.h"
#include "remotecommands.h"
#include "tablecommands.h"
#include "tcpcommands.h"
#include "timecommands.h"

#include <kdQCore/kdCommandDispatcher>

namespace {

template <const ShellCommandGroup& (*group)()>
QSharedPointer<kdCommand> create(const QString& parameters)
{
    return QSharedPointer<ShellCommand>::create(group(), parameters);
}

} // namespace

const QVector<const ShellCommandGroup*>& nShellGroups::all()
{
    static const QVector<const ShellCommandGroup*> groups{
        &TableCommands::group(), &ParameterCommands::group(), &FormulaCommands::group(),
        &HeatCommands::group(),  &PlotCommands::group(),      &CsvCommands::group(),
        &DeckCommands::group(),  &NameCommands::group(),      &PathCommands::group(),
        &TcpCommands::group(),   &RemoteCommands::group(),    &IpcCommands::group(),
        &TimeCommands::group(),  &LockCommands::group(),      &LogCommands::group()};
    return groups;
}

const ShellCommandGroup* nShellGroups::find(const QString& name)
{
    for (const ShellCommandGroup* group : all())
        if (name == QLatin1String(group->name))
            return group;
    return nullptr;
}

void nShellGroups::registerCommands()
{
    kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
    dispatcher.registerCommand(create<TableCommands::group>);
    dispatcher.registerCommand(create<ParameterCommands::group>);
    dispatcher.registerCommand(create<FormulaCommands::group>);
    dispatcher.registerCommand(create<HeatCommands::group>);
    dispatcher.registerCommand(create<PlotCommands::group>);
    dispatcher.registerCommand(create<CsvCommands::group>);
    dispatcher.registerCommand(create<DeckCommands::group>);
    dispatcher.registerCommand(create<NameCommands::group>);
    dispatcher.registerCommand(create<PathCommands::group>);
    dispatcher.registerCommand(create<TcpCommands::group>);
    dispatcher.registerCommand(create<RemoteCommands::group>);
    dispatcher.registerCommand(create<IpcCommands::group>);
    dispatcher.registerCommand(create<TimeCommands::group>);
    dispatcher.registerCommand(create<LockCommands::group>);
    dispatcher.registerCommand(create<LogCommands::group>);
}
