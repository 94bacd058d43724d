#include "shellhelp.h"

#include "shellexamples.h"
#include "shellgroups.h"

#include <kdQCore/kdCommandDispatcher>

#include <QCoreApplication>

namespace {

class ShellHelp {
    Q_DECLARE_TR_FUNCTIONS(ShellHelp)

public:
    static QStringList overview();
    static QStringList group(const ShellCommandGroup& group);
    static QStringList ofWord(const QString& word);
    static QStringList prompt();
    static QStringList withExample(const QStringList& lines, const QString& command);
    static QStringList lines(const QString& usage, const QString& summary)
    {
        return {usage, QStringLiteral("    ") + summary};
    }
    static QString unknown(const QString& topic)
    {
        return tr("There is no command '%1'; 'help' shows them all.").arg(topic);
    }

private:
    static QStringList ownWords();
    static QString usageOf(const kdCommand& command);
};

/// The dispatcher's own commands, which have no row in a table.
QString ShellHelp::usageOf(const kdCommand& command)
{
    const bool isLanguage = command.name() == QLatin1String("language");
    return isLanguage ? QStringLiteral("language CODE") : command.name();
}

QStringList ShellHelp::ownWords()
{
    return lines(QStringLiteral("help [COMMAND]"),
                 tr("Shows all commands, or one with an example; 'help prompt' tells of keys and colours."))
        + lines(QStringLiteral("history"), tr("Shows the commands of this session."))
        + lines(QStringLiteral("quit"), tr("Ends the session; an open deck is closed."))
        + lines(QStringLiteral("redo"), tr("Executes the command undone last once more."))
        + lines(QStringLiteral("undo"), tr("Takes back the last command that changed something."));
}

QStringList ShellHelp::overview()
{
    QStringList result = ownWords();
    const QList<QSharedPointer<kdCommand>> commands = kdCommandDispatcher::I().commands();
    for (const QSharedPointer<kdCommand>& command : commands)
        if (nShellGroups::find(command->name()) == nullptr)
            result += lines(usageOf(*command), command->helpMessage());
    for (const ShellCommandGroup* group : nShellGroups::all())
        result += lines(QLatin1String(group->name) + QLatin1String(" ..."),
                        tr("%1 See 'help %2'.").arg(group->translatedSummary(), QLatin1String(group->name)));
    result.append(
        tr("Statements end at the line end or at \";\". Words that hold blanks, \";\" or \"#\" stand in "
           "quotes. \"#\" opens a comment, \"\\\" at the end continues a line."));
    return result;
}

QStringList ShellHelp::group(const ShellCommandGroup& group)
{
    QStringList result;
    for (const ShellCommandEntry& entry : group.entries)
        result += lines(group.usage(entry), group.summaryOf(entry));
    return withExample(result, QLatin1String(group.name));
}

QStringList ShellHelp::ofWord(const QString& word)
{
    const QStringList own = ownWords();
    for (int i = 0; i < own.size(); i += 2)
        if (own.at(i).section(QLatin1Char(' '), 0, 0) == word)
            return withExample(own.mid(i, 2), word);
    if (word == QLatin1String("prompt"))
        return prompt();
    const QSharedPointer<kdCommand> command = kdCommandDispatcher::I().getCommand(word, QString());
    return command.isNull() ? QStringList()
                            : withExample(lines(usageOf(*command), command->helpMessage()), word);
}

QStringList ShellHelp::withExample(const QStringList& lines, const QString& command)
{
    QStringList result = lines;
    const QStringList example = nShellExamples::of(command);
    if (!example.isEmpty())
        result.append(tr("Example:"));
    for (const QString& line : example)
        result.append(QStringLiteral("    ") + line);
    return result;
}

QStringList ShellHelp::prompt()
{
    return lines(QStringLiteral("Tab"),
                 tr("Completes the word by what may stand there: commands and their words, files, tables, "
                    "columns, units, processes, stages, parameters, locked folders; shows what is possible "
                    "where there is a choice."))
        + lines(QStringLiteral("Up, Down, Ctrl-R"),
                tr("Bring earlier lines back, also those of earlier sessions, and search them. A line that "
                   "begins with a blank is not kept."))
        + lines(QStringLiteral("Ctrl-C"),
                tr("Drops the line being typed. Stops a command that runs and takes back what it has changed "
                   "so far; pressed once more, ends kdqsh at once."))
        + lines(QStringLiteral("Ctrl-D"),
                tr("Ends the session, on an empty line; on Windows Ctrl-Z does, too."))
        + lines(
               QStringLiteral("--color=auto|always|never, NO_COLOR, TERM=dumb"),
               tr("Errors are red, warnings yellow: on terminals, unless NO_COLOR is set to anything or TERM "
                  "is dumb; or as the option says."))
        + lines(QStringLiteral("LANGUAGE"), tr("The user's languages, as de_AT:en; else the system's."))
        + lines(QStringLiteral("LOCALAPPDATA"),
                tr("The user's data folder. In its folder kaldoran: kdqsh_history, kdqsh.ini and log."))
        + lines(QStringLiteral("KALDORAN_BASEPATH"), tr("The root of the installation."))
        + lines(QStringLiteral("0, 1, 2, 130"),
                tr("Exit statuses: all went well; a command failed; the command line was wrong; ended by "
                   "Ctrl-C."));
}

} // namespace

bool nShellHelp::find(const QString& topic, QStringList& lines)
{
    const QStringList words = topic.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const ShellCommandGroup* const group = nShellGroups::find(words.value(0));
    if (words.isEmpty()) {
        lines = ShellHelp::overview();
    } else if (words.size() == 1) {
        lines = group != nullptr ? ShellHelp::group(*group) : ShellHelp::ofWord(words.first());
    } else if (words.size() == 2 && group != nullptr) {
        const ShellCommandEntry* const entry = group->find(words.at(1));
        if (entry != nullptr)
            lines = ShellHelp::withExample(ShellHelp::lines(group->usage(*entry), group->summaryOf(*entry)),
                                           words.join(QLatin1Char(' ')));
    }
    if (!lines.isEmpty())
        return true;
    lines.append(ShellHelp::unknown(topic));
    return false;
}
