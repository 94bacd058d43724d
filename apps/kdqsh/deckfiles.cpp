#include "deckcommands.h"
#include "progressfile.h"
#include "shellsession.h"

#include <kdQCore/coDeckCheck>
#include <kdQCore/coDeckCompare>
#include <kdQCore/coDeckPatch>
#include <kdQCore/coDeckReader>
#include <kdQCore/coFeDataTableCard>

#include <QFile>

#include <memory>

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
        {"patch",
         "FILE replace|before|after|remove OPTION [with LINESFILE] [number N] [keep] [standard|extended]",
         QT_TR_NOOP(
             "Changes one option of a deck and nothing else; the new lines come from a file. OPTION as in "
             "'deck show', the N-th of several; keep: the old deck stays as FILE.bak."),
         3, 9, Entry::CannotUndo, patch},
        {"tables", "FILE [standard|extended]",
         QT_TR_NOOP("Loads the tables of a deck into the session, under their names, without units."), 1, 2,
         Entry::ChangesTables, tables},
    };
}

namespace {

/// The widths that the words from \a first on name, among other parameters; a deck's own where none does.
class Widths {
public:
    ShellParameters& addTo(ShellParameters& parameters)
    {
        return parameters.flag("standard", m_isStandard).flag("extended", m_isExtended);
    }

    bool isGiven() const { return m_isStandard || m_isExtended; }
    coDeckLayout given() const
    {
        return m_isStandard ? CFEDatLineWriter::standard : CFEDatLineWriter::extended;
    }
    bool check(const ShellCall& call) const
    {
        return !m_isStandard || !m_isExtended
            || call.fail(DeckCommands::tr("Widths are standard or extended, not both."));
    }

private:
    bool m_isStandard = false;
    bool m_isExtended = false;
};

/// A deck to read.
class DeckFile {
public:
    /// The widths are all that follows the path.
    explicit DeckFile(const ShellCall& call) : DeckFile(call, call.text(0))
    {
        Widths widths;
        ShellParameters parameters(call, 1);
        m_isGood = widths.addTo(parameters).read() && widths.check(call) && open(call, widths);
    }
    DeckFile(const ShellCall& call, const QString& path, const Widths& widths) : DeckFile(call, path)
    {
        m_isGood = open(call, widths);
    }

    bool isGood() const { return m_isGood; }
    QFile& file() { return m_file; }
    const coDeckLayout& layout() const { return m_layout; }
    /// What follows is no reading of it.
    void endReading() { m_operation.reset(); }

private:
    DeckFile(const ShellCall& call, const QString& path)
        : m_file(path, call.reporter(), call.stopCondition()),
          m_operation(std::make_unique<ShellOperation>(call, DeckCommands::tr("Reading '%1'").arg(path)))
    {
    }

    bool open(const ShellCall& call, const Widths& widths)
    {
        if (!m_file.open(QIODevice::ReadOnly))
            return call.fail(DeckCommands::tr("The deck '%1' cannot be read: %2")
                                 .arg(m_file.fileName(), m_file.errorString()));
        m_layout = widths.isGiven() ? widths.given() : coDeckLayout::find(m_file);
        return true;
    }

    ProgressFile m_file;
    std::unique_ptr<ShellOperation> m_operation;
    coDeckLayout m_layout;
    bool m_isGood = false;
};

/// The new lines of a change; "remove" has none.
bool readLines(const ShellCall& call, const QString& path, QByteArray& lines)
{
    if (call.is(1, "remove"))
        return path.isEmpty()
            || call.fail(DeckCommands::tr("An option is removed without new lines (with LINESFILE)."));
    if (path.isEmpty())
        return call.fail(
            DeckCommands::tr("'%1' needs a file of the new lines (with LINESFILE).").arg(call.text(1)));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return call.fail(
            DeckCommands::tr("The file '%1' of the new lines (with LINESFILE) cannot be read: %2")
                .arg(path, file.errorString()));
    lines = file.readAll();
    return true;
}

bool isChange(const ShellCall& call)
{
    for (const char* word : {"replace", "before", "after", "remove"})
        if (call.is(1, word))
            return true;
    return call.fail(DeckCommands::tr("'%1' is no change; possible are replace, before, after, remove.")
                         .arg(call.text(1)));
}

void change(coDeckPatch& patch, const ShellCall& call, int index, const QByteArray& lines)
{
    if (call.is(1, "remove"))
        patch.remove(index);
    else if (call.is(1, "replace"))
        patch.replace(index, lines);
    else if (call.is(1, "before"))
        patch.insertBefore(index, lines);
    else
        patch.insertAfter(index, lines);
}

bool endOf(const ShellCall& call, const coDeckReader& reader)
{
    return !reader.hasFailed() || call.fail(reader.errorText());
}

} // namespace

