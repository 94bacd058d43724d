#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdReporter>

#include <stdexcept>

#define S(text) QStringLiteral(text)

namespace {

int livingCommands = 0;
QStringList events;

/// "set <text>" notes what it does; its parameter steers it: fail, throw, fixed (cannot be undone),
/// stuck (fails to be undone), stop (asks the dispatcher to stop it), nested (executes others), quit.
class SetCommand : public kdCommand {
public:
    explicit SetCommand(const QString& parameter) : kdCommand(parameter) { ++livingCommands; }
    ~SetCommand() override { --livingCommands; }

    QString name() const override { return S("set"); }
    QString helpMessage() const override { return S("Sets a text."); }
    bool allowUndo() override { return !is("fixed"); }
    bool allowStop() override { return is("stop"); }

    bool execute() override
    {
        events.append(S("do ") + parameter());
        if (is("loud"))
            errorMessage(parameter());
        if (is("throw"))
            throw std::runtime_error("out of steam");
        if (is("again"))
            return slotExecute();
        if (is("nested"))
            return kdCommandDispatcher::I().execute(S("set x; set y"));
        if (is("quit"))
            kdCommandDispatcher::removeInstance();
        if (is("stop") || is("unstoppable"))
            return kdCommandDispatcher::I().slotStop() == stopRequested() && !stopRequested();
        setResult(parameter());
        return !is("fail");
    }

    bool undo() override
    {
        events.append(S("undo ") + parameter());
        return !is("stuck");
    }

private:
    bool is(const char* text) const { return parameter() == QLatin1String(text); }
};

QSharedPointer<kdCommand> createSet(const QString& parameters)
{
    return QSharedPointer<SetCommand>::create(parameters);
}

QSharedPointer<kdCommand> createNothing(const QString&)
{
    return {};
}

/// A command that does nothing; one of the name "set" comes later than SetCommand and never has its turn.
QSharedPointer<kdCommand> createPlain(const QString& parameters, const char* name)
{
    auto command = QSharedPointer<kdCommand>::create(parameters);
    command->setObjectName(QLatin1String(name));
    return command;
}

} // namespace

class TestKdCommandDispatcher : public QObject {
    Q_OBJECT

private:
    QScopedPointer<kdReporter> m_reporter;

    static kdCommandDispatcher& dispatcher() { return kdCommandDispatcher::I(); }

    /// Notes the dispatcher's signals among the events.
    void follow()
    {
        const auto note = [](const char* what) {
            return [what](const QSharedPointer<kdCommand>& c) {
                events += QLatin1String(what) + c->parameter();
            };
        };
        const auto noteState = [](const char* what) {
            return [what](bool on) { events += QLatin1String(what) + (on ? S(" on") : S(" off")); };
        };
        connect(&dispatcher(), &kdCommandDispatcher::signalCommandExecuted, note("executed "));
        connect(&dispatcher(), &kdCommandDispatcher::signalCommandReverted, note("reverted "));
        connect(&dispatcher(), &kdCommandDispatcher::signalUndoEnabled, noteState("undo"));
        connect(&dispatcher(), &kdCommandDispatcher::signalRedoEnabled, noteState("redo"));
    }

private Q_SLOTS:
    void init()
    {
        kdCommandDispatcher::createInstance();
        QVERIFY(dispatcher().registerCommand(createNothing));
        QVERIFY(dispatcher().registerCommand(createSet));
        QVERIFY(dispatcher().registerCommand([](const QString& p) { return createPlain(p, "set"); }));
        events.clear();
        m_reporter.reset(new kdReporter);
        connect(m_reporter.data(), &kdReporter::signalErrorMessage,
                [](const QString& text) { events.append(S("error ") + text); });
        dispatcher().startReportingTo(*m_reporter);
        follow();
    }

    void cleanup()
    {
        if (kdCommandDispatcher::created())
            kdCommandDispatcher::removeInstance();
        QCOMPARE(livingCommands, 0);
    }

    void lifeIsLogged()
    {
        LogCapture log;
        kdCommandDispatcher* const first = &dispatcher();
        kdCommandDispatcher::createInstance();
        QCOMPARE(&dispatcher(), first);
        kdCommandDispatcher::removeInstance();
        QVERIFY(!kdCommandDispatcher::created());
        QVERIFY(!dispatcher().execute(S("list")));
        QVERIFY(log.contains(kdLog::Trace, kdLog::Command, S("kdCommandDispatcher removed.")));
        QCOMPARE(log.records().size(), 3);
    }

