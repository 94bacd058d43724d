#include "tablexmlreader.h"

#include "numbertext.h"
#include "tabletexts.h"

#include <algorithm>
#include <cstring>

namespace {

// Files without the number of the dimension tell the commonest ones by the column's type.
kdUnitSystem::Dimension dimensionOfType(int type)
{
    for (int i = 1; i < kdUnitSystem::dimensionCount(); ++i) {
        const auto dimension = kdUnitSystem::Dimension(i);
        if (type != kdDataColumn::TypeUnspecified && kdDataColumn::typeOfDimension(dimension) == type)
            return dimension;
    }
    return kdUnitSystem::None;
}

void appendNarrow(const QStringRef& text, std::string& narrow)
{
    const std::size_t size = narrow.size();
    narrow.resize(size + std::size_t(text.size()));
    std::transform(text.begin(), text.end(), narrow.begin() + std::ptrdiff_t(size),
                   [](QChar c) { return c.unicode() < 0x80 ? char(c.unicode()) : '?'; });
}

} // namespace

bool TableXmlReader::read(const QString& element)
{
    if (!findElement(element))
        return false;
    const QXmlStreamAttributes attributes = m_reader.attributes();
    m_name = attributes.value(QLatin1String("name")).toString();
    m_type = toInt(attributes, "type", kdDataTable::TypeUnspecified);
    while (m_reader.readNextStartElement())
        readElement();
    if (!m_reader.hasError())
        checkRows();
    return !m_reader.hasError();
}

// An enclosing element bounds the search, so a missing table is not taken from somewhere behind it.
bool TableXmlReader::findElement(const QString& element)
{
    int depth = 0;
    while (!m_reader.isStartElement() || m_reader.name() != element) {
        const QXmlStreamReader::TokenType token = m_reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        if (m_reader.hasError())
            return false;
        if (depth < 0 || m_reader.atEnd()) {
            m_reader.raiseError(tr("the element '%1' is missing").arg(element));
            return false;
        }
    }
    return true;
}

void TableXmlReader::readElement()
{
    const QStringRef element = m_reader.name();
    if (element == QLatin1String("row"))
        readRow();
    else if (element == QLatin1String("columndata"))
        readColumn();
    else if (element == QLatin1String("name"))
        m_name = readText();
    else if (element == QLatin1String("idTag"))
        m_idTag = readText();
    else if (element == QLatin1String("comment"))
        m_comment = readText();
    else if (element == QLatin1String("type"))
        m_type = toInt(readText(), m_type);
    else
        m_reader.skipCurrentElement();
}

void TableXmlReader::readColumn()
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    const int type = toInt(attributes, "type", kdDataColumn::TypeUnspecified);
    const int usage = toInt(attributes, "usage", kdDataColumn::UsageUnspecified);
    kdDataColumn column;
    column.setUnit(readUnit(attributes, type));
    column.setType(kdDataColumn::Type(type));
    column.setUsage(kdDataColumn::Usage(usage));
    column.setTitle(attributes.value(QLatin1String("title")).toString());
    while (m_reader.readNextStartElement()) {
        if (m_reader.name() == QLatin1String("name"))
            column.setName(readText());
        else
            m_reader.skipCurrentElement();
    }
    m_columns.push_back(column);
}

// The symbol goes before the index: a later catalogue may order its units anew.
kdUnitSystem TableXmlReader::readUnit(const QXmlStreamAttributes& attributes, int type)
{
    const bool isNumbered = attributes.hasAttribute(QLatin1String("dimension"));
    const int number = toInt(attributes, "dimension", kdUnitSystem::None);
    const auto dimension = isNumbered ? kdUnitSystem::Dimension(number) : dimensionOfType(type);
    const kdUnitSystem byIndex(dimension, toInt(attributes, "fffunit", kdUnitSystem::NoUnit));
    const QString symbol = attributes.value(QLatin1String("unit_symbol")).toString();
    if (symbol.isEmpty() || byIndex.symbol() == symbol)
        return byIndex;
    bool isKnown = false;
    if (isNumbered ? !kdUnitSystem::isDimension(dimension) : dimension == kdUnitSystem::None) {
        const kdUnitSystem bySymbol = kdUnitSystem::fromSymbol(symbol, &isKnown);
        return isKnown ? bySymbol : byIndex;
    }
    const kdUnitSystem bySymbol = kdUnitSystem::fromSymbol(symbol, dimension, &isKnown);
    if (!isKnown)
        m_reader.raiseError(tr("column %1 has the unit '%2', which its dimension does not know")
                                .arg(QString::number(columns() + 1), symbol));
    return bySymbol;
}

