#include "deckcommands.h"
#include "shellsession.h"

#include <kdQCore/coDeckCheck>
#include <kdQCore/coDeckCompare>
#include <kdQCore/coDeckPatch>
#include <kdQCore/coDeckReader>
#include <kdQCore/coFeDataTableCard>

#include <QFile>

#include <optional>

QVector<ShellCommandEntry> DeckCommands::fileEntries()
{
    using Entry = ShellCommandEntry;
    return {
        {"check", "FILE [standard|extended]",
         QT_TR_NOOP("Says what the solver would stumble over in a deck; fails on errors, not on warnings."),
         1, 2, Entry::Query, check},
        {"show", "FILE [standard|extended]", QT_TR_NOOP("Lists what a deck holds: line, lines, option."), 1,
         2, Entry::Query, show},
        {"diff", "FILE FILE [tolerance T] [standard|extended]",
         QT_TR_NOOP("Compares two decks option by option, numbers within a relative tolerance."), 2, 5,
         Entry::Query, diff},
        {"patch", "FILE replace|before|after|remove OPTION [with LINESFILE] [number N] [keep]",
         QT_TR_NOOP(
             "Changes one option of a deck and nothing else; the new lines come from a file. OPTION as in "
             "'deck show', the N-th of several; keep: the old deck stays as FILE.bak."),
         3, 8, Entry::CannotUndo, patch},
        {"tables", "FILE [standard|extended]",
         QT_TR_NOOP("Loads the tables of a deck into the session, under their names, without units."), 1, 2,
         Entry::ChangesTables, tables},
    };
}

namespace {

/// A deck to read, and its widths: those that the call's arguments from \a first on name, or found ones.
class DeckFile {
public:
    DeckFile(const ShellCall& call, const QString& path) : m_file(path)
    {
        if (!m_file.open(QIODevice::ReadOnly))
            m_isGood = call.fail(
                DeckCommands::tr("The deck '%1' cannot be read: %2").arg(path, m_file.errorString()));
        else
            m_layout = coDeckLayout::find(m_file);
    }

    /// Widths that the user names.
    bool takeWidths(const ShellCall& call, int index)
    {
        if (index >= call.count())
            return m_isGood;
        if (call.is(index, "standard"))
            m_layout = CFEDatLineWriter::standard;
        else if (call.is(index, "extended"))
            m_layout = CFEDatLineWriter::extended;
        else
            m_isGood = call.fail(DeckCommands::tr("'%1' is no width; possible are standard and extended.")
                                     .arg(call.text(index)));
        return m_isGood;
    }

    bool isGood() const { return m_isGood; }
    QFile& file() { return m_file; }
    const coDeckLayout& layout() const { return m_layout; }

private:
    QFile m_file;
    coDeckLayout m_layout;
    bool m_isGood = true;
};

bool endOf(const ShellCall& call, const coDeckReader& reader)
{
    return !reader.hasFailed() || call.fail(reader.errorText());
}

} // namespace

bool DeckCommands::check(ShellCall& call)
{
    DeckFile deck(call, call.text(0));
    if (!deck.takeWidths(call, 1))
        return false;
    coDeckCheck check(deck.layout());
    const bool isSound = check.run(deck.file());
    for (const coDeckFinding& finding : check.findings())
        call.show(finding.toString());
    call.tell(tr("Deck '%1' (%2): options %3, errors %4, warnings %5.")
                  .arg(call.text(0), deck.layout().text(), QString::number(check.options()),
                       QString::number(check.errors()), QString::number(check.warnings())));
    return isSound || call.fail(tr("The deck '%1' has errors: %2.").arg(call.text(0)).arg(check.errors()));
}

