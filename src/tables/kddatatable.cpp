#include "kddatatable.h"

#include "hashcombine.h"

#include <algorithm>

kdDataTable::kdDataTable() = default;

kdDataTable::kdDataTable(bool editable) : m_editable(editable) { }

kdDataTable::kdDataTable(kdUnitSystem::Dimension x, kdUnitSystem::Dimension y)
{
    m_columns.push_back(std::make_unique<kdDataColumn>(x, kdDataColumn::UsageX));
    m_columns.push_back(std::make_unique<kdDataColumn>(y, kdDataColumn::UsageY));
}

kdDataTable::kdDataTable(const kdDataTable& other)
{
    copyAttributes(other);
    append(other);
}

kdDataTable::kdDataTable(kdDataTable&& other) noexcept = default;

kdDataTable& kdDataTable::operator=(const kdDataTable& other)
{
    if (this != &other)
        *this = kdDataTable(other);
    return *this;
}

kdDataTable& kdDataTable::operator=(kdDataTable&& other) noexcept = default;

kdDataTable::~kdDataTable() = default;

void kdDataTable::copyAttributes(const kdDataTable& other)
{
    m_name = other.m_name;
    m_comment = other.m_comment;
    m_idTag = other.m_idTag;
    m_type = other.m_type;
    m_editable = other.m_editable;
    m_defaultXColumnIndex = other.m_defaultXColumnIndex;
    m_defaultYColumnIndex = other.m_defaultYColumnIndex;
    m_colorId = other.m_colorId;
}

void kdDataTable::getCopy(kdDataTable& copy) const
{
    copy = *this;
}

void kdDataTable::getCopy(QSharedPointer<kdDataTable>& copy) const
{
    copy = QSharedPointer<kdDataTable>::create(*this);
}

bool kdDataTable::getCopy(kdDataTable& copy, int xIndex, int yIndex) const
{
    if (!column(xIndex) || !column(yIndex))
        return false;
    kdDataTable result;
    result.copyAttributes(*this);
    for (int index : {xIndex, yIndex})
        result.m_columns.emplace_back(column(index)->getCopy());
    copy = std::move(result);
    return true;
}

bool kdDataTable::operator==(const kdDataTable& other) const
{
    return m_name == other.m_name && m_comment == other.m_comment && m_editable == other.m_editable
        && m_defaultXColumnIndex == other.m_defaultXColumnIndex
        && m_defaultYColumnIndex == other.m_defaultYColumnIndex && m_idTag == other.m_idTag
        && equalsContent(other);
}

bool kdDataTable::equalsContent(const kdDataTable& other) const
{
    return std::equal(
        m_columns.begin(), m_columns.end(), other.m_columns.begin(), other.m_columns.end(),
        [](const ColumnPointer& mine, const ColumnPointer& theirs) { return *mine == *theirs; });
}

uint qHash(const kdDataTable& table, uint seed)
{
    HashCombine hash(seed);
    hash.add(table.name()).add(table.comment()).add(table.idTag()).add(int(table.isEditable()));
    hash.add(table.defaultXColumnIndex()).add(table.defaultYColumnIndex());
    for (int i = 0; i < table.columns(); ++i)
        hash.add(*table.column(i));
    return hash.result();
}

qint64 kdDataTable::memoryFootprint() const
{
    const int characters = m_name.capacity() + m_comment.capacity() + m_idTag.capacity();
    qint64 bytes = qint64(sizeof *this) + qint64(m_columns.capacity() * sizeof(ColumnPointer))
        + qint64(characters) * qint64(sizeof(QChar));
    for (const ColumnPointer& column : m_columns)
        bytes += column->memoryFootprint();
    return bytes;
}

void kdDataTable::setDefaultXColumnIndex(int index)
{
    if (column(index))
        m_defaultXColumnIndex = index;
}

void kdDataTable::setDefaultYColumnIndex(int index)
{
    if (column(index))
        m_defaultYColumnIndex = index;
}

void kdDataTable::clear()
{
    *this = kdDataTable();
}
