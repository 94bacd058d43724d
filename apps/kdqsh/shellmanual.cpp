#include "shellmanual.h"

#include "shellgroups.h"
#include "shellhelp.h"

#include <QDateTime>
#include <QLocale>

namespace {

/// A text that roff prints as it is.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\e"))
        .replace(QLatin1Char('"'), QLatin1String("\\(dq"))
        .replace(QLatin1Char('\''), QLatin1String("\\(aq"))
        .replace(QLatin1Char('-'), QLatin1String("\\-"));
}

/// Words behind a macro, none of which is taken for another.
QString plain(const QString& text)
{
    QStringList words = text.simplified().split(QLatin1Char(' '));
    for (QString& word : words)
        word = QLatin1String("\\&") + escaped(word);
    return words.join(QLatin1Char(' '));
}

/// A text with each sentence on lines of its own, none of them long, as mdoc wants it.
QString sentences(const QString& text)
{
    constexpr int longestLine = 78;
    QString lines;
    int length = 0;
    const QStringList words = escaped(text.simplified()).split(QLatin1Char(' '));
    for (const QString& word : words) {
        const bool isNewLine = lines.endsWith(QLatin1Char('.')) || length + word.size() > longestLine;
        if (!lines.isEmpty())
            lines += QLatin1Char(isNewLine ? '\n' : ' ');
        length = (isNewLine ? 0 : length + 1) + static_cast<int>(word.size());
        lines += word;
    }
    return lines + QLatin1Char('\n');
}

QString section(const char* title)
{
    return QStringLiteral(".Sh %1\n").arg(QLatin1String(title));
}

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

QString optionList(const QList<QCommandLineOption>& options)
{
    QString text = QStringLiteral(".Bl -tag -width Ds\n");
    for (const QCommandLineOption& option : options) {
        QStringList flags;
        for (const QString& name : option.names())
            flags.append(QStringLiteral("Fl %1%2").arg(QLatin1String(name.size() > 1 ? "\\-" : ""), name));
        text += QLatin1String(".It ") + flags.join(QLatin1String(" , "));
        if (!option.valueName().isEmpty())
            text += QLatin1String(" Ar ") + option.valueName();
        text += QLatin1Char('\n') + sentences(option.description());
    }
    return text + QLatin1String(".El\n");
}

QString date()
{
    bool isGiven = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isGiven);
    const QDateTime time =
        isGiven ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime::currentDateTime();
    return QLocale::c().toString(time.date(), QStringLiteral("MMMM d, yyyy"));
}

} // namespace

QString nShellManual::page(const QString& description, const QList<QCommandLineOption>& options)
{
    return QStringLiteral(".Dd %1\n.Dt KDQSH 1\n.Os\n").arg(date()) + section("NAME")
        + QLatin1String(".Nm kdqsh\n.Nd tables of material data and solver input decks by text commands\n")
        + section("SYNOPSIS") + QLatin1String(".Nm\n.Op Ar options\n.Op Ar script\n") + section("DESCRIPTION")
        + sentences(description) + section("OPTIONS") + optionList(options) + section("COMMANDS") + commands()
        + section("THE PROMPT") + list(helpOn(QStringLiteral("prompt"))).trimmed();
}
