#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdReporter>

#include <stdexcept>

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

/// A command that does nothing; it comes later than SetCommand and never has its turn.
QSharedPointer<kdCommand> createSecondSet(const QString& parameters)
{
    auto command = QSharedPointer<kdCommand>::create(parameters);
    command->setObjectName(S("set"));
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
        for (const auto factory : {createNothing, createSet, createSecondSet})
            QVERIFY(dispatcher().registerCommand(factory));
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

    void nothingRunsWithoutADispatcher()
    {
        LogCapture log;
        kdCommandDispatcher::removeInstance();
        QVERIFY(log.contains(kdLog::Trace, kdLog::Command, S("kdCommandDispatcher removed.")));
        QVERIFY(!kdCommandDispatcher::created() && !dispatcher().execute(S("list")));
    }

    void aVeryLongLineNeedsNoDeepStack()
    {
        QVERIFY(dispatcher().execute(S("set a;").repeated(20000)));
        QCOMPARE(livingCommands, 20000);
    }

    /// Steps: "u" undo, "r" redo, "s" stop, anything else is a command line.
    void sequences_data()
    {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QStringList>("expectedEvents");
        const auto row = [](const char* name, const char* steps, const char* expected) {
            QTest::newRow(name) << QString::fromUtf8(steps).split(QLatin1Char('|'))
                                << QString::fromUtf8(expected).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        };
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
        row("stop reaches the running command only", "s|set stop|set unstoppable|s",
            "failed|do stop|failed|do unstoppable|executed unstoppable|undo on|failed");
        row("list with a parameter", "list all",
            "error The command 'list' takes no parameter, not 'all'.|failed");
        row("no language", "language klingon|u",
            "error 'klingon' is no language code; there are: de, en.|failed|failed");
        row("language of too many letters", "language deu",
            "error 'deu' is no language code; there are: de, en.|failed");
        row("language without a code", "language", "error '' is no language code; there are: de, en.|failed");
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
                : step == S("s")                  ? dispatcher().slotStop()
                                                  : dispatcher().execute(step);
            if (!succeeded)
                events.append(S("failed"));
        }
        QTEST(events, "expectedEvents");
    }

    void redoRunsTheSameObject()
    {
        const QSharedPointer<kdCommand> first = createSet(S("a"));
        QVERIFY(dispatcher().execute(first) && dispatcher().execute(S("set b")));
        QVERIFY(dispatcher().undo(first) && !dispatcher().undo(first)); // by hand, out of order
        QVERIFY(dispatcher().slotUndo() && !dispatcher().undoAvailable());
        QVERIFY(dispatcher().slotRedo() && dispatcher().redoAvailable() && dispatcher().slotRedo());
        QVERIFY(!dispatcher().redoAvailable() && dispatcher().undoAvailable());
        QCOMPARE(first->status(), kdCommand::Executed);
        QCOMPARE(livingCommands, 2);
    }

    void nothingIsRefused()
    {
        QVERIFY(dispatcher().execute(QSharedPointer<kdCommand>()));
        QVERIFY(!dispatcher().undo(QSharedPointer<kdCommand>()));
        QVERIFY(!dispatcher().setLanguage(kdQLanguage::KDLANGUAGE(99)));
        QVERIFY(!dispatcher().registerCommand(nullptr));
        QVERIFY(!dispatcher().registerCommand(createSet)); // twice
        QVERIFY(events.isEmpty());
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
    }

    void languageCommand()
    {
#ifndef WITH_TRANSLATIONS
        QSKIP("Built without Qt Linguist.");
#endif
        const auto listHelp = [] { return dispatcher().getCommand(S("list"), QString())->helpMessage(); };
        const QString german = S("Zeigt die Befehle.");
        QVERIFY(dispatcher().execute(S("language de_AT")));
        QCOMPARE(listHelp(), german);
        QVERIFY(dispatcher().execute(S("language EN")));
        QCOMPARE(listHelp(), S("Lists all commands."));
        QVERIFY(dispatcher().slotUndo());
        QCOMPARE(listHelp(), german);
        QVERIFY(dispatcher().slotUndo() && dispatcher().slotRedo());
        QCOMPARE(dispatcher().language(), kdQLanguage::German);
    }
};

KDQ_TEST_MAIN(TestKdCommandDispatcher)
#include "tst_kdcommanddispatcher.moc"