bool DeckCommands::check(ShellCall& call)
{
    DeckFile deck(call);
    if (!deck.isGood())
        return false;
    coDeckCheck check(deck.layout());
    const bool isSound = check.run(deck.file());
    if (call.isStopped())
        return false;
    for (const coDeckFinding& finding : check.findings())
        call.show(finding.toString());
    call.tell(tr("Deck '%1' (%2): options %3, errors %4, warnings %5.")
                  .arg(call.text(0), deck.layout().text(), QString::number(check.options()),
                       QString::number(check.errors()), QString::number(check.warnings())));
    return isSound || call.fail(tr("The deck '%1' has errors: %2.").arg(call.text(0)).arg(check.errors()));
}

bool DeckCommands::show(ShellCall& call)
{
    DeckFile deck(call);
    if (!deck.isGood())
        return false;
    QVector<QStringList> rows{{tr("line"), tr("lines"), tr("option")}};
    coDeckReader reader(deck.file(), deck.layout(), coDeckReader::NoCards);
    coDeckOption option;
    while (reader.next(option))
        if (option.kind != coDeckOption::Comments)
            rows.append({QString::number(option.firstLine), QString::number(option.lines), option.text()});
    deck.endReading();
    call.showAligned(rows);
    call.tell(tr("Deck '%1': %2.").arg(call.text(0), deck.layout().text()));
    return endOf(call, reader);
}

bool DeckCommands::diff(ShellCall& call)
{
    double tolerance = 0.0;
    Widths widths;
    ShellParameters reader(call, 2);
    if (!widths.addTo(reader.real("tolerance", tolerance)).read() || !widths.check(call))
        return false;
    DeckFile first(call, call.text(0), widths);
    DeckFile second(call, call.text(1), widths);
    if (!first.isGood() || !second.isGood())
        return false;
    coDeckCompare compare(tolerance);
    if (compare.run(first.file(), first.layout(), second.file(), second.layout()))
        return true;
    if (call.isStopped() || !compare.errorText().isEmpty())
        return call.fail(compare.errorText());
    call.show(compare.report().trimmed());
    return call.fail(tr("The decks differ: %1.").arg(compare.differences().size()));
}

bool DeckCommands::patch(ShellCall& call)
{
    QString linesPath;
    int number = 1;
    bool keeps = false;
    Widths widths;
    ShellParameters reader(call, 3);
    reader.text("with", linesPath).integer("number", number).flag("keep", keeps);
    QByteArray lines;
    if (!widths.addTo(reader).read() || !widths.check(call) || !isChange(call)
        || !readLines(call, linesPath, lines))
        return false;
    coDeckPatch patch =
        widths.isGiven() ? coDeckPatch(call.text(0), widths.given()) : coDeckPatch(call.text(0));
    patch.setProgress(call.goOnCondition());
    const ShellOperation operation(call, tr("Changing '%1'").arg(call.text(0)));
    if (!patch.read())
        return call.fail(patch.errorText());
    const int index = patch.find(call.text(2), number - 1);
    if (index < 0)
        return call.fail(
            tr("The deck '%1' (%2) holds no option \"%3\" of number %4; see 'deck show'.")
                .arg(call.text(0), patch.layout().text(), call.text(2), QString::number(number)));
    change(patch, call, index, lines);
    return patch.apply(keeps ? coDeckPatch::KeepOld : coDeckPatch::DropOld) || call.fail(patch.errorText());
}

bool DeckCommands::tables(ShellCall& call)
{
    DeckFile deck(call);
    if (!deck.isGood())
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
