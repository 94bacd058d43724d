// Undo: several steps in one, menus that follow, a command that can be stopped.
#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdDebugLog>
#include <kdQCore/streamReporter>

#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>

QTextStream out(stdout);
QStringList project; // what the commands work on

class Add : public kdCommand {
public:
    using kdCommand::kdCommand;
    QString name() const override { return "add"; }
    bool allowUndo() override { return true; }
    bool execute() override
    {
        if (parameter().isEmpty()) {
            errorMessage(tr("A name is expected"));
            return false;
        }
        project.append(parameter());
        setResult(tr("There are %1").arg(project.size()));
        return true;
    }
    bool undo() override
    {
        project.removeLast();
        return true;
    }
};

/// Many changes that are taken back in one step: keep what was there before.
class Clear : public kdCommand {
public:
    using kdCommand::kdCommand;
    QString name() const override { return "clear"; }
    bool allowUndo() override { return true; }
    bool execute() override
    {
        m_former = project;
        project.clear();
        return true;
    }
    bool undo() override
    {
        project = m_former;
        return true;
    }

private:
    QStringList m_former;
};

/// A command that works long: it says that it may be stopped, and looks whether it shall.
class Count : public kdCommand {
public:
    using kdCommand::kdCommand;
    QString name() const override { return "count"; }
    bool allowStop() override { return true; }
    bool execute() override
    {
        for (int i = 0; i < 1000000; ++i) {
            if (i == 500)
                kdCommandDispatcher::I().slotStop(); // what a button does while events are processed
            if (stopRequested()) {
                setResult(tr("Stopped at %1").arg(i));
                return false;
            }
        }
        return true;
    }
};

template <typename Command>
QSharedPointer<kdCommand> create(const QString& parameter)
{
    return QSharedPointer<Command>::create(parameter);
}

void connectMenus(kdCommandDispatcher& dispatcher)
{
    QObject::connect(&dispatcher, &kdCommandDispatcher::signalUndoEnabled,
                     [](bool enabled) { out << "[menu: undo " << (enabled ? "on" : "off") << "]\n"; });
    QObject::connect(&dispatcher, &kdCommandDispatcher::signalCommandExecuted,
                     [](const QSharedPointer<kdCommand>& command) {
                         out << command->toString() << ": " << command->result() << "\n";
                     });
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    kdDebugLog::createInstance(argc, argv, false);
    kdCommandDispatcher::createInstance();
    {
        kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
        dispatcher.registerCommand(create<Add>);
        dispatcher.registerCommand(create<Clear>);
        dispatcher.registerCommand(create<Count>);
        streamReporter console(0);
        dispatcher.startReportingTo(console);
        connectMenus(dispatcher);

        dispatcher.execute("add plate; add die; clear");
        dispatcher.slotUndo();
        out << "after undo: " << project.join(", ") << "\n" << Qt::flush;
        dispatcher.execute("add; add punch"); // the first failure ends the line
        out << "still: " << project.join(", ") << "\n";

        const QSharedPointer<kdCommand> count = dispatcher.getCommand("count", QString());
        dispatcher.execute(count);
        out << count->result() << "\n" << Qt::flush;
    }
    kdCommandDispatcher::removeInstance();
    kdDebugLog::removeInstance();
    return 0;
}
