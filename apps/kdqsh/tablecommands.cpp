#include "tablecommands.h"

#include "shellsession.h"

#include <kdQCore/kdUnitSystem>

namespace {

/// Columns that a word addresses: "y" is every column but the first.
QVector<int> columnIndices(const ShellCall& call, const kdDataTable& table, const QString& word)
{
    if (word == QLatin1String("y") && table.getDataColumnIndexByName(word) < 0) {
        QVector<int> indices;
        for (int i = 1; i < table.columns(); ++i)
            indices.append(i);
        return indices;
    }
    const int index = TableCommands::columnIndex(call, table, word);
    return index < 0 ? QVector<int>() : QVector<int>{index};
}

QString columnName(const kdDataTable& table, int index)
{
    const QString name = table.columnRef(index).name();
    return name.isEmpty() ? QString::number(index + 1) : name;
}

QString heading(const kdDataTable& table, int index)
{
    return QStringLiteral("%1 [%2]").arg(columnName(table, index),
                                         table.columnRef(index).getUnitSystem().symbol());
}

} // namespace

const ShellCommandGroup& TableCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "table",
        "TableCommands",
        QT_TR_NOOP("Tables of material and process data with units."),
        {
            {"list", "", QT_TR_NOOP("Lists the tables of the session."), 0, 0, Entry::Query, list},
            {"import", "FILE [as NAME]",
             QT_TR_NOOP("Reads a text file of values, with names and units in its header."), 1, 3,
             Entry::ChangesTables, import},
            {"load", "FILE [as NAME]", QT_TR_NOOP("Reads a table from its XML form."), 1, 3,
             Entry::ChangesTables, load},
            {"export", "xml|text NAME FILE [SEPARATOR]",
             QT_TR_NOOP(
                 "Writes a table as XML or as text (separator: tab, blank or as given, ; by default)."),
             3, 4, Entry::Query, exportTable},
            {"show", "NAME [ROWS]", QT_TR_NOOP("Shows a table, or its first rows."), 1, 2, Entry::Query,
             show},
            {"info", "NAME", QT_TR_NOOP("Shows unit, range and direction of each column."), 1, 1,
             Entry::Query, info},
            {"lookup", "NAME X [COLUMN] [zero]",
             QT_TR_NOOP("Shows the interpolated value at X; outside the range the end value, or zero."), 2, 4,
             Entry::Query, lookup},
            {"convert", "NAME COLUMN UNIT [COLUMN UNIT]...",
             QT_TR_NOOP(
                 "Converts columns to units. A column is x, y (all but the first), a name or a number."),
             3, ShellCommand::anyNumber, Entry::ChangesTables, convert},
            {"unit", "NAME COLUMN UNIT [COLUMN UNIT]...",
             QT_TR_NOOP("States the units of columns and leaves the values as they are."), 3,
             ShellCommand::anyNumber, Entry::ChangesTables, setUnit},
            {"extract", "NAME COLUMN COLUMN as NEW", QT_TR_NOOP("Makes a new table of two columns."), 5, 5,
             Entry::ChangesTables, extract},
            {"copy", "NAME NEW", QT_TR_NOOP("Makes a copy of a table."), 2, 2, Entry::ChangesTables, copy},
            {"rename", "NAME NEW", QT_TR_NOOP("Gives a table another name."), 2, 2, Entry::ChangesTables,
             rename},
            {"remove", "NAME", QT_TR_NOOP("Removes a table from the session."), 1, 1, Entry::ChangesTables,
             remove},
            {"sort", "NAME [descending]", QT_TR_NOOP("Sorts the points of a table of two columns by X."), 1,
             2, Entry::ChangesTables, sort},
            {"scale", "NAME x|y FACTOR", QT_TR_NOOP("Multiplies X, or all other columns, by a factor."), 3, 3,
             Entry::ChangesTables, scale},
            {"combine", "NAME sum|difference|average|cut OTHER as NEW",
             QT_TR_NOOP(
                 "Makes a curve of two: sum, difference, average, or the part within the other's range."),
             5, 5, Entry::ChangesTables, combine},
        }};
    return group;
}

ShellTables::Table TableCommands::find(const ShellCall& call, const QString& name)
{
    const ShellTables& tables = ShellSession::I().tables;
    ShellTables::Table table = tables.find(name);
    if (table.isNull())
        call.fail(
            tables.names().isEmpty()
                ? tr("There is no table '%1'; none has been imported yet.").arg(name)
                : tr("There is no table '%1', only %2.").arg(name, tables.names().join(QLatin1String(", "))));
    return table;
}

int TableCommands::columnIndex(const ShellCall& call, const kdDataTable& table, const QString& word)
{
    const int byName = table.getDataColumnIndexByName(word);
    if (byName >= 0)
        return byName;
    for (int i = 0; i < table.columns(); ++i)
        if (table.columnRef(i).title() == word && !word.isEmpty())
            return i;
    bool isNumber = false;
    int number = word.toInt(&isNumber);
    if (word == QLatin1String("x") || word == QLatin1String("y")) {
        number = word == QLatin1String("x") ? 1 : 2;
        isNumber = true;
    }
    if (isNumber && number >= 1 && number <= table.columns())
        return number - 1;
    call.fail(tr("Table '%1' has no column '%2'; number of columns: %3.")
                  .arg(table.name(), word, QString::number(table.columns())));
    return -1;
}

