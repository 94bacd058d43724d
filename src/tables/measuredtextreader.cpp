#include "measuredtextreader.h"

#include "numbertext.h"
#include "tabletexts.h"

#include <kdQCore/kdTypedException>

#include <QPair>

#include <algorithm>
#include <utility>

using namespace nMeasuredText;

namespace {

const QLatin1String dimensionKey("dimension=");
const QLatin1String unitKey("unit=");
const QLatin1String nameKey("name=");

// The second is the first as a file in UTF-8 shows it to a stream that reads Latin-1.
void dropByteOrderMark(QString& line)
{
    for (const QString& mark : {QString(QChar(0xfeff)), QStringLiteral("\u00ef\u00bb\u00bf")}) {
        if (!line.startsWith(mark))
            continue;
        line.remove(0, mark.size());
        return;
    }
}

struct Description {
    ColumnHeader column;
    QString separator;
    QStringList fields;
};

bool readDimension(const QString& text, kdUnitSystem::Dimension& dimension)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || !kdUnitSystem::isDimension(number))
        return false;
    dimension = kdUnitSystem::Dimension(number);
    return true;
}

bool readUnitIndex(const QString& text, kdUnitSystem::Dimension dimension, kdUnitSystem& unit)
{
    bool isNumber = false;
    const int index = text.toInt(&isNumber);
    unit = isNumber ? kdUnitSystem(dimension, index) : kdUnitSystem::fromSymbol(text, dimension, &isNumber);
    return isNumber && (unit.isValid() || index == -1);
}

// "dimension=4;unit=1;name=width": what stands between the first two entries is the separator of the file.
bool parseDescription(const QString& text, Description& result)
{
    const int dimensionStart = dimensionKey.size();
    int dimensionEnd = dimensionStart;
    while (dimensionEnd < text.size() && text.at(dimensionEnd).isDigit())
        ++dimensionEnd;
    const int unitStart = text.indexOf(unitKey, dimensionEnd);
    if (unitStart <= dimensionEnd)
        return false;
    const int valueStart = unitStart + unitKey.size();
    result.separator = text.mid(dimensionEnd, unitStart - dimensionEnd);
    int valueEnd = text.indexOf(result.separator, valueStart);
    if (valueEnd < 0)
        valueEnd = text.size();
    const QString name = text.mid(valueEnd + result.separator.size());
    if (!name.isEmpty() && !name.startsWith(nameKey))
        return false;
    result.column.name = name.mid(nameKey.size());
    result.column.hasUnit = true;
    result.fields = QStringList{text.mid(dimensionStart, dimensionEnd - dimensionStart),
                                text.mid(valueStart, valueEnd - valueStart), result.column.name};
    kdUnitSystem::Dimension dimension = kdUnitSystem::None;
    return readDimension(result.fields.at(0), dimension)
        && readUnitIndex(result.fields.at(1), dimension, result.column.unit);
}

// "1.234,5", "1 000" and "1e999" are mistakes in a value rather than names; "E1" is a name.
bool isNumberOrNearly(QStringView field, bool decimalComma)
{
    double value = 0.0;
    if (nNumberText::readTyped(field, value, decimalComma))
        return true;
    return !field.isEmpty() && !field.first().isLetter()
        && std::any_of(field.begin(), field.end(), [](QChar c) { return c.isDigit(); })
        && std::none_of(field.begin(), field.end(),
                        [](QChar c) { return c.isLetter() && !QStringView(u"eEdD").contains(c); });
}

} // namespace

MeasuredTextReader::MeasuredTextReader(QTextStream& stream) : m_stream(stream) { }

void MeasuredTextReader::read()
{
    QString line;
    while (m_stream.readLineInto(&line)) {
        if (m_line == 0)
            dropByteOrderMark(line);
        readLines(line);
    }
    if (m_hasData || m_described || m_textRows.isEmpty())
        return;
    m_line = m_textRows.constFirst().line;
    fail(1, tr("row %1: no values follow the header").arg(m_line));
}

double MeasuredTextReader::value(int row, int column) const
{
    return m_values[std::size_t(row) * std::size_t(columns()) + std::size_t(column)];
}

// The stream knows only lines that end with a line feed.
void MeasuredTextReader::readLines(const QString& text)
{
    int start = 0;
    for (int end = 0; end >= 0; start = end + 1) {
        end = text.indexOf(QLatin1Char('\r'), start);
        ++m_line;
        readLine(start == 0 && end < 0 ? text : text.mid(start, end - start));
    }
}

void MeasuredTextReader::readLine(const QString& line)
{
    if (isEmptyLine(line) || (m_line == 1 && line.startsWith(QLatin1String("sep="))))
        return;
    if (!m_hasData && (readDescription(line) || readUnitRow(line)))
        return;
    if (isComment(line)) {
        if (!m_hasData)
            m_lastComment = line;
        return;
    }
    if (m_hasData || !takeAsHeader(line))
        readDataRow(line);
}

