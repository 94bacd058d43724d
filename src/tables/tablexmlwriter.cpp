#include "tablexmlwriter.h"

#include "kddatatable.h"
#include "numbertext.h"

#include <kdqcore_version.h>

#include <algorithm>

namespace {

bool isAllowedInXml(ushort c)
{
    return c >= 0x20 ? c < 0xfffe : (c == '\t' || c == '\n' || c == '\r');
}

// XML has no form for control characters and halves of surrogate pairs, not even an escaped one.
QString allowedInXml(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || !isAllowedInXml(c.unicode()))
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

QString number(int value)
{
    return QString::number(value);
}

// One row at a time in a buffer that keeps its size.
class RowText {
public:
    explicit RowText(int columns) { m_text.reserve(std::min(columns, 1000) * nNumberText::capacity); }

    void clear() { m_text.resize(0); }
    void append(double value)
    {
        char digits[nNumberText::capacity];
        char* const end = nNumberText::writeRounded(digits, value);
        *end = ';';
        m_text.append(QLatin1String(digits, int(end - digits) + 1));
    }
    void dropLastSemicolon() { m_text.chop(1); }
    const QString& text() const { return m_text; }

private:
    QString m_text;
};

} // namespace

void TableXmlWriter::write(const QString& element, ValueEnd valueEnd)
{
    m_writer.writeStartElement(element);
    writeHead();
    for (int i = 0; i < m_table.columns(); ++i)
        writeColumn(i);
    writeRows(valueEnd);
    m_writer.writeEndElement();
}

void TableXmlWriter::writeHead()
{
    const QString name = QStringLiteral("name");
    const QString type = QStringLiteral("type");
    const QString columns = QStringLiteral("columns");
    const QString rows = QStringLiteral("rows");
    m_writer.writeAttribute(name, allowedInXml(m_table.name()));
    m_writer.writeAttribute(type, number(m_table.type()));
    m_writer.writeAttribute(columns, number(m_table.columns()));
    m_writer.writeAttribute(rows, number(m_table.rows()));
    m_writer.writeAttribute(QStringLiteral("version"), QStringLiteral(KDQCORE_VERSION_STRING));
    writeText(name, m_table.name());
    writeText(QStringLiteral("idTag"), m_table.idTag());
    writeText(QStringLiteral("comment"), m_table.comment());
    writeText(type, number(m_table.type()));
    writeText(columns, number(m_table.columns()));
    writeText(rows, number(m_table.rows()));
}

void TableXmlWriter::writeColumn(int index)
{
    const kdDataColumn& column = m_table.columnRef(index);
    const kdUnitSystem unit = column.getUnitSystem();
    m_writer.writeStartElement(QStringLiteral("columndata"));
    m_writer.writeAttribute(QStringLiteral("title"), allowedInXml(column.title()));
    m_writer.writeAttribute(QStringLiteral("type"), number(column.getType()));
    m_writer.writeAttribute(QStringLiteral("datatype"), QStringLiteral("1"));
    m_writer.writeAttribute(QStringLiteral("fffunit"), number(unit.unitIndex()));
    m_writer.writeAttribute(QStringLiteral("unit_symbol"), unit.symbol());
    m_writer.writeAttribute(QStringLiteral("usage"), number(column.getUsage()));
    m_writer.writeAttribute(QStringLiteral("dimension"), number(unit.dimension()));
    writeText(QStringLiteral("name"), column.name());
    m_writer.writeEndElement();
}

void TableXmlWriter::writeRows(ValueEnd valueEnd)
{
    const QString element = QStringLiteral("row");
    const QString rowNumber = QStringLiteral("nb");
    const int columns = m_table.columns();
    const int rows = m_table.rows();
    RowText row(columns);
    for (int i = 0; i < rows; ++i) {
        row.clear();
        for (int k = 0; k < columns; ++k)
            row.append(m_table.column(k)->value(i));
        if (valueEnd == SeparatedValues)
            row.dropLastSemicolon();
        m_writer.writeStartElement(element);
        m_writer.writeAttribute(rowNumber, number(i + 1));
        m_writer.writeCharacters(row.text());
        m_writer.writeEndElement();
    }
}

// A carriage return in plain form is read as a line feed.
void TableXmlWriter::writeText(const QString& element, const QString& text)
{
    m_writer.writeStartElement(element);
    const QString allowed = allowedInXml(text);
    int start = 0;
    for (int end; (end = allowed.indexOf(QLatin1Char('\r'), start)) >= 0; start = end + 1) {
        m_writer.writeCharacters(allowed.mid(start, end - start));
        m_writer.writeEntityReference(QStringLiteral("#13"));
    }
    m_writer.writeCharacters(allowed.mid(start));
    m_writer.writeEndElement();
}
