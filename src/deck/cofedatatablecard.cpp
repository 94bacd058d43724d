#include "cofedatatablecard.h"

#include <kdQCore/kdDataColumn>
#include <kdQCore/kdDataTable>
#include <kdQCore/kdUnitSystem>

#include <cmath>

namespace {

QString number(double value)
{
    return QString::number(value, 'g', 16);
}

/// Reads columns of a table, in another unit, and keeps the first reason why that fails.
class Reader {
    Q_DECLARE_TR_FUNCTIONS(coFeDataTableCard)

public:
    explicit Reader(const kdDataTable& table) : m_table(table) { }

    bool ok() const { return m_errorText.isEmpty(); }
    QString errorText() const { return m_errorText; }

    void fail(const QString& reason)
    {
        if (ok())
            m_errorText = tr("Table '%1' does not fit the card: %2").arg(m_table.name(), reason);
    }

    /// SI values where \a unit is null.
    QList<double> values(int index, const kdUnitSystem* unit)
    {
        const kdDataColumn& column = m_table.columnRef(index);
        const kdUnitSystem own = column.getUnitSystem();
        if (unit && !own.canConvertTo(*unit))
            fail(tr("column %1 is in '%2', which cannot be converted to '%3'.")
                     .arg(QString::number(index + 1), own.symbol(), unit->symbol()));
        const kdUnitSystem target = unit ? *unit : kdUnitSystem::siUnit(own.dimension());
        QList<double> result;
        result.reserve(column.size());
        for (double value : column.values())
            result.append(own.convert(value, target));
        checkFinite(result, tr("column %1").arg(index + 1));
        return result;
    }

    void checkFinite(const QList<double>& values, const QString& name)
    {
        for (int i = 0; i < values.size(); ++i)
            if (!std::isfinite(values.at(i)))
                return fail(tr("value %1 of %2 is no finite number.").arg(QString::number(i + 1), name));
    }

    void checkNoDescent(const QList<double>& x)
    {
        for (int i = 1; i < x.size(); ++i)
            if (x.at(i) < x.at(i - 1))
                return fail(tr("x must not descend, but %1 in row %2 follows %3.")
                                .arg(number(x.at(i)), QString::number(i + 1), number(x.at(i - 1))));
    }

    /// All values must be distinct for the card too, or the grid would lose rows.
    void checkAscent(const QList<double>& values, const QString& name)
    {
        if (!ok())
            return;
        coFeTableCard::IndependentVarUsingValues variable(nMarc::NoTableVariable, values);
        variable.makeValuesDistinct();
        const int distinct = variable.distinctValues().size();
        for (int i = 0; i < distinct; ++i)
            if (variable.distinctValues().at(i) != values.at(i))
                return failAscent(values, i, name);
        if (distinct < values.size())
            failAscent(values, distinct, name);
    }

private:
    void failAscent(const QList<double>& values, int index, const QString& name)
    {
        fail(tr("%1 must ascend, but value %2 is %3 after %4.")
                 .arg(name, QString::number(index + 1), number(values.at(index)),
                      number(values.at(index - 1))));
    }

    const kdDataTable& m_table;
    QString m_errorText;
};

} // namespace

coFeDataTableCard::coFeDataTableCard(const QString& tableName, int tableId,
                                     const IndependentVarUsingValues& variable1)
    : coFeTableCard(tableName, tableId, variable1)
{
    setValues(&m_ownValues);
}

coFeDataTableCard::coFeDataTableCard(const coFeDataTableCard& other)
    : coFeTableCard(other), m_ownValues(other.m_ownValues), m_errorText(other.m_errorText)
{
    if (other.values() == &other.m_ownValues)
        setValues(&m_ownValues);
}

coFeDataTableCard& coFeDataTableCard::operator=(const coFeDataTableCard& other)
{
    coFeTableCard::operator=(other);
    m_ownValues = other.m_ownValues;
    m_errorText = other.m_errorText;
    if (other.values() == &other.m_ownValues)
        setValues(&m_ownValues);
    return *this;
}

coFeDataTableCard::~coFeDataTableCard() = default;