QString TableCommands::size(const kdDataTable& table)
{
    return tr("Table '%1': %2 rows, %3 columns.")
        .arg(table.name(), QString::number(table.rows()), QString::number(table.columns()));
}

bool TableCommands::list(ShellCall& call)
{
    const ShellTables& tables = ShellSession::I().tables;
    const QStringList names = tables.names();
    for (const QString& name : names)
        call.show(size(*tables.find(name)));
    if (tables.names().isEmpty())
        call.tell(tr("No tables."));
    return true;
}

bool TableCommands::show(ShellCall& call)
{
    const ShellTables::Table table = find(call, call.text(0));
    int rows = table.isNull() ? 0 : table->rows();
    if (table.isNull() || (call.count() > 1 && !call.readInt(1, QStringLiteral("ROWS"), rows)))
        return false;
    showRows(call, *table, rows);
    return true;
}

void TableCommands::showRows(const ShellCall& call, const kdDataTable& table, int rows)
{
    call.showAligned(qBound(0, rows, table.rows()) + 1, [&table](int line) {
        QStringList cells;
        for (int column = 0; column < table.columns(); ++column)
            cells.append(line == 0 ? heading(table, column)
                                   : ShellCall::numberText(table.columnRef(column).value(line - 1)));
        return cells;
    });
}

bool TableCommands::info(ShellCall& call)
{
    const ShellTables::Table table = find(call, call.text(0));
    if (table.isNull())
        return false;
    const QStringList directions{tr("undefined"), tr("constant"), tr("increasing"), tr("decreasing"),
                                 tr("not monotonic")};
    call.show(size(*table));
    for (int i = 0; i < table->columns(); ++i) {
        const kdDataColumn& column = table->columnRef(i);
        const kdUnitSystem unit = column.getUnitSystem();
        call.show(tr("%1: %2 [%3], %4 to %5, %6")
                      .arg(columnName(*table, i), kdUnitSystem::translatedDimensionName(unit.dimension()),
                           unit.symbol(), ShellCall::numberText(column.minimum()),
                           ShellCall::numberText(column.maximum()),
                           directions.value(column.getMonotonicity())));
    }
    return true;
}

bool TableCommands::lookup(ShellCall& call)
{
    const ShellTables::Table table = find(call, call.text(0));
    double x = 0.0;
    if (table.isNull() || !call.readReal(1, QStringLiteral("X"), x))
        return false;
    const bool isZeroOutside = call.count() > 2 && call.is(call.count() - 1, "zero");
    const bool hasColumn = call.count() > (isZeroOutside ? 3 : 2);
    const int column = columnIndex(call, *table, hasColumn ? call.text(2) : QStringLiteral("y"));
    if (column < 0)
        return false;
    const double value = table->getInterpolDoubleValue(
        column, x, isZeroOutside ? kdDataTable::ZeroOutside : kdDataTable::HoldEndValues);
    const QString unit = table->columnRef(column).getUnitSystem().symbol();
    call.show(QStringLiteral("%1 %2").arg(ShellCall::numberText(value), unit).trimmed());
    return true;
}

namespace {

/// Runs \a change for every column of the pairs "COLUMN UNIT" and puts the changed table in the old one's
/// place.
bool changeUnits(ShellCall& call, const QString& usage,
                 bool (*change)(const ShellCall& call, kdDataColumn& column, const QString& symbol))
{
    const ShellTables::Table original = TableCommands::find(call, call.text(0));
    if (original.isNull())
        return false;
    if (call.count() % 2 == 0)
        return call.fail(usage);
    kdDataTable table(*original);
    for (int i = 1; i < call.count(); i += 2) {
        const QVector<int> indices = columnIndices(call, table, call.text(i));
        if (indices.isEmpty())
            return call.hasFailed()
                ? false
                : call.fail(TableCommands::tr("Table '%1' has no such column.").arg(call.text(0)));
        for (const int index : indices)
            if (!change(call, table.columnRef(index), call.text(i + 1)))
                return false;
    }
    ShellSession::I().tables.put(call.text(0), std::move(table));
    return true;
}

bool convertColumn(const ShellCall& call, kdDataColumn& column, const QString& symbol)
{
    const kdUnitSystem from = column.getUnitSystem();
    bool isKnown = false;
    const kdUnitSystem to = kdUnitSystem::fromSymbol(symbol, from.dimension(), &isKnown);
    if (isKnown && column.toUnit(to))
        return true;
    return call.fail(
        TableCommands::tr("Column '%1' in %2 cannot be converted to '%3'.")
            .arg(column.name(), from.isValid() ? from.symbol() : TableCommands::tr("no unit"), symbol));
}

} // namespace