void TableXmlReader::readRow()
{
    collectText();
    if (!m_reader.hasError())
        readValues();
}

// Comments and CDATA sections cut the text of a row into pieces.
void TableXmlReader::collectText()
{
    m_rowText.clear();
    while (!m_reader.hasError()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::Characters:
            appendNarrow(m_reader.text(), m_rowText);
            break;
        case QXmlStreamReader::StartElement:
            m_reader.skipCurrentElement();
            break;
        case QXmlStreamReader::EndElement:
            return;
        default:
            break;
        }
    }
}

void TableXmlReader::readValues()
{
    ++m_rows;
    while (!m_rowText.empty() && nNumberText::isBlank(m_rowText.back()))
        m_rowText.pop_back();
    const char* text = m_rowText.data();
    const char* const end = text + m_rowText.size();
    int values = 0;
    while (text != end) {
        const void* const found = std::memchr(text, ';', std::size_t(end - text));
        const char* const valueEnd = found ? static_cast<const char*>(found) : end;
        double value = 0.0;
        ++values;
        if (!nNumberText::read(text, valueEnd, value)) {
            const QString excerpt = QString::fromLatin1(text, int(valueEnd - text));
            m_reader.raiseError(TableTexts::notANumber(m_rows, values, excerpt));
            return;
        }
        m_values.push_back(value);
        text = found ? valueEnd + 1 : end;
    }
    checkRow(values);
}

// Columns may follow the rows, so the first row is held against them at the end.
void TableXmlReader::checkRow(int values)
{
    if (m_rows == 1)
        m_rowWidth = values;
    if (values == m_rowWidth)
        return;
    const bool firstIsOdd = columns() > 0 && m_rowWidth != columns();
    if (firstIsOdd)
        failRow(1, m_rowWidth, columns());
    else
        failRow(m_rows, values, m_rowWidth);
}

void TableXmlReader::checkRows()
{
    if (m_rows > 0 && m_rowWidth != columns())
        failRow(1, m_rowWidth, columns());
}

void TableXmlReader::failRow(int row, int values, int columns)
{
    const QString number = QString::number(row);
    const QString found = TableTexts::values(values);
    const QString expected = TableTexts::columns(columns);
    m_reader.raiseError(
        m_name.isEmpty()
            ? tr("row %1 has %2, the table has %3").arg(number, found, expected)
            : tr("row %1 of '%2' has %3, the table has %4").arg(number, m_name, found, expected));
}

std::unique_ptr<kdDataColumn> TableXmlReader::createColumn(int index) const
{
    QVector<double> values(m_rows);
    for (int i = 0; i < m_rows; ++i)
        values[i] = m_values[std::size_t(i) * m_columns.size() + std::size_t(index)];
    std::unique_ptr<kdDataColumn> column(m_columns[std::size_t(index)].getCopy());
    column->setValues(values);
    return column;
}

int TableXmlReader::toInt(const QXmlStreamAttributes& attributes, const char* name, int absent)
{
    return toInt(attributes.value(QLatin1String(name)).toString(), absent);
}

QString TableXmlReader::readText()
{
    return m_reader.readElementText(QXmlStreamReader::SkipChildElements);
}

int TableXmlReader::toInt(const QString& text, int absent)
{
    const QString number = text.trimmed();
    bool ok = true;
    const int result = number.isEmpty() ? absent : number.toInt(&ok);
    if (!ok)
        m_reader.raiseError(tr("'%1' is not a whole number").arg(number));
    return result;
}
