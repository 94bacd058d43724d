#include "deckcommands.h"

#include "shellsession.h"
#include "tablecommands.h"

const ShellCommandGroup& DeckCommands::group()
{
    static const ShellCommandGroup group{"deck", "DeckCommands",
                                         QT_TR_NOOP("The solver's input deck: its lines and its cards."),
                                         lineEntries() + cardEntries() + fileEntries()};
    return group;
}

QVector<ShellCommandEntry> DeckCommands::lineEntries()
{
    using Entry = ShellCommandEntry;
    constexpr int anyNumber = ShellCommand::anyNumber;
    return {
        {"open", "FILE [fixed|free] [standard|extended]",
         QT_TR_NOOP("Begins a deck; free and extended where nothing is said."), 1, 3, Entry::CannotUndo,
         open},
        {"close", "", QT_TR_NOOP("Ends the deck and says whether all of it was written."), 0, 0,
         Entry::CannotUndo, close},
        {"flush", "", QT_TR_NOOP("Hands everything written so far to the system."), 0, 0, Entry::Query,
         flush},
        {"info", "", QT_TR_NOOP("Shows file and layout of the deck."), 0, 0, Entry::Query, info},
        {"format", "fixed|free", QT_TR_NOOP("Changes the layout of the lines to come."), 1, 1,
         Entry::WritesDeck, format},
        {"title", "TEXT", QT_TR_NOOP("Writes the title line."), 1, anyNumber, Entry::WritesDeck, title},
        {"comment", "[TEXT]", QT_TR_NOOP("Writes comment lines, cut where the text is too long for one."), 0,
         anyNumber, Entry::WritesDeck, comment},
        {"keyword", "TEXT", QT_TR_NOOP("Writes a keyword line."), 1, anyNumber, Entry::WritesDeck, keyword},
        {"key", "KEY", QT_TR_NOOP("Writes a key of the parameter section, without line end."), 1, 1,
         Entry::WritesDeck, key},
        {"text", "TEXT", QT_TR_NOOP("Writes a text as it is, without line end."), 1, anyNumber,
         Entry::WritesDeck, text},
        {"break", "", QT_TR_NOOP("Ends the line."), 0, 0, Entry::WritesDeck, lineBreak},
        {"element", "NUMBER", QT_TR_NOOP("Writes the line \"element\"."), 1, 1, Entry::WritesDeck, element},
        {"feature", "NUMBER", QT_TR_NOOP("Writes the line \"feature\"."), 1, 1, Entry::WritesDeck, feature},
        {"nodal", "NUMBER", QT_TR_NOOP("Writes the line \"nodal\"."), 1, 1, Entry::WritesDeck, nodal},
        {"loadcase", "NAME", QT_TR_NOOP("Writes the line \"loadcase\"."), 1, anyNumber, Entry::WritesDeck,
         loadcase},
        {"integers", "PERLINE NUMBER...", QT_TR_NOOP("Writes a list of whole numbers."), 2, anyNumber,
         Entry::WritesDeck, integers},
        {"reals", "PERLINE NUMBER...", QT_TR_NOOP("Writes a list of numbers."), 2, anyNumber,
         Entry::WritesDeck, reals},
        {"column", "PERLINE TABLE COLUMN", QT_TR_NOOP("Writes the values of a table's column as a list."), 3,
         3, Entry::WritesDeck, column},
    };
}

