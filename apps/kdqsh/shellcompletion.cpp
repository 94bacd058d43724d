#include "shellcompletion.h"

#include "shell.h"
#include "shellgroups.h"
#include "shellsession.h"
#include "usageplace.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdQLanguage>

#include <QDir>

namespace {

QStringList commandNames()
{
    QStringList names = Shell::words();
    const QList<QSharedPointer<kdCommand>> commands = kdCommandDispatcher::I().commands();
    for (const QSharedPointer<kdCommand>& command : commands)
        names.append(command->name());
    names.sort();
    return names;
}

QStringList languageCodes()
{
    QStringList codes;
    const QList<kdQLanguage::KDLANGUAGE> languages = kdQLanguage::languages();
    for (const kdQLanguage::KDLANGUAGE language : languages)
        codes.append(kdQLanguage::code(language));
    return codes;
}

QStringList files(const QString& prefix, QDir::Filters filters)
{
    const QString folder = prefix.left(prefix.lastIndexOf(QLatin1Char('/')) + 1);
    const QDir dir(folder.isEmpty() ? QStringLiteral(".") : folder);
    QStringList paths;
    const QFileInfoList entries = dir.entryInfoList(filters | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries)
        paths.append(folder + entry.fileName() + QLatin1String(entry.isDir() ? "/" : ""));
    return paths;
}

/// Every parameter in the place of the name at the end of an unfinished formula.
QStringList formulas(const QString& prefix)
{
    int begin = prefix.size();
    while (begin > 0 && (prefix.at(begin - 1).isLetterOrNumber() || prefix.at(begin - 1) == QLatin1Char('_')))
        --begin;
    QStringList texts = ShellSession::I().parameters.names();
    for (QString& text : texts)
        text.prepend(prefix.left(begin));
    return texts;
}

QStringList columns(const kdDataTable& table)
{
    QStringList names{QStringLiteral("x"), QStringLiteral("y")};
    for (int i = 0; i < table.columns(); ++i)
        names.append(table.columnRef(i).name());
    names.removeAll(QString());
    return names;
}

QStringList units(const kdDataTable& table, const QString& column)
{
    int index = table.getDataColumnIndexByName(column);
    if (index < 0)
        index = column == QLatin1String("x") ? 0 : 1;
    QStringList symbols;
    const kdUnitSystem::Dimension dimension = table.columnRef(index).getUnitSystem().dimension();
    for (int unit = 0; unit < kdUnitSystem::unitCount(dimension); ++unit)
        symbols.append(kdUnitSystem(dimension, unit).symbol());
    return symbols;
}

QStringList stages(const ShellProcesses::Process& process)
{
    QStringList numbers;
    const QList<int> indices = process.isNull() ? QList<int>() : process->getStageIndices();
    for (const int index : indices)
        numbers.append(QString::number(index));
    return numbers;
}

/// What commands name by NAME, by their place.
QStringList objects(const QString& group)
{
    const ShellSession& session = ShellSession::I();
    if (group == QLatin1String("heat"))
        return session.processes.names();
    if (group == QLatin1String("parameter"))
        return session.parameters.names();
    const bool takesTables = group == QLatin1String("table") || group == QLatin1String("csv");
    return takesTables ? session.tables.names() : QStringList();
}

/// The values of a kind that \a typed, a command with its arguments, may go on with.
QStringList values(const QString& kind, const QString& after, const QStringList& typed, const QString& prefix)
{
    const ShellSession& session = ShellSession::I();
    const auto is = [&kind](const char* word) { return kind == QLatin1String(word); };
    const bool isNew = after == QLatin1String("as");
    if (is("FILE") || is("LINESFILE"))
        return files(prefix, QDir::AllEntries);
    if (is("FOLDER"))
        return typed.at(1) == QLatin1String("release") ? session.locks.keptFolders()
                                                       : files(prefix, QDir::Dirs);
    if (is("FORMULA"))
        return formulas(prefix);
    if (is("INPUT"))
        return {QStringLiteral("predefined"), QStringLiteral("project"), QStringLiteral("table")};
    if (is("TABLE") && !isNew)
        return session.tables.names();
    if (is("OTHER") || (is("NAME") && after.isEmpty()))
        return objects(typed.at(typed.first() == QLatin1String("plot") ? 1 : 0));
    if (is("STAGE"))
        return stages(session.processes.find(typed.at(2)));
    const QStringList words = typed.mid(2);
    for (const QString& word : words) {
        const ShellTables::Table table = session.tables.find(word);
        if (!table.isNull() && is("COLUMN"))
            return columns(*table);
        if (!table.isNull() && is("UNIT") && table->columns() > 1)
            return units(*table, typed.last());
    }
    return {};
}

QStringList arguments(const ShellCommandEntry& entry, const QStringList& typed, const QString& prefix)
{
    const UsagePlace place = UsagePlace::find(QLatin1String(entry.usage), typed.mid(2));
    QStringList words;
    for (const QString& kind : place.values)
        words += values(kind, place.after, typed, prefix);
    if (typed.last() == QLatin1String("table") && typed.size() > 2) // as the INPUT of a stage
        words += ShellSession::I().tables.names();
    return words + place.keywords;
}

QStringList following(const QStringList& typed, const QString& prefix)
{
    if (typed.isEmpty())
        return commandNames();
    const bool isHelp = typed.first() == QLatin1String("help");
    if (isHelp && typed.size() <= 2)
        return typed.size() == 2 && nShellGroups::find(typed.at(1)) == nullptr
            ? QStringList()
            : following(typed.mid(1), prefix);
    if (typed.first() == QLatin1String("remote") && typed.value(1) == QLatin1String("run"))
        return following(typed.mid(2), prefix);
    if (typed.first() == QLatin1String("language") && typed.size() == 1)
        return languageCodes();
    const ShellCommandGroup* const group = nShellGroups::find(typed.first());
    if (group == nullptr || typed.size() == 1)
        return group == nullptr ? QStringList() : group->names();
    const ShellCommandEntry* const entry = group->find(typed.at(1));
    return entry == nullptr ? QStringList() : arguments(*entry, typed, prefix);
}

QString commonBegin(const QStringList& words)
{
    QString common = words.first();
    for (const QString& word : words)
        while (!word.startsWith(common))
            common.chop(1);
    return common;
}

/// In quotes where it needs them or has one; they stay open where the word may go on.
QString asTyped(const QString& word, QChar quote, bool isWhole)
{
    if (quote.isNull() && ShellLineParser::quoted(word) == word)
        return word;
    const QChar mark = quote.isNull() ? QLatin1Char('"') : quote;
    QString inner = word;
    inner.replace(mark, QString(2, mark));
    return mark + inner + (isWhole ? QString(mark) : QString());
}

} // namespace

LineEditor::Completion nShellCompletion::complete(const QString& beforeCursor)
{
    const ShellTyped typed = ShellLineParser::typed(beforeCursor);
    LineEditor::Completion result;
    result.begin = typed.lastBegin;
    const QStringList words = typed.isComment ? QStringList() : following(typed.words, typed.last);
    for (const QString& word : words)
        if (word.startsWith(typed.last) && !word.isEmpty() && !result.candidates.contains(word))
            result.candidates.append(word);
    if (result.candidates.isEmpty())
        return result;
    const QString common = commonBegin(result.candidates);
    const bool isWhole = result.candidates.size() == 1 && !common.endsWith(QLatin1Char('/'));
    result.text = asTyped(common, typed.quote, isWhole) + (isWhole ? QStringLiteral(" ") : QString());
    return result;
}