    void aVeryLongLineNeedsNoDeepStack()
    {
        QVERIFY(dispatcher().execute(S("set a;").repeated(20000)));
        QCOMPARE(livingCommands, 20000);
    }

    /// Steps: "u" undo, "r" redo, anything else is a command line.
    void sequences_data()
    {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QStringList>("expectedEvents");
        const auto row = [](const char* name, const char* steps, const char* expected) {
            QTest::newRow(name) << QString::fromUtf8(steps).split(QLatin1Char('|'))
                                << QString::fromUtf8(expected).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        };
        row("empty", "", "");
        row("semicolons only", " ;; ;", "");
        row("parameters keep their blanks", "set  a  b\tc ", "do a  b\tc|executed a  b\tc|undo on");
        row("blanks around", " ; set a ;\n set b; ", "do a|executed a|undo on|do b|executed b");
        row("stops at the first failure", "set a;set fail;set b", "do a|executed a|undo on|do fail|failed");
        row("unknown", "paint it  %1 %2", "error Unknown command: >paint it  %1 %2<!|failed");
        row("closes the way back", "set a;set fixed|u",
            "do a|executed a|undo on|do fixed|executed fixed|undo off|failed");
        row("nested", "set nested", "do nested|do x|executed x|undo on|do y|executed y|executed nested");
        row("exception", "set throw;set a",
            "do throw|error The command 'set throw' failed: out of steam|failed");
        row("within itself", "set again", "do again|failed");
        row("removes the dispatcher", "set quit; set a", "do quit|failed");
        row("there and back twice", "set a|u|r|u|r",
            "do a|executed a|undo on|undo a|reverted a|undo off|redo on|do a|executed a|undo on|"
            "undo a|reverted a|undo off|redo on|do a|executed a|undo on");
        row("redo takes the one undone last", "set a;set b|u|u|r",
            "do a|executed a|undo on|do b|executed b|undo b|reverted b|undo on|redo on|"
            "undo a|reverted a|undo off|redo on|do a|executed a|undo on");
        row("undo fails", "set stuck|u|u",
            "do stuck|executed stuck|undo on|undo stuck|failed|undo stuck|failed");
        row("new command keeps the redo list", "set a|u|set b|r",
            "do a|executed a|undo on|undo a|reverted a|undo off|redo on|do b|executed b|undo on|do a|"
            "executed a");
    }

    void sequences()
    {
        QFETCH(QStringList, steps);
        for (const QString& step : qAsConst(steps)) {
            const bool succeeded = step == S("u") ? dispatcher().slotUndo()
                : step == S("r")                  ? dispatcher().slotRedo()
                                                  : dispatcher().execute(step);
            if (!succeeded)
                events.append(S("failed"));
        }
        QTEST(events, "expectedEvents");
    }

    void redoRunsTheSameObject()
    {
        const QSharedPointer<kdCommand> first = createSet(S("a"));
        QVERIFY(dispatcher().execute(first) && dispatcher().slotUndo());
        QVERIFY(dispatcher().redoAvailable() && !dispatcher().undoAvailable());
        QVERIFY(dispatcher().slotRedo());
        QVERIFY(!dispatcher().redoAvailable() && dispatcher().undoAvailable());
        QCOMPARE(livingCommands, 1);
        QCOMPARE(first->status(), kdCommand::Executed);
    }

    void undoingByHandKeepsTheListsConsistent()
    {
        const QSharedPointer<kdCommand> first = createSet(S("a"));
        QVERIFY(dispatcher().execute(first) && dispatcher().execute(S("set b")));
        QVERIFY(dispatcher().undo(first));
        QVERIFY(!dispatcher().undo(first));
        QVERIFY(dispatcher().slotUndo());
        QVERIFY(!dispatcher().undoAvailable());
        QVERIFY(dispatcher().slotRedo() && dispatcher().slotRedo());
        QVERIFY(!dispatcher().redoAvailable());
    }

