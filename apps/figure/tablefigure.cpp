#include "tablefigure.h"

#include <algorithm>

namespace {

/// The title, else the name, which was made for scripts, as people write it: "Yield stress" for yield_stress.
QString titleOf(const kdDataColumn& column)
{
    constexpr int longestSymbol = 3; // whose case means something
    QString name = column.name().replace(QLatin1Char('_'), QLatin1Char(' '));
    if (name.size() > longestSymbol)
        name[0] = name.at(0).toUpper();
    return column.title().isEmpty() ? name : column.title();
}

/// A column on its way to the figure: its values, in the unit of its axis in the end.
struct Values {
    kdDataColumn x;
    kdDataColumn y;
    const kdDataTable* table;
    bool isRight;
};

struct YAxis {
    kdUnitSystem unit;
    bool isRight;
    bool hasWantedUnit = false;

    bool isFor(const Values& values) const
    {
        return values.y.getUnitSystem().dimension() == unit.dimension() && values.isRight == isRight;
    }
};

class TableFigure {
    Q_DECLARE_TR_FUNCTIONS(nTableFigure)

public:
    explicit TableFigure(const nTableFigure::Options& options) : m_options(options) { }

    QString error;

    bool add(const nTableFigure::Source& source)
    {
        const kdDataTable& table = *source.table;
        const int x = source.x < 0 ? table.defaultXColumnIndex() : source.x;
        const QVector<int> y = source.y.isEmpty() ? shownColumns(table, x) : source.y;
        if (y.isEmpty())
            return fail(tr("Table '%1' has no columns to draw.").arg(table.name()));
        for (const int column : y) {
            if (!table.column(x) || !table.column(column))
                return fail(tr("Table '%1' has no column %2.")
                                .arg(table.name(), QString::number((table.column(x) ? column : x) + 1)));
            m_values.append(
                {table.columnRef(x), table.columnRef(column), &table, source.right.contains(column)});
        }
        return true;
    }

    bool make(Figure& figure)
    {
        if (!chooseUnits())
            return false;
        Figure result;
        for (Values& values : m_values) {
            const int axis = axisIndex(values);
            if (!convert(values.x, m_xUnit) || !convert(values.y, m_yAxes.at(axis).unit))
                return false;
            result.curves.append({nameOf(values), pointsOf(values), axis, m_options.form});
        }
        result.title = commonTableName();
        result.x = xAxis();
        for (const YAxis& axis : qAsConst(m_yAxes))
            result.y.append(yAxis(axis));
        figure = result;
        return true;
    }

private:
    bool fail(const QString& text)
    {
        error = text;
        return false;
    }

    bool convert(kdDataColumn& column, const kdUnitSystem& unit)
    {
        return column.getUnitSystem() == unit || column.toUnit(unit)
            || fail(tr("Column '%1' in '%2' does not convert to '%3'.")
                        .arg(titleOf(column), column.getUnitSystem().symbol(), unit.symbol()));
    }

    static QVector<int> shownColumns(const kdDataTable& table, int x)
    {
        QVector<int> columns;
        for (int i = 0; i < table.columns(); ++i)
            if (i != x && table.columnRef(i).isVisible())
                columns.append(i);
        return columns;
    }

    int axisIndex(const Values& values) const
    {
        int index = 0;
        while (index < m_yAxes.size() && !m_yAxes.at(index).isFor(values))
            ++index;
        return index;
    }

    bool chooseUnits()
    {
        m_xUnit = unitOf(m_values.constFirst().x);
        for (const Values& values : qAsConst(m_values)) {
            if (values.x.getUnitSystem().dimension() != m_xUnit.dimension())
                return fail(
                    tr("Tables '%1' and '%2' run over different quantities, %3 and %4.")
                        .arg(m_values.constFirst().table->name(), values.table->name(),
                             kdUnitSystem::translatedDimensionName(m_xUnit.dimension()),
                             kdUnitSystem::translatedDimensionName(values.x.getUnitSystem().dimension())));
            if (axisIndex(values) == m_yAxes.size())
                m_yAxes.append({unitOf(values.y), values.isRight});
        }
        std::stable_sort(m_yAxes.begin(), m_yAxes.end(),
                         [](const YAxis& a, const YAxis& b) { return !a.isRight && b.isRight; });
        if (m_yAxes.size() > 2)
            return fail(tr("The columns have %1 different quantities (%2), and a picture has two y axes at "
                           "most; choose columns.")
                            .arg(QString::number(m_yAxes.size()), quantities()));
        return takeWantedUnits();
    }

