#include "tablexmlwriter.h"

#include "kddatatable.h"
#include "numbertext.h"
#include "xmltext_p.h"

#include <kdqcore_version.h>

#include <charconv>
#include <iterator>
#include <vector>

namespace {

QString number(int value)
{
    return QString::number(value);
}

constexpr int blockSize = 1 << 16;

// Number and values of one row after the other, in buffers that stay.
class RowTexts {
public:
    RowTexts(const kdDataTable& table, TableXmlWriter::ValueEnd valueEnd)
        : m_withLastSemicolon(valueEnd == TableXmlWriter::TerminatedValues)
    {
        for (int i = 0; i < table.columns(); ++i)
            m_columns.push_back(table.column(i));
        m_values.resize(m_columns.size() * nNumberText::capacity);
    }

    QLatin1String number(int row)
    {
        return QLatin1String(m_number, std::to_chars(m_number, std::end(m_number), row + 1).ptr);
    }

    QLatin1String values(int row)
    {
        char* end = m_values.data();
        for (const kdDataColumn* column : m_columns) {
            end = nNumberText::writeRounded(end, column->value(row));
            *end++ = ';';
        }
        return QLatin1String(m_values.data(), m_withLastSemicolon ? end : end - 1);
    }

private:
    std::vector<const kdDataColumn*> m_columns;
    std::vector<char> m_values;
    char m_number[nNumberText::capacity];
    bool m_withLastSemicolon;
};

void set(QString& text, QLatin1String content)
{
    text.resize(0);
    text.append(content);
}

void append(QByteArray& block, QLatin1String text)
{
    block.append(text.data(), text.size());
}

} // namespace

bool TableXmlWriter::write(const QString& element, ValueEnd valueEnd)
{
    m_writer.writeStartElement(element);
    writeHead();
    for (int i = 0; i < m_table.columns(); ++i)
        writeColumn(i);
    bool isWritten = true;
    if (m_rowDevice)
        isWritten = writeRowsToDevice(valueEnd);
    else
        writeRows(valueEnd);
    m_writer.writeEndElement();
    return isWritten;
}

void TableXmlWriter::writeHead()
{
    const QString name = QStringLiteral("name");
    const QString type = QStringLiteral("type");
    const QString columns = QStringLiteral("columns");
    const QString rows = QStringLiteral("rows");
    m_writer.writeAttribute(name, textAllowedInXml(m_table.name()));
    m_writer.writeAttribute(type, number(m_table.type()));
    m_writer.writeAttribute(columns, number(m_table.columns()));
    m_writer.writeAttribute(rows, number(m_table.rows()));
    m_writer.writeAttribute(QStringLiteral("version"), QStringLiteral(KDQCORE_VERSION_STRING));
    writeXmlText(m_writer, name, m_table.name());
    writeXmlText(m_writer, QStringLiteral("idTag"), m_table.idTag());
    writeXmlText(m_writer, QStringLiteral("comment"), m_table.comment());
    writeXmlText(m_writer, type, number(m_table.type()));
    writeXmlText(m_writer, columns, number(m_table.columns()));
    writeXmlText(m_writer, rows, number(m_table.rows()));
}

void TableXmlWriter::writeColumn(int index)
{
    const kdDataColumn& column = m_table.columnRef(index);
    const kdUnitSystem unit = column.getUnitSystem();
    m_writer.writeStartElement(QStringLiteral("columndata"));
    m_writer.writeAttribute(QStringLiteral("title"), textAllowedInXml(column.title()));
    m_writer.writeAttribute(QStringLiteral("type"), number(column.getType()));
    m_writer.writeAttribute(QStringLiteral("datatype"), QStringLiteral("1"));
    m_writer.writeAttribute(QStringLiteral("fffunit"), number(unit.unitIndex()));
    m_writer.writeAttribute(QStringLiteral("unit_symbol"), unit.symbol());
    m_writer.writeAttribute(QStringLiteral("usage"), number(column.getUsage()));
    m_writer.writeAttribute(QStringLiteral("dimension"), number(unit.dimension()));
    writeXmlText(m_writer, QStringLiteral("name"), column.name());
    m_writer.writeEndElement();
}

void TableXmlWriter::writeRows(ValueEnd valueEnd)
{
    const QString element = QStringLiteral("row");
    const QString numberAttribute = QStringLiteral("nb");
    const int rows = m_table.rows();
    RowTexts texts(m_table, valueEnd);
    QString number;
    QString values;
    number.reserve(nNumberText::capacity);
    values.reserve(nNumberText::capacity); // from now on it keeps what it needs
    for (int i = 0; i < rows; ++i) {
        set(number, texts.number(i));
        set(values, texts.values(i));
        m_writer.writeStartElement(element);
        m_writer.writeAttribute(numberAttribute, number);
        m_writer.writeCharacters(values);
        m_writer.writeEndElement();
    }
}

bool TableXmlWriter::writeRowsToDevice(ValueEnd valueEnd)
{
    const int rows = m_table.rows();
    RowTexts texts(m_table, valueEnd);
    QByteArray block;
    block.reserve(blockSize + blockSize / 8);
    for (int i = 0; i < rows; ++i) {
        append(block, QLatin1String("\n    <row nb=\""));
        append(block, texts.number(i));
        append(block, QLatin1String("\">"));
        append(block, texts.values(i));
        append(block, QLatin1String("</row>"));
        if (block.size() < blockSize && i + 1 < rows)
            continue;
        if (m_rowDevice->write(block) != block.size())
            return false;
        block.resize(0);
    }
    return true;
}
