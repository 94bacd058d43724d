#include "shellhelp.h"

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
    return lines(QStringLiteral("help [COMMAND]"), tr("Shows all commands, or one with its usage."))
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
    return result;
}

QStringList ShellHelp::ofWord(const QString& word)
{
    const QStringList own = ownWords();
    for (int i = 0; i < own.size(); i += 2)
        if (own.at(i).section(QLatin1Char(' '), 0, 0) == word)
            return own.mid(i, 2);
    const QSharedPointer<kdCommand> command = kdCommandDispatcher::I().getCommand(word, QString());
    return command.isNull() ? QStringList() : lines(usageOf(*command), command->helpMessage());
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
            lines = ShellHelp::lines(group->usage(*entry), group->summaryOf(*entry));
    }
    if (!lines.isEmpty())
        return true;
    lines.append(ShellHelp::unknown(topic));
    return false;
}