bool TableCommands::setColumnUnit(const ShellCall& call, kdDataColumn& column, const QString& symbol)
{
    bool isKnown = false;
    kdUnitSystem unit = kdUnitSystem::fromSymbol(symbol, column.getUnitSystem().dimension(), &isKnown);
    if (!isKnown)
        unit = kdUnitSystem::fromSymbol(symbol, &isKnown);
    if (!isKnown)
        return call.fail(tr("'%1' is no unit.").arg(symbol));
    column.setUnit(unit);
    return true;
}

bool TableCommands::convert(ShellCall& call)
{
    return changeUnits(call, tr("Each column needs a unit."), convertColumn);
}

bool TableCommands::setUnit(ShellCall& call)
{
    return changeUnits(call, tr("Each column needs a unit."), setColumnUnit);
}

bool TableCommands::extract(ShellCall& call)
{
    const ShellTables::Table table = find(call, call.text(0));
    if (table.isNull())
        return false;
    if (!call.is(3, "as"))
        return call.fail(tr("'as' is missing before the new name."));
    const int x = columnIndex(call, *table, call.text(1));
    const int y = x < 0 ? -1 : columnIndex(call, *table, call.text(2));
    kdDataTable curve;
    if (y < 0 || !table->getCopy(curve, x, y))
        return false;
    curve.columnRef(0).setUsage(kdDataColumn::UsageX);
    curve.columnRef(1).setUsage(kdDataColumn::UsageY);
    ShellSession::I().tables.put(call.text(4), std::move(curve));
    return true;
}

bool TableCommands::copy(ShellCall& call)
{
    const ShellTables::Table table = find(call, call.text(0));
    if (table.isNull())
        return false;
    ShellSession::I().tables.put(call.text(1), *table);
    return true;
}

bool TableCommands::rename(ShellCall& call)
{
    if (!copy(call))
        return false;
    if (call.text(0) != call.text(1))
        ShellSession::I().tables.remove(call.text(0));
    return true;
}

bool TableCommands::remove(ShellCall& call)
{
    if (find(call, call.text(0)).isNull())
        return false;
    ShellSession::I().tables.remove(call.text(0));
    return true;
}

bool TableCommands::sort(ShellCall& call)
{
    const ShellTables::Table original = find(call, call.text(0));
    if (original.isNull())
        return false;
    if (call.count() > 1 && !call.is(1, "descending"))
        return call.fail(tr("'%1' is no order; leave it out or say descending.").arg(call.text(1)));
    if (!original->canSortXYData())
        return call.fail(tr("Table '%1' has not two columns with values.").arg(call.text(0)));
    const ShellOperation operation(call, tr("Sorting table '%1'").arg(call.text(0)));
    kdDataTable table(*original);
    if (!table.sortForXValues(call.count() > 1, call.goOnCondition()))
        return false;
    ShellSession::I().tables.put(call.text(0), std::move(table));
    return true;
}

bool TableCommands::scale(ShellCall& call)
{
    const ShellTables::Table original = find(call, call.text(0));
    double factor = 1.0;
    if (original.isNull() || !call.readReal(2, QStringLiteral("FACTOR"), factor))
        return false;
    kdDataTable table(*original);
    if (call.is(1, "x"))
        table.scaleXData(factor);
    else if (call.is(1, "y"))
        table.scaleYData(factor);
    else
        return call.fail(tr("'%1' is neither x nor y.").arg(call.text(1)));
    ShellSession::I().tables.put(call.text(0), std::move(table));
    return true;
}

bool TableCommands::combine(ShellCall& call)
{
    const ShellTables::Table first = find(call, call.text(0));
    const ShellTables::Table second = first.isNull() ? first : find(call, call.text(2));
    if (second.isNull())
        return false;
    if (!call.is(3, "as"))
        return call.fail(tr("'as' is missing before the new name."));
    const ShellOperation operation(call, tr("Combining '%1' and '%2'").arg(call.text(0), call.text(2)));
    kdDataTable result;
    bool isDone = false;
    const auto combine = [&](kdDataTable::Combination combination) {
        return first->combine(combination, *second, result, call.goOnCondition());
    };
    if (call.is(1, "sum"))
        isDone = combine(kdDataTable::Sum);
    else if (call.is(1, "difference"))
        isDone = combine(kdDataTable::Difference);
    else if (call.is(1, "average"))
        isDone = combine(kdDataTable::Average);
    else if (call.is(1, "cut"))
        isDone = first->getCutByOtherTable(*second, result);
    else
        return call.fail(tr("'%1' is none of sum, difference, average, cut.").arg(call.text(1)));
    if (!isDone)
        return call.fail(
            tr("Tables '%1' and '%2' do not fit: two columns each, X rising or falling, units that "
               "convert, ranges that meet.")
                .arg(call.text(0), call.text(2)));
    ShellSession::I().tables.put(call.text(4), std::move(result));
    return true;
}