    bool takeWantedUnits()
    {
        bool fits = m_options.xUnit.isEmpty();
        if (!fits)
            m_xUnit = kdUnitSystem::fromSymbol(m_options.xUnit, m_xUnit.dimension(), &fits);
        if (!fits)
            return fail(
                tr("The x axis shows %1, which has no unit '%2'.")
                    .arg(kdUnitSystem::translatedDimensionName(m_xUnit.dimension()), m_options.xUnit));
        for (const QString& symbol : m_options.yUnits)
            if (!takeWantedUnit(symbol))
                return fail(tr("No y axis can be shown in '%1'; they show %2.").arg(symbol, quantities()));
        return true;
    }

    bool takeWantedUnit(const QString& symbol)
    {
        for (YAxis& axis : m_yAxes) {
            bool isKnown = false;
            const kdUnitSystem wanted = kdUnitSystem::fromSymbol(symbol, axis.unit.dimension(), &isKnown);
            if (isKnown && !axis.hasWantedUnit) {
                axis = {wanted, axis.isRight, true};
                return true;
            }
        }
        return false;
    }

    kdUnitSystem unitOf(const kdDataColumn& column) const
    {
        const kdUnitSystem unit = column.getUnitSystem();
        return m_options.inViewUnits && unit.isValid() ? kdUnitSystem::viewUnit(unit.dimension()) : unit;
    }

    QString quantities() const
    {
        QStringList names;
        for (const YAxis& axis : m_yAxes)
            names.append(kdUnitSystem::translatedDimensionName(axis.unit.dimension()));
        return names.join(QLatin1String(", "));
    }

    bool isOneTable() const
    {
        for (const Values& values : m_values)
            if (values.table != m_values.constFirst().table)
                return false;
        return true;
    }

    QString commonTableName() const { return isOneTable() ? m_values.constFirst().table->name() : QString(); }

    /// By the column within one table, by the table where each gives one curve, else by both.
    QString nameOf(const Values& values) const
    {
        const QString table = values.table->name();
        const QString column = titleOf(values.y);
        if (column.isEmpty() || isOneTable())
            return column.isEmpty() ? table : column;
        int curvesOfTable = 0;
        for (const Values& other : m_values)
            curvesOfTable += other.table == values.table ? 1 : 0;
        return curvesOfTable == 1 && !table.isEmpty() ? table : QStringLiteral("%1: %2").arg(table, column);
    }

    static QVector<QPointF> pointsOf(const Values& values)
    {
        QVector<QPointF> points(qMin(values.x.size(), values.y.size()));
        for (int i = 0; i < points.size(); ++i)
            points[i] = {values.x.values().at(i), values.y.values().at(i)};
        return points;
    }

    Figure::Axis xAxis() const
    {
        QStringList titles;
        for (const Values& values : m_values)
            titles.append(titleOf(values.x));
        return axis(titles, m_xUnit);
    }

    Figure::Axis yAxis(const YAxis& yAxis) const
    {
        QStringList titles;
        for (const Values& values : m_values)
            if (yAxis.isFor(values))
                titles.append(titleOf(values.y));
        return axis(titles, yAxis.unit);
    }

    /// The title that all columns have, else the name of the dimension.
    static Figure::Axis axis(QStringList titles, const kdUnitSystem& unit)
    {
        titles.removeDuplicates();
        QString title = titles.size() == 1 ? titles.first() : QString();
        if (title.isEmpty() && unit.dimension() != kdUnitSystem::None)
            title = kdUnitSystem::translatedDimensionName(unit.dimension());
        return {title, unit.symbol()};
    }

    const nTableFigure::Options& m_options;
    QVector<Values> m_values;
    kdUnitSystem m_xUnit;
    QVector<YAxis> m_yAxes;
};

} // namespace

bool nTableFigure::make(const QVector<Source>& sources, const Options& options, Figure& figure,
                        QString& error)
{
    TableFigure builder(options);
    bool ok = !sources.isEmpty();
    for (const Source& source : sources)
        ok = ok && builder.add(source);
    ok = ok && builder.make(figure);
    error = builder.error;
    return ok;
}