QVector<ShellCommandEntry> DeckCommands::cardEntries()
{
    using Entry = ShellCommandEntry;
    constexpr int anyNumber = ShellCommand::anyNumber;
    return {
        {"section", "table", QT_TR_NOOP("Writes the key of the parameter section that allows tables."), 1, 1,
         Entry::WritesDeck, sectionTable},
        {"table", "TABLE id ID variable CODE [name TEXT] [hold]",
         QT_TR_NOOP("Writes a table of two columns in its own units; hold: no extrapolation."), 5, anyNumber,
         Entry::WritesDeck, table},
        {"grid", "TABLE id ID variable CODE variable2 CODE [from UNIT] [to UNIT] [name TEXT] [single] [hold]",
         QT_TR_NOOP("Writes a table of two variables: the first in its first column, the second in the other "
                    "columns' names, converted where from and to say so; single: one value a line."),
         7, anyNumber, Entry::WritesDeck, grid},
        {"formula", "NAME id ID variable CODE [variable2 CODE] formula FORMULA [unchecked]",
         QT_TR_NOOP("Writes a table that the solver evaluates from a formula of v1 and v2, checked and with "
                    "the values of parameters put in; unchecked: as it is."),
         5, anyNumber, Entry::WritesDeck, formula},
        {"solver",
         "TYPE [uppercase] [nonsymmetric] [fullk] [reproducible] [rigid FLAG] [iterations N] [tolerance T] "
         "[comment]",
         QT_TR_NOOP("Writes the solver option: automatic, pardiso, multifrontal, mumps, iterative, sparse, "
                    "casi, profile or mixed."),
         1, anyNumber, Entry::WritesDeck, solver},
        {"process",
         "[3d] [material N] [licences N] [type N] [noheat] [kin N] [rigid N] [version N] [checkheat] "
         "[contact N]",
         QT_TR_NOOP("Writes the process line."), 0, anyNumber, Entry::WritesDeck, process},
        {"autoload", "time T [travel S] [steps N] [remeshings N] [cutback N]",
         QT_TR_NOOP("Writes automatic loading."), 2, anyNumber, Entry::WritesDeck, autoLoad},
        {"pointload", "nodes NAME body ID force X Y Z [3d] [component NAME] [comment TEXT]",
         QT_TR_NOOP("Writes a force on a list of nodes, in newton."), 2, anyNumber, Entry::WritesDeck,
         pointLoad},
        {"pointcurrent", "label NAME node NAME [current VALUE] [unit UNIT] [table ID]",
         QT_TR_NOOP("Writes an electric current at a node, constant or by a table."), 2, anyNumber,
         Entry::WritesDeck, pointCurrent},
    };
}

CFEDatLineWriter& DeckCommands::writer()
{
    return ShellSession::I().deck.writer();
}

bool DeckCommands::open(ShellCall& call)
{
    ShellDeck& deck = ShellSession::I().deck;
    if (deck.isOpen())
        return call.fail(tr("The deck '%1' is still open; see 'deck close'.").arg(deck.path()));
    CFEDatLineWriter::datFormat format = CFEDatLineWriter::free;
    CFEDatLineWriter::datExtensionMode mode = CFEDatLineWriter::extended;
    for (int i = 1; i < call.count(); ++i) {
        if (call.is(i, "fixed"))
            format = CFEDatLineWriter::fixed;
        else if (call.is(i, "standard"))
            mode = CFEDatLineWriter::standard;
        else if (!call.is(i, "free") && !call.is(i, "extended"))
            return call.fail(
                tr("'%1' is no layout; possible are fixed, free, standard, extended.").arg(call.text(i)));
    }
    if (!deck.open(call.text(0), format, mode, ShellSession::I().locks))
        return call.fail(deck.errorText());
    return true;
}

bool DeckCommands::close(ShellCall& call)
{
    ShellDeck& deck = ShellSession::I().deck;
    if (!deck.isOpen())
        return call.fail(tr("No deck is open."));
    if (!deck.close())
        return call.fail(deck.errorText());
    call.tell(tr("Deck '%1' written.").arg(deck.path()));
    return true;
}

bool DeckCommands::flush(ShellCall& call)
{
    ShellDeck& deck = ShellSession::I().deck;
    if (!deck.isOpen())
        return call.fail(tr("No deck is open."));
    return deck.flush() || call.fail(deck.errorText());
}