bool MeasuredTextReader::readDescription(const QString& line)
{
    const auto start =
        std::find_if(line.begin(), line.end(), [](QChar c) { return c != QLatin1Char('#') && !c.isSpace(); });
    const QString text = line.mid(int(start - line.begin()));
    if (!text.startsWith(dimensionKey))
        return false;
    Description description;
    if (!parseDescription(text, description))
        fail(1, tr("row %1 does not describe a column by dimension, unit and name").arg(m_line));
    m_described = true;
    m_separator.text = description.separator;
    m_headers.append(description.column);
    m_headerRows.append(description.fields);
    return true;
}

// Asked before comments are: a row of units may begin with "%".
bool MeasuredTextReader::readUnitRow(const QString& line)
{
    if (m_textRows.size() != 1 || !isHeader(line))
        return false;
    kdUnitSystem unit;
    const bool onlyUnits = std::all_of(m_fields.cbegin(), m_fields.cend(), [&unit](QStringView field) {
        return field.isEmpty() || readUnit(field, unit);
    });
    if (onlyUnits)
        m_textRows.append({line, m_line});
    return onlyUnits;
}

bool MeasuredTextReader::takeAsHeader(const QString& line)
{
    if (m_described || !m_textRows.isEmpty() || !isHeader(line))
        return false;
    m_textRows.append({line, m_line});
    return true;
}

// The corner of a table over two variables may be empty.
bool MeasuredTextReader::isHeader(const QString& line)
{
    const Separator separator = separatorOf(line);
    split(line, separator, m_fields);
    return !m_fields.isEmpty() && !isNumberOrNearly(m_fields.constFirst(), separator.leavesComma());
}

void MeasuredTextReader::readDataRow(const QString& line)
{
    const bool separatorIsKnown = m_described && (columns() == 1 || line.contains(m_separator.text));
    if (!m_hasData && !separatorIsKnown)
        m_separator = separatorOf(line);
    split(line, m_separator, m_fields);
    if (m_fields.isEmpty())
        return;
    readValues();
    if (!m_hasData)
        finishHeader(m_fields.size());
    if (m_fields.size() != columns())
        failCount(tr("row %1 has %2, the table has %3")
                      .arg(QString::number(m_line), TableTexts::values(m_fields.size()),
                           TableTexts::columns(columns())));
    ++m_rows;
    if (m_texts)
        collectFields();
}

void MeasuredTextReader::readValues()
{
    const bool decimalComma = m_separator.leavesComma();
    for (int i = 0; i < m_fields.size(); ++i) {
        double value = 0.0;
        if (!nNumberText::readTyped(m_fields.at(i), value, decimalComma))
            fail(i + 1, TableTexts::notANumber(m_line, i + 1, m_fields.at(i)));
        m_values.push_back(value);
    }
}

void MeasuredTextReader::collectFields()
{
    QStringList row;
    for (const QStringView& field : qAsConst(m_fields))
        row.append(nNumberText::plain(field, m_separator.leavesComma()));
    m_texts->append(row);
}

void MeasuredTextReader::finishHeader(int columns)
{
    m_hasData = true;
    if (m_described)
        return;
    m_headers.resize(columns);
    if (m_textRows.isEmpty()) {
        takeTitlesFromComment(columns);
        return;
    }
    const QStringList names = headerFields(m_textRows.constFirst(), columns);
    for (int i = 0; i < columns; ++i)
        m_headers[i] = columnHeader(names.at(i));
    if (m_textRows.size() < 2)
        return;
    const QStringList units = headerFields(m_textRows.constLast(), columns);
    for (int i = 0; i < columns; ++i)
        m_headers[i].hasUnit = readUnit(units.at(i), m_headers[i].unit) || m_headers.at(i).hasUnit;
}

QStringList MeasuredTextReader::headerFields(const TextRow& row, int columns)
{
    QStringList fields = nMeasuredText::headerFields(row.text, m_separator, columns);
    m_headerRows.append(fields);
    // A row of units may end with columns that have none.
    while (&row != &m_textRows.constFirst() && fields.size() < columns)
        fields.append(QString());
    if (fields.size() != columns)
        failCount(tr("row %1 has %2, the header in row %3 names %4")
                      .arg(QString::number(m_line), TableTexts::values(columns), QString::number(row.line),
                           TableTexts::columns(fields.size())));
    return fields;
}

// "# time [s]; force [kN]" right above the values, as plotting programs like it. Prose does not have one
// field with a unit for each column.
void MeasuredTextReader::takeTitlesFromComment(int columns)
{
    QString text = m_lastComment.trimmed();
    while (!text.isEmpty() && isComment(text))
        text.remove(0, 1);
    const QStringList fields = nMeasuredText::headerFields(text.trimmed(), m_separator, columns);
    if (fields.size() != columns)
        return;
    QVector<ColumnHeader> headers;
    std::transform(fields.cbegin(), fields.cend(), std::back_inserter(headers), columnHeader);
    if (!std::all_of(headers.cbegin(), headers.cend(),
                     [](const ColumnHeader& header) { return header.hasUnit; }))
        return;
    m_headers = headers;
    m_headerRows.append(fields);
}

void MeasuredTextReader::fail(int column, const QString& message) const
{
    throw kdTypedException<QPair<int, int>>(message, qMakePair(m_line, column));
}

void MeasuredTextReader::failCount(const QString& message) const
{
    fail(std::min(m_fields.size(), columns()) + 1, message);
}
