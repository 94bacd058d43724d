#include "kddatatable.h"
#include "measuredtextreader.h"
#include "numbertext.h"

#include <QLocale>
#include <QTextStream>

#include <algorithm>

namespace {

const QChar decimalComma = QLatin1Char(',');

// Must not be taken for a part of a number, of an entry of the header or of a line.
bool canSeparate(QChar c)
{
    return !c.isLetterOrNumber() && !QStringView(u"+-.=#\"\n\r").contains(c);
}

bool canSeparate(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return canSeparate(c); });
}

QString description(const kdDataColumn& column, const QString& separator)
{
    QString name = column.name();
    for (const char lineBreak : {'\r', '\n'})
        name.replace(QLatin1Char(lineBreak), QLatin1Char(' '));
    const kdUnitSystem unit = column.getUnitSystem();
    return QStringLiteral("dimension=%1%4unit=%2%4name=%3")
        .arg(QString::number(unit.dimension()), QString::number(unit.unitIndex()), name, separator);
}

QString valueText(double value, bool withComma)
{
    char digits[nNumberText::capacity];
    char* const end = nNumberText::writeShortest(digits, value);
    QString text = QString::fromLatin1(digits, int(end - digits));
    if (withComma)
        text.replace(QLatin1Char('.'), decimalComma);
    return text;
}

std::unique_ptr<kdDataColumn> createColumn(const MeasuredTextReader& reader, int index)
{
    const nMeasuredText::ColumnHeader& header = reader.headers().at(index);
    QVector<double> values(reader.rows());
    for (int row = 0; row < reader.rows(); ++row)
        values[row] = reader.value(row, index);
    auto column = std::make_unique<kdDataColumn>();
    column->setUnit(header.unit);
    column->setName(header.name);
    column->setUsage(index == 0 ? kdDataColumn::UsageX : kdDataColumn::UsageY);
    column->setValues(values);
    return column;
}

} // namespace

void kdDataTable::importValuesFromTextStream(QTextStream& stream, QList<QStringList>* values,
                                             QList<QStringList>* headers)
{
    MeasuredTextReader reader(stream);
    QList<QStringList> rows;
    if (values)
        reader.collectTexts(&rows);
    reader.read();
    if (values)
        *values = rows;
    if (headers)
        *headers = reader.headerRows();
}

void kdDataTable::importFromTextStream(QTextStream& stream, kdDataTable& table)
{
    MeasuredTextReader reader(stream);
    reader.read();
    std::vector<ColumnPointer> columns;
    columns.reserve(static_cast<std::size_t>(reader.columns()));
    for (int i = 0; i < reader.columns(); ++i)
        columns.push_back(createColumn(reader, i));
    table.replaceColumns(std::move(columns));
}

bool kdDataTable::exportValuesToTextStream(QTextStream& stream, const QString& separator, bool withHeader,
                                           const QLocale* locale) const
{
    if (!canSeparate(separator))
        return false;
    const bool withComma =
        locale && locale->decimalPoint() == decimalComma && !separator.contains(decimalComma);
    for (int i = 0; withHeader && i < columns(); ++i)
        stream << '#' << description(columnRef(i), separator) << '\n';
    for (int row = 0; row < rows() && stream.status() == QTextStream::Ok; ++row) {
        QString line;
        for (int i = 0; i < columns(); ++i) {
            line += i == 0 ? QString() : separator;
            line += valueText(column(i)->value(row), withComma);
        }
        stream << line << '\n';
    }
    stream.flush();
    return stream.status() == QTextStream::Ok;
}