    void nullCommands()
    {
        QVERIFY(dispatcher().execute(QSharedPointer<kdCommand>()));
        QVERIFY(!dispatcher().undo(QSharedPointer<kdCommand>()));
        QVERIFY(!dispatcher().registerCommand(nullptr));
        QVERIFY(!dispatcher().registerCommand(createSet)); // twice
        QVERIFY(events.isEmpty());
    }

    void namesAreMatchedWhole()
    {
        QVERIFY(dispatcher().registerCommand([](const QString& p) { return createPlain(p, "named"); }));
        QCOMPARE(dispatcher().getCommand(S("named"), S("a b"))->toString(), S("named a b"));
        QVERIFY(!dispatcher().getCommand(S("name"), QString()));
        QVERIFY(!dispatcher().getCommand(QString(), QString()));
    }

    void statusGuardsTheSlots()
    {
        SetCommand command(S("%1 a"));
        QVERIFY(!command.slotUndo() && !command.slotStop());
        QVERIFY(command.slotExecute());
        QCOMPARE(command.status(), kdCommand::Executed);
        QCOMPARE(command.description(), S("set %1 a"));
        QVERIFY(!command.slotExecute() && !command.slotStop());
        QVERIFY(command.slotUndo());
        QCOMPARE(command.status(), kdCommand::Ready);

        kdCommand plain(S("a"));
        QVERIFY(!plain.slotExecute() && !plain.undo());
    }

    void stopReachesTheRunningCommand()
    {
        QVERIFY(!dispatcher().slotStop());
        QVERIFY(!dispatcher().execute(S("set stop")));
        QVERIFY(dispatcher().execute(S("set unstoppable")));
        QVERIFY(!dispatcher().slotStop());
    }

    void aCommandsOwnReportersStay()
    {
        const QSharedPointer<kdCommand> command = createSet(S("loud"));
        command->startReportingTo(*m_reporter);
        QVERIFY(dispatcher().execute(command));
        QCOMPARE(events.count(S("error loud")), 1);
        QVERIFY(dispatcher().slotUndo());
        QVERIFY(command->slotExecute());
        QCOMPARE(events.count(S("error loud")), 2);
    }

    void listNamesEveryCommandOnce()
    {
        const QSharedPointer<kdCommand> list = dispatcher().getCommand(S("list"), QString());
        QVERIFY(list && dispatcher().execute(list));
        QCOMPARE(list->result(),
                 S("language  Sets the language of the commands: de, en.\n"
                   "list      Lists all commands.\n"
                   "set       Sets a text."));
        QVERIFY(!dispatcher().undoAvailable());
        QVERIFY(!dispatcher().execute(S("list all")));
        QCOMPARE(events.constLast(), S("error The command 'list' takes no parameter, not 'all'."));
    }

    void languageCommand()
    {
        if (!dispatcher().setLanguage(kdQLanguage::German))
            QSKIP("Built without Qt Linguist.");
        QVERIFY(dispatcher().setLanguage(kdQLanguage::English));
        const auto listHelp = [] { return dispatcher().getCommand(S("list"), QString())->helpMessage(); };
        const QString english = S("Lists all commands.");
        const QString german = S("Zeigt die Befehle.");

        QVERIFY(dispatcher().execute(S("language de_AT")));
        QCOMPARE(dispatcher().language(), kdQLanguage::German);
        QCOMPARE(listHelp(), german);
        QVERIFY(dispatcher().execute(S("language EN")));
        QCOMPARE(listHelp(), english);
        QVERIFY(dispatcher().slotUndo());
        QCOMPARE(listHelp(), german);
        QVERIFY(dispatcher().slotUndo() && dispatcher().slotRedo());
        QCOMPARE(dispatcher().language(), kdQLanguage::German);
    }

    void languagesThatAreNotThere()
    {
        for (const char* code : {"klingon", "deu", ""}) {
            QVERIFY(!dispatcher().execute(S("language ") + QLatin1String(code)));
            QCOMPARE(events.takeLast(),
                     S("error '%1' is no language code; there are: de, en.").arg(QLatin1String(code)));
        }
        QVERIFY(!dispatcher().setLanguage(kdQLanguage::KDLANGUAGE(99)));
        QVERIFY(!dispatcher().undoAvailable());
    }
};

KDQ_TEST_MAIN(TestKdCommandDispatcher)
#include "tst_kdcommanddispatcher.moc"
