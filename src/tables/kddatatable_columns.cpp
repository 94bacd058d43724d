#include "kddatatable.h"

#include <kdQCore/kdLog>

#include <algorithm>

namespace {

template <typename Columns, typename Matches>
auto firstMatch(const Columns& columns, Matches matches)
{
    const auto found = std::find_if(columns.begin(), columns.end(), matches);
    return found == columns.end() ? nullptr : found->get();
}

bool refuse()
{
    KD_LOG_FAILED_ASSERT(QStringLiteral("invalid column, not added!"));
    return false;
}

void logMissingColumn(int index, int columns, const QString& table)
{
    KD_LOG_FAILED_ASSERT(QStringLiteral("column %1 of table '%2' was asked for, which has %3 columns")
                             .arg(QString::number(index), table, QString::number(columns)));
}

} // namespace

int kdDataTable::rows() const
{
    return m_columns.empty() ? 0 : m_columns.front()->size();
}

const kdDataColumn* kdDataTable::column(int index) const
{
    return index >= 0 && index < columns() ? m_columns[std::size_t(index)].get() : nullptr;
}

kdDataColumn* kdDataTable::column(int index)
{
    return const_cast<kdDataColumn*>(std::as_const(*this).column(index));
}

const kdDataColumn& kdDataTable::columnRef(int index) const
{
    if (const kdDataColumn* found = column(index))
        return *found;
    logMissingColumn(index, columns(), m_name);
    static const kdDataColumn noColumn;
    return noColumn;
}

kdDataColumn& kdDataTable::columnRef(int index)
{
    if (kdDataColumn* found = column(index))
        return *found;
    logMissingColumn(index, columns(), m_name);
    thread_local kdDataColumn noColumn;
    noColumn.clear();
    return noColumn;
}

const kdDataColumn* kdDataTable::columnForID(int id) const
{
    return firstMatch(m_columns, [id](const ColumnPointer& column) { return column->getId() == id; });
}

kdDataColumn* kdDataTable::columnForID(int id)
{
    return const_cast<kdDataColumn*>(std::as_const(*this).columnForID(id));
}

const kdDataColumn* kdDataTable::getDataColumnByName(const QString& name) const
{
    return column(getDataColumnIndexByName(name));
}

kdDataColumn* kdDataTable::getDataColumnByName(const QString& name)
{
    return column(getDataColumnIndexByName(name));
}

const kdDataColumn* kdDataTable::getDataColumnByTitle(const QString& title) const
{
    return firstMatch(m_columns, [&title](const ColumnPointer& column) { return column->title() == title; });
}

kdDataColumn* kdDataTable::getDataColumnByTitle(const QString& title)
{
    return const_cast<kdDataColumn*>(std::as_const(*this).getDataColumnByTitle(title));
}

int kdDataTable::getDataColumnIndexByName(const QString& name) const
{
    return indexOf(
        firstMatch(m_columns, [&name](const ColumnPointer& column) { return column->name() == name; }));
}

int kdDataTable::indexOf(const kdDataColumn* column) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [column](const ColumnPointer& each) { return each.get() == column; });
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

bool kdDataTable::fits(const kdDataColumn& column) const
{
    return rows() == 0 || column.size() == rows();
}

bool kdDataTable::appendColumn(const kdDataColumn& column)
{
    if (!fits(column))
        return refuse();
    m_columns.emplace_back(column.getCopy());
    return true;
}

bool kdDataTable::append(kdDataColumn* column)
{
    if (!column || !fits(*column) || indexOf(column) >= 0)
        return refuse();
    m_columns.emplace_back(column);
    return true;
}

bool kdDataTable::append(const kdDataTable& table)
{
    std::vector<ColumnPointer> copies;
    for (const ColumnPointer& column : table.m_columns) {
        if (!fits(*column))
            return refuse();
        copies.emplace_back(column->getCopy());
    }
    std::move(copies.begin(), copies.end(), std::back_inserter(m_columns));
    return true;
}

bool kdDataTable::removeAt(int index)
{
    if (!column(index))
        return false;
    m_columns.erase(m_columns.begin() + index);
    return true;
}

bool kdDataTable::remove(kdDataColumn* column)
{
    return removeAt(indexOf(column));
}

bool kdDataTable::replaceDataColumnAt(int index, kdDataColumn* column)
{
    kdDataColumn* old = this->column(index);
    if (!old || old == column)
        return old != nullptr;
    const bool fitsOthers =
        column && std::all_of(m_columns.begin(), m_columns.end(), [old, column](const ColumnPointer& other) {
            return other.get() == old || other->isEmpty() || other->size() == column->size();
        });
    if (!fitsOthers || indexOf(column) >= 0)
        return refuse();
    m_columns[std::size_t(index)].reset(column);
    return true;
}

bool kdDataTable::replaceColumn(int index, const kdDataColumn& column)
{
    ColumnPointer copy(column.getCopy());
    if (!replaceDataColumnAt(index, copy.get()))
        return false;
    static_cast<void>(copy.release()); // the table owns it now
    return true;
}

bool kdDataTable::replaceColumn(kdDataColumn* oldColumn, kdDataColumn* newColumn)
{
    return replaceDataColumnAt(indexOf(oldColumn), newColumn);
}

void kdDataTable::clearColumns()
{
    m_columns.clear();
}

bool kdDataTable::setXYData(kdDataColumn* x, kdDataColumn* y)
{
    if (!x || !y || x == y || x->size() != y->size())
        return refuse();
    for (ColumnPointer& column : m_columns)
        if (column.get() == x || column.get() == y)
            static_cast<void>(column.release()); // comes back in its new place
    m_columns.clear();
    m_columns.emplace_back(x);
    m_columns.emplace_back(y);
    x->setUsage(kdDataColumn::UsageX);
    y->setUsage(kdDataColumn::UsageY);
    return true;
}

void kdDataTable::setXName(const QString& name)
{
    if (kdDataColumn* x = column(0))
        x->setName(name);
}

void kdDataTable::setYName(const QString& name)
{
    if (kdDataColumn* y = column(1))
        y->setName(name);
}

void kdDataTable::setColumColor(int index, int red, int green, int blue)
{
    if (kdDataColumn* target = column(index))
        target->setRGBColor(red, green, blue);
}