bool DeckCommands::show(ShellCall& call)
{
    DeckFile deck(call, call.text(0));
    if (!deck.takeWidths(call, 1))
        return false;
    QVector<QStringList> rows{{tr("line"), tr("lines"), tr("option")}};
    coDeckReader reader(deck.file(), deck.layout(), coDeckReader::NoCards);
    coDeckOption option;
    while (reader.next(option))
        if (option.kind != coDeckOption::Comments)
            rows.append({QString::number(option.firstLine), QString::number(option.lines), option.text()});
    call.showAligned(rows);
    call.tell(tr("Deck '%1': %2.").arg(call.text(0), deck.layout().text()));
    return endOf(call, reader);
}

bool DeckCommands::diff(ShellCall& call)
{
    double tolerance = 0.0;
    bool isStandard = false;
    bool isExtended = false;
    ShellParameters reader(call, 2);
    if (!reader.real("tolerance", tolerance).flag("standard", isStandard).flag("extended", isExtended).read())
        return false;
    DeckFile first(call, call.text(0));
    DeckFile second(call, call.text(1));
    if (!first.isGood() || !second.isGood())
        return false;
    std::optional<coDeckLayout> given;
    if (isStandard || isExtended)
        given = coDeckLayout(isStandard ? CFEDatLineWriter::standard : CFEDatLineWriter::extended);
    coDeckCompare compare(tolerance);
    if (compare.run(first.file(), given.value_or(first.layout()), second.file(),
                    given.value_or(second.layout())))
        return true;
    if (!compare.errorText().isEmpty())
        return call.fail(compare.errorText());
    call.show(compare.report().trimmed());
    return call.fail(tr("The decks differ: %1.").arg(compare.differences().size()));
}

bool DeckCommands::patch(ShellCall& call)
{
    QString linesPath;
    int number = 1;
    bool keeps = false;
    ShellParameters reader(call, 3);
    if (!reader.text("with", linesPath).integer("number", number).flag("keep", keeps).read())
        return false;
    coDeckPatch patch(call.text(0));
    if (!patch.read())
        return call.fail(patch.errorText());
    const int index = patch.find(call.text(2), number - 1);
    if (index < 0)
        return call.fail(tr("The deck '%1' holds no option \"%2\" of number %3; see 'deck show'.")
                             .arg(call.text(0), call.text(2), QString::number(number)));
    QFile lines(linesPath);
    if (!call.is(1, "remove") && !lines.open(QIODevice::ReadOnly))
        return call.fail(tr("The file '%1' of the new lines (with LINESFILE) cannot be read: %2")
                             .arg(linesPath, lines.errorString()));
    if (call.is(1, "remove"))
        patch.remove(index);
    else if (call.is(1, "replace"))
        patch.replace(index, lines.readAll());
    else if (call.is(1, "before"))
        patch.insertBefore(index, lines.readAll());
    else if (call.is(1, "after"))
        patch.insertAfter(index, lines.readAll());
    else
        return call.fail(
            tr("'%1' is no change; possible are replace, before, after, remove.").arg(call.text(1)));
    return patch.apply(keeps ? coDeckPatch::KeepOld : coDeckPatch::DropOld) || call.fail(patch.errorText());
}

bool DeckCommands::tables(ShellCall& call)
{
    DeckFile deck(call, call.text(0));
    if (!deck.takeWidths(call, 1))
        return false;
    QStringList names;
    coDeckReader reader(deck.file(), deck.layout(), coDeckReader::Cards,
                        [&call](const coDeckFinding& finding) { call.warn(finding.toString()); });
    coDeckOption option;
    while (reader.next(option)) {
        const auto card = option.card.dynamicCast<coFeDataTableCard>();
        if (!card)
            continue;
        const QString name =
            card->tableName().isEmpty() ? QStringLiteral("table_%1").arg(card->tableId()) : card->tableName();
        ShellSession::I().tables.put(name, card->toTable());
        names.append(name);
    }
    call.tell(tr("Tables of '%1': %2.")
                  .arg(call.text(0), names.isEmpty() ? tr("none") : names.join(QStringLiteral(", "))));
    return endOf(call, reader);
}
