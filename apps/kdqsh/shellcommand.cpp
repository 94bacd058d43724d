#include "shellcommand.h"

#include "shellinterrupt.h"
#include "shelllineparser.h"
#include "shellsession.h"

#include <kdQCore/kdException>
#include <kdQCore/kdLog>

#include <algorithm>

namespace {

/// What the library logs while a command runs: it tells there why a card does not fit.
class Complaints : public kdLog::Sink {
public:
    Complaints() { attach(); }
    ~Complaints() override { detach(); }

    void received(const kdLog::Record& record) override
    {
        if (record.severity >= kdLog::Notice && record.tag != kdLog::Command)
            m_texts.append(record.text);
    }

    QString text() const { return m_texts.join(QLatin1Char(' ')); }

private:
    QStringList m_texts;
};

} // namespace

const ShellCommandEntry* ShellCommandGroup::find(const QString& entryName) const
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&entryName](const ShellCommandEntry& entry) {
            return entryName == QLatin1String(entry.name);
        });
    return found != entries.end() ? &*found : nullptr;
}

QString ShellCommandGroup::usage(const ShellCommandEntry& entry) const
{
    const QString words =
        QStringLiteral("%1 %2 %3")
            .arg(QLatin1String(name), QLatin1String(entry.name), QLatin1String(entry.usage));
    return words.trimmed();
}

QString ShellCommandGroup::summaryOf(const ShellCommandEntry& entry) const
{
    return QCoreApplication::translate(context, entry.summary);
}

QString ShellCommandGroup::translatedSummary() const
{
    return QCoreApplication::translate(context, summary);
}

QStringList ShellCommandGroup::names() const
{
    QStringList names;
    for (const ShellCommandEntry& entry : entries)
        if (*entry.name != '\0')
            names.append(QLatin1String(entry.name));
    return names;
}

ShellCommand::ShellCommand(const ShellCommandGroup& group, const QString& parameter)
    : kdCommand(parameter), m_group(group)
{
    QStringList words;
    if (ShellLineParser::splitWords(parameter, words, m_wordsError)) {
        m_entry = group.find(words.value(0));
        m_arguments = words.mid(1);
    }
}

bool ShellCommand::isQuery() const
{
    return m_entry != nullptr && m_entry->effect == ShellCommandEntry::Query;
}

QString ShellCommand::name() const
{
    return QLatin1String(m_group.name);
}

QString ShellCommand::helpMessage() const
{
    return m_group.translatedSummary();
}

bool ShellCommand::allowUndo()
{
    return m_entry != nullptr && m_entry->effect != ShellCommandEntry::CannotUndo;
}

bool ShellCommand::execute()
{
    ShellCall call(*this, m_arguments, [this] { return isStopped(); });
    if (!m_wordsError.isEmpty())
        return call.fail(m_wordsError);
    if (m_entry == nullptr) {
        const QString word = parameter().section(QLatin1Char(' '), 0, 0);
        const QString names = m_group.names().join(QLatin1String(", "));
        return call.fail(word.isEmpty()
                             ? tr("'%1' needs one of: %2.").arg(name(), names)
                             : tr("Unknown command: >%1 %2<! Known are: %3.").arg(name(), word, names));
    }
    if (call.count() < m_entry->minimum || call.count() > m_entry->maximum)
        return call.fail(tr("Usage: %1").arg(m_group.usage(*m_entry)));
    return run(call);
}

bool ShellCommand::run(ShellCall& call)
{
    ShellSession& session = ShellSession::I();
    if (m_entry->effect == ShellCommandEntry::ChangesTables)
        m_tablesBefore = session.tables;
    if (m_entry->effect == ShellCommandEntry::ChangesProcesses)
        m_processesBefore = session.processes;
    if (m_entry->effect == ShellCommandEntry::WritesDeck) {
        if (!session.deck.isOpen())
            return call.fail(tr("No deck is open; see 'deck open'."));
        m_deckBefore = session.deck.mark();
    }

    Complaints complaints;
    bool ok = m_entry->run(call);
    if (stopRequested())
        return takeBackStopped();
    if (m_entry->effect == ShellCommandEntry::ChangesParameters)
        m_parameterChange = session.parameters.lastChange();
    if (m_entry->effect == ShellCommandEntry::WritesDeck && !session.deck.flush())
        ok = call.fail(session.deck.errorText());
    if (!ok && !call.hasFailed())
        call.fail(complaints.text().isEmpty() ? tr("The command failed.") : complaints.text());
    else if (ok && !complaints.text().isEmpty())
        call.warn(complaints.text());
    return ok;
}

/// Ctrl-C is one who asks to stop; a remote end or a window may be others, through slotStop().
bool ShellCommand::isStopped()
{
    if (nInterrupt::isRequested())
        slotStop();
    return stopRequested();
}

bool ShellCommand::takeBackStopped()
{
    const bool hasChanged = m_entry->effect == ShellCommandEntry::ChangesTables
        || m_entry->effect == ShellCommandEntry::ChangesProcesses
        || m_entry->effect == ShellCommandEntry::WritesDeck;
    if (hasChanged && !undo())
        errorMessage(tr("Stopped; what it has written so far stays."));
    else
        errorMessage(hasChanged ? tr("Stopped; everything is as it was before.") : tr("Stopped."));
    return false;
}

bool ShellCommand::undo()
{
    ShellSession& session = ShellSession::I();
    if (m_entry->effect == ShellCommandEntry::ChangesTables) {
        session.tables = m_tablesBefore;
        return true;
    }
    if (m_entry->effect == ShellCommandEntry::ChangesParameters) {
        session.parameters.revert(m_parameterChange);
        return true;
    }
    if (m_entry->effect == ShellCommandEntry::ChangesProcesses) {
        session.processes = m_processesBefore;
        return true;
    }
    return session.deck.isOpen() && session.deck.goBackTo(*m_deckBefore);
}
