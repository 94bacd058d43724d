#include "viewcommand.h"

#include "editcommands.h"
#include "filecommands.h"

#include <kdQCore/kdCommandDispatcher>

namespace {

template <typename Command>
QSharedPointer<kdCommand> make(const QString& parameter)
{
    return QSharedPointer<Command>::create(parameter);
}

} // namespace

void ViewCommand::registerAll()
{
    kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
    dispatcher.registerCommand(&make<OpenCommand>);
    dispatcher.registerCommand(&make<CloseCommand>);
    dispatcher.registerCommand(&make<SetValueCommand>);
    dispatcher.registerCommand(&make<InsertRowCommand>);
    dispatcher.registerCommand(&make<RemoveRowsCommand>);
    dispatcher.registerCommand(&make<UnitCommand>);
}

bool ViewCommand::fail(const QString& errorText) const
{
    errorMessage(errorText);
    return false;
}
