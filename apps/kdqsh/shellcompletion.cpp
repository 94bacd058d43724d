#include "shellcompletion.h"

#include "shell.h"
#include "shellgroups.h"
#include "shellsession.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdQLanguage>

#include <QDir>
#include <QRegularExpression>

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

/// The lower-case words of a usage line: what is typed as it stands there.
QStringList keywords(const QString& usage)
{
    static const QRegularExpression word(QStringLiteral("\\b[a-z0-9]*[a-z][a-z0-9]*\\b"));
    QStringList words;
    for (auto match = word.globalMatch(usage); match.hasNext();)
        words.append(match.next().captured());
    return words;
}

QStringList files(const QString& prefix)
{
    const QString folder = prefix.left(prefix.lastIndexOf(QLatin1Char('/')) + 1);
    const QDir dir(folder.isEmpty() ? QStringLiteral(".") : folder);
    QStringList paths;
    const QFileInfoList entries = dir.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries)
        paths.append(folder + entry.fileName() + QLatin1String(entry.isDir() ? "/" : ""));
    return paths;
}

QStringList following(const QStringList& typed, const QString& prefix)
{
    if (typed.isEmpty())
        return commandNames();
    const ShellCommandGroup* const group = nShellGroups::find(typed.first());
    if (group == nullptr) {
        if (typed.size() == 1 && typed.first() == QLatin1String("help"))
            return commandNames();
        const ShellCommandGroup* const topic = typed.size() == 2 && typed.first() == QLatin1String("help")
            ? nShellGroups::find(typed.at(1))
            : nullptr;
        if (topic != nullptr)
            return topic->names();
        return typed.first() == QLatin1String("language") ? languageCodes() : QStringList();
    }
    if (typed.size() == 1)
        return group->names();
    const ShellCommandEntry* const entry = group->find(typed.at(1));
    if (entry == nullptr)
        return {};
    const QString usage = group->usage(*entry);
    const bool takesParameters =
        usage.startsWith(QLatin1String("parameter")) || usage.contains(QLatin1String("FORMULA"));
    const ShellSession& session = ShellSession::I();
    QStringList words = takesParameters ? session.parameters.names() : session.tables.names();
    if (usage.contains(QLatin1String("heat ")))
        words += session.processes.names();
    words += keywords(QLatin1String(entry->usage));
    if (usage.contains(QLatin1String("FILE")) || usage.contains(QLatin1String("FOLDER")))
        words += files(prefix);
    return words;
}

} // namespace

QStringList nShellCompletion::candidates(const QString& beforeCursor)
{
    const QString statement = beforeCursor.mid(beforeCursor.lastIndexOf(QLatin1Char(';')) + 1);
    QStringList typed;
    QString error;
    if (!ShellLineParser::splitWords(statement, typed, error))
        return {};
    const bool isNewWord = statement.isEmpty() || statement.back().isSpace();
    const QString prefix = isNewWord || typed.isEmpty() ? QString() : typed.takeLast();
    QStringList result;
    const QStringList words = following(typed, prefix);
    for (const QString& word : words)
        if (word.startsWith(prefix) && ShellLineParser::quoted(word) == word && !result.contains(word))
            result.append(word);
    return result;
}
