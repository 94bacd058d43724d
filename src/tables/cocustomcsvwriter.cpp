#include "cocustomcsvwriter.h"

coCustomCSVWriter::coCustomCSVWriter(const QStringList& titles, int rows, RowProvider provider)
    : m_titles(titles), m_rows(rows), m_provider(std::move(provider))
{
}

void coCustomCSVWriter::writeColumnHeader(QTextStream& stream) const
{
    writeTitles(stream, m_titles);
}

QList<QVariant> coCustomCSVWriter::getTokens(int row) const
{
    return m_provider ? m_provider(row) : QList<QVariant>();
}

int coCustomCSVWriter::nbElements() const
{
    return m_rows;
}
