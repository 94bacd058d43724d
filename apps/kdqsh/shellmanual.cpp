#include "shellmanual.h"

#include "shellgroups.h"
#include "shellhelp.h"

using nManual::plain;
using nManual::section;
using nManual::sentences;

namespace {

/// Help lines: what stands at the left margin is a term, all else belongs to the term above.
QString list(const QStringList& help)
{
    QString text = QStringLiteral(".Bl -tag -width Ds\n");
    bool isExample = false;
    for (const QString& line : help) {
        const bool isTerm = !line.startsWith(QLatin1Char(' '));
        const bool beginsExample = isTerm && line.endsWith(QLatin1Char(':'));
        if (isTerm && !beginsExample)
            text += QStringLiteral(".It Ic %1\n").arg(plain(line));
        else if (isExample)
            text += QStringLiteral(".Dl %1\n").arg(plain(line));
        else if (!beginsExample)
            text += sentences(line);
        isExample = beginsExample || (isExample && !isTerm);
    }
    return text + QLatin1String(".El\n");
}

QStringList helpOn(const QString& topic)
{
    QStringList lines;
    nShellHelp::find(topic, lines);
    return lines;
}

QString commands()
{
    QString text;
    QStringList own;
    const QStringList overview = helpOn(QString());
    for (int i = 0; i + 1 < overview.size(); i += 2)
        if (!overview.at(i).endsWith(QLatin1String("...")))
            own += helpOn(overview.at(i).section(QLatin1Char(' '), 0, 0));
    text += list(own) + sentences(overview.last());
    for (const ShellCommandGroup* group : nShellGroups::all()) {
        text += QStringLiteral(".Ss %1\n").arg(plain(QLatin1String(group->name)))
            + sentences(group->translatedSummary());
        QStringList lines;
        for (const ShellCommandEntry& entry : group->entries)
            lines += *entry.name == '\0'
                ? QStringList{QLatin1String(group->name), QStringLiteral("    ") + group->summaryOf(entry)}
                : helpOn(QStringLiteral("%1 %2").arg(QLatin1String(group->name), QLatin1String(entry.name)));
        text += list(lines);
    }
    return text;
}

} // namespace

QString nShellManual::page(const ProgramHelp& help)
{
    return help.manualPage() + section("COMMANDS") + commands() + section("THE PROMPT")
        + list(helpOn(QStringLiteral("prompt"))).trimmed();
}
