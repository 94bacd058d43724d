#include "cotablecsvwriter.h"

coTableCSVWriter::coTableCSVWriter(const kdDataTable& table) : m_table(table) { }

void coTableCSVWriter::writeAdditionalInformation(QTextStream& stream) const
{
    if (!m_table.name().isEmpty())
        writeComment(stream, tr("Table: ") + m_table.name());
    if (!m_table.comment().isEmpty())
        writeComment(stream, m_table.comment());
}

void coTableCSVWriter::writeColumnHeader(QTextStream& stream) const
{
    QStringList titles;
    for (int i = 0; i < m_table.columns(); ++i) {
        const kdDataColumn& column = m_table.columnRef(i);
        QString title = column.title().isEmpty() ? column.name() : column.title();
        if (title.isEmpty())
            title = tr("column %1").arg(i + 1);
        const kdUnitSystem unit = unitOf(column);
        const bool hasUnit = unit.isValid() && unit != kdUnitSystem();
        titles.append(hasUnit ? QStringLiteral("%1 [%2]").arg(title, unit.symbol()) : title);
    }
    writeTitles(stream, titles);
}

QList<QVariant> coTableCSVWriter::getTokens(int row) const
{
    QList<QVariant> tokens;
    tokens.reserve(m_table.columns());
    for (int i = 0; i < m_table.columns(); ++i) {
        const kdDataColumn& column = m_table.columnRef(i);
        tokens.append(column.getUnitSystem().convert(column.value(row), unitOf(column)));
    }
    return tokens;
}

int coTableCSVWriter::nbElements() const
{
    return m_table.rows();
}

kdUnitSystem coTableCSVWriter::unitOf(const kdDataColumn& column) const
{
    const kdUnitSystem own = column.getUnitSystem();
    const kdUnitSystem chosen(own.dimension(), unitIndices(own.dimension()));
    return own.canConvertTo(chosen) ? chosen : own;
}