bool DeckCommands::info(ShellCall& call)
{
    const ShellDeck& deck = ShellSession::I().deck;
    if (!deck.isOpen()) {
        call.show(tr("No deck is open."));
        return true;
    }
    const bool isFixed = deck.writer().getFormat() == CFEDatLineWriter::fixed;
    const bool isStandard = deck.writer().getExtensionMode() == CFEDatLineWriter::standard;
    call.show(tr("Deck '%1': %2, %3.")
                  .arg(deck.path(), isFixed ? tr("fixed columns") : tr("free format"),
                       isStandard ? tr("standard widths") : tr("extended widths")));
    return true;
}

bool DeckCommands::format(ShellCall& call)
{
    if (!call.is(0, "fixed") && !call.is(0, "free"))
        return call.fail(tr("'%1' is no format; possible are fixed and free.").arg(call.text(0)));
    writer().setFormat(call.is(0, "fixed") ? CFEDatLineWriter::fixed : CFEDatLineWriter::free);
    return true;
}

bool DeckCommands::title(ShellCall& call)
{
    return writer().writeTitle(call.textFrom(0));
}

bool DeckCommands::comment(ShellCall& call)
{
    return writer().writeCommentLine(call.textFrom(0));
}

bool DeckCommands::keyword(ShellCall& call)
{
    return writer().writeKeywordLine(call.textFrom(0));
}

bool DeckCommands::key(ShellCall& call)
{
    return writer().writeParameterSectionKey(call.text(0));
}

bool DeckCommands::text(ShellCall& call)
{
    return writer().writeStringUnformatted(call.textFrom(0));
}

bool DeckCommands::lineBreak(ShellCall&)
{
    return writer().writeLineBreak();
}

bool DeckCommands::element(ShellCall& call)
{
    int number = 0;
    return call.readInt(0, QStringLiteral("NUMBER"), number) && writer().writeElement(number);
}

bool DeckCommands::feature(ShellCall& call)
{
    int number = 0;
    return call.readInt(0, QStringLiteral("NUMBER"), number) && writer().writeFeature(number);
}

bool DeckCommands::nodal(ShellCall& call)
{
    int number = 0;
    return call.readInt(0, QStringLiteral("NUMBER"), number) && writer().writeNodal(number);
}

bool DeckCommands::loadcase(ShellCall& call)
{
    return writer().writeLoadcase(call.textFrom(0));
}

namespace {

bool readPerLine(const ShellCall& call, int& perLine)
{
    if (!call.readInt(0, QStringLiteral("PERLINE"), perLine))
        return false;
    return perLine > 0 || call.fail(DeckCommands::tr("PERLINE must be at least 1, not %1.").arg(perLine));
}

} // namespace

bool DeckCommands::integers(ShellCall& call)
{
    int perLine = 0;
    if (!readPerLine(call, perLine))
        return false;
    QList<int> values;
    for (int i = 1; i < call.count(); ++i) {
        int value = 0;
        if (!call.readInt(i, tr("Number %1").arg(i), value))
            return false;
        values.append(value);
    }
    return writer().writeList(values, perLine);
}

bool DeckCommands::reals(ShellCall& call)
{
    int perLine = 0;
    if (!readPerLine(call, perLine))
        return false;
    QList<double> values;
    for (int i = 1; i < call.count(); ++i) {
        double value = 0.0;
        if (!call.readReal(i, tr("Number %1").arg(i), value))
            return false;
        values.append(value);
    }
    return writer().writeDoubleValues(values, perLine);
}

bool DeckCommands::column(ShellCall& call)
{
    int perLine = 0;
    if (!readPerLine(call, perLine))
        return false;
    const ShellTables::Table table = TableCommands::find(call, call.text(1));
    const int index = table.isNull() ? -1 : TableCommands::columnIndex(call, *table, call.text(2));
    if (index < 0)
        return false;
    const QVector<double>& values = table->columnRef(index).values();
    const ShellOperation operation(call, tr("Writing to the deck"));
    const ShellDeck::Watch watch(ShellSession::I().deck, call.goOnCondition(),
                                 qint64(values.size()) * writer().getMaxWidthForDouble());
    return writer().writeDoubleValues(QList<double>(values.begin(), values.end()), perLine);
}