bool coFeDataTableCard::setTable(const kdDataTable& table)
{
    return take(table, nullptr, nullptr);
}

bool coFeDataTableCard::setTable(const kdDataTable& table, const kdUnitSystem& xUnit,
                                 const kdUnitSystem& yUnit)
{
    return take(table, &xUnit, &yUnit);
}

bool coFeDataTableCard::setGrid(const kdDataTable& table, const IndependentVarUsingValues& variable2)
{
    return takeGrid(table, variable2, nullptr, nullptr);
}

bool coFeDataTableCard::setGrid(const kdDataTable& table, const IndependentVarUsingValues& variable2,
                                const kdUnitSystem& xUnit, const kdUnitSystem& yUnit)
{
    return takeGrid(table, variable2, &xUnit, &yUnit);
}

kdDataTable coFeDataTableCard::toTable() const
{
    const auto& variable1 = static_cast<const IndependentVarUsingValues&>(independentVariable1());
    const auto* variable2 = static_cast<const IndependentVarUsingValues*>(independentVariable2());
    const QList<double>& x = variable2 ? variable1.distinctValues() : variable1.values();
    const QList<double> names = variable2 ? variable2->distinctValues() : QList<double>{0.0};
    const auto columnOf = [](const QList<double>& values) {
        kdDataColumn column;
        column.setValues(QVector<double>(values.begin(), values.end()));
        return column;
    };
    kdDataTable table;
    table.setName(tableName());
    table.appendColumn(columnOf(x));
    for (int i = 0; i < names.size(); ++i) {
        kdDataColumn column = columnOf(m_ownValues.mid(i * x.size(), x.size()));
        if (variable2)
            column.setName(number(names.at(i)));
        table.appendColumn(column);
    }
    return table;
}

void coFeDataTableCard::setOwnValues(const QList<double>& values)
{
    m_ownValues = values;
    setValues(&m_ownValues);
}

bool coFeDataTableCard::take(const kdDataTable& table, const kdUnitSystem* xUnit, const kdUnitSystem* yUnit)
{
    Reader reader(table);
    if (!table.isXYDataTable())
        reader.fail(
            tr("it is no XY table (an X and a Y column); number of columns: %1.").arg(table.columns()));
    else if (table.rows() == 0)
        reader.fail(tr("it has no rows."));
    if (!reader.ok())
        return refuse(reader.errorText());

    const QList<double> x = reader.values(0, xUnit);
    const QList<double> y = reader.values(1, yUnit);
    reader.checkNoDescent(x);
    if (!reader.ok())
        return refuse(reader.errorText());

    removeIndependentVariable2();
    return accept(x, y);
}

bool coFeDataTableCard::takeGrid(const kdDataTable& table, const IndependentVarUsingValues& variable2,
                                 const kdUnitSystem* xUnit, const kdUnitSystem* yUnit)
{
    Reader reader(table);
    const int columns = variable2.values().size();
    if (table.columns() < 2 || table.columns() != columns + 1)
        reader.fail(
            tr("it has %1 columns, but the grid needs one for x and one for each of %2 values of the second "
               "variable.")
                .arg(QString::number(table.columns()), QString::number(columns)));
    else if (table.rows() == 0)
        reader.fail(tr("it has no rows."));
    if (!reader.ok())
        return refuse(reader.errorText());

    const QList<double> x = reader.values(0, xUnit);
    QList<double> y;
    for (int column = 1; column <= columns; ++column)
        y += reader.values(column, yUnit);
    reader.checkAscent(x, tr("x"));
    reader.checkFinite(variable2.values(), tr("the second variable"));
    reader.checkAscent(variable2.values(), tr("the second variable"));
    if (!reader.ok())
        return refuse(reader.errorText());

    accept(x, y);
    setIndependentVariable2(variable2);
    return true;
}

bool coFeDataTableCard::accept(const QList<double>& x, const QList<double>& y)
{
    setValuesOfVariable1(x);
    setOwnValues(y);
    m_errorText.clear();
    return true;
}

bool coFeDataTableCard::refuse(const QString& errorText)
{
    m_errorText = errorText;
    return false;
}
