#include "measuredtextfields.h"

#include <algorithm>

namespace {

using namespace nMeasuredText;

const QChar quote = QLatin1Char('"');
constexpr int longestSymbol = 32;

/// What separates fields other than blanks, in the order of preference.
constexpr char separators[] = {';', '\t', '|', ','};

bool isOpening(QChar c)
{
    return c == QLatin1Char('[') || c == QLatin1Char('(');
}

bool isClosing(QChar c)
{
    return c == QLatin1Char(']') || c == QLatin1Char(')');
}

QStringView unquoted(QStringView field)
{
    field = field.trimmed();
    if (field.size() >= 2 && field.first() == quote && field.last() == quote)
        field = field.mid(1, field.size() - 2).trimmed();
    return field;
}

// Of a field without its quotation marks: one inside is doubled.
QString nameOf(QStringView field)
{
    return field.toString().replace(QLatin1String("\"\""), QString(quote));
}

void appendField(QStringView field, QVector<QStringView>& fields)
{
    fields.append(unquoted(field));
}

void splitAtBlanks(QStringView line, QVector<QStringView>& fields)
{
    const qsizetype size = line.size();
    for (qsizetype i = 0; i < size;) {
        while (i < size && line[i].isSpace())
            ++i;
        const qsizetype start = i;
        while (i < size && !line[i].isSpace())
            ++i;
        if (i > start)
            appendField(line.mid(start, i - start), fields);
    }
}

// A separator inside quotation marks belongs to the field.
void splitAtText(QStringView line, QStringView separator, QVector<QStringView>& fields)
{
    qsizetype start = 0;
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == quote)
            quoted = !quoted;
        if (quoted || line[i] != separator[0] || !line.mid(i).startsWith(separator))
            continue;
        appendField(line.mid(start, i - start), fields);
        start = i + separator.size();
        i = start - 1;
    }
    appendField(line.mid(start), fields);
}

// Calls back for every character outside brackets and quotation marks.
template <typename Function>
QStringList splitHeader(const QString& line, Function isSeparator)
{
    QStringList result(QString{});
    int depth = 0;
    bool quoted = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (c == quote)
            quoted = !quoted;
        else if (isOpening(c))
            ++depth;
        else if (isClosing(c))
            depth = std::max(0, depth - 1);
        if (depth == 0 && !quoted && isSeparator(i))
            result.append(QString());
        else
            result.last().append(c);
    }
    for (QString& field : result)
        field = nameOf(unquoted(field));
    return result;
}

QStringList splitHeaderAt(const QString& line, const QString& separator)
{
    return splitHeader(line, [&](int i) { return line.at(i) == separator.at(0); });
}

void dropEmpty(QStringList& fields)
{
    fields.removeAll(QString());
}

// "time [s] force [kN]": a unit in brackets ends a field, or belongs to the word before it.
QStringList splitHeaderAfterBrackets(const QString& line)
{
    QStringList fields =
        splitHeader(line, [&](int i) { return line.at(i).isSpace() && i > 0 && isClosing(line.at(i - 1)); });
    dropEmpty(fields);
    return fields;
}

QStringList splitHeaderAtWords(const QString& line)
{
    QStringList words = splitHeader(line, [&](int i) { return line.at(i).isSpace(); });
    dropEmpty(words);
    QStringList fields;
    for (const QString& word : qAsConst(words)) {
        if (isOpening(word.at(0)) && !fields.isEmpty())
            fields.last() += blanks + word;
        else
            fields.append(word);
    }
    return fields;
}

QStringList splitHeaderAtGaps(const QString& line)
{
    QStringList fields = splitHeader(
        line, [&](int i) { return line.at(i).isSpace() && i + 1 < line.size() && line.at(i + 1).isSpace(); });
    dropEmpty(fields);
    return fields;
}

void dropEmptyEnd(QStringList& fields)
{
    while (!fields.isEmpty() && fields.constLast().isEmpty())
        fields.removeLast();
}

QStringList plainHeaderFields(const QString& line, const Separator& separator)
{
    QVector<QStringView> views;
    split(line, separator, views);
    QStringList result;
    for (const QStringView& view : qAsConst(views))
        result.append(nameOf(view));
    return result;
}

bool splitUnit(const QString& field, int unitStart, int unitLength, int nameLength, ColumnHeader& header)
{
    if (!readUnit(QStringView(field).mid(unitStart, unitLength), header.unit))
        return false;
    header.name = field.left(nameLength).trimmed();
    header.hasUnit = true;
    return true;
}

} // namespace

nMeasuredText::Separator nMeasuredText::separatorOf(QStringView line)
{
    for (const char candidate : separators)
        if (line.contains(QLatin1Char(candidate)))
            return {QString(QLatin1Char(candidate))};
    return {QString(blanks)};
}

bool nMeasuredText::isEmptyLine(QStringView line)
{
    return std::all_of(line.begin(), line.end(),
                       [](QChar c) { return c.isSpace() || QStringView(u";|,").contains(c); });
}

bool nMeasuredText::isComment(QStringView line)
{
    const QStringView text = line.trimmed();
    if (text.isEmpty())
        return false;
    return QStringView(u"#%!$*").contains(text.first()) || text.startsWith(QStringView(u"//"));
}

void nMeasuredText::split(QStringView line, const Separator& separator, QVector<QStringView>& fields)
{
    fields.clear();
    if (separator.isBlank())
        splitAtBlanks(line, fields);
    else
        splitAtText(line, separator.text, fields);
    while (!fields.isEmpty() && fields.constLast().isEmpty())
        fields.removeLast();
}

QStringList nMeasuredText::headerFields(const QString& line, const Separator& separator, int columns)
{
    QStringList plain = plainHeaderFields(line, separator);
    if (plain.size() == columns)
        return plain;
    for (const char candidate : separators) {
        QStringList fields = splitHeaderAt(line, QString(QLatin1Char(candidate)));
        dropEmptyEnd(fields);
        if (fields.size() == columns)
            return fields;
    }
    for (const auto& splitter : {splitHeaderAfterBrackets, splitHeaderAtGaps, splitHeaderAtWords}) {
        QStringList fields = splitter(line);
        if (fields.size() == columns)
            return fields;
    }
    return plain;
}

bool nMeasuredText::readUnit(QStringView field, kdUnitSystem& unit)
{
    QStringView symbol = field.trimmed();
    if (symbol.size() > 2 && isOpening(symbol.first()) && isClosing(symbol.last()))
        symbol = symbol.mid(1, symbol.size() - 2).trimmed();
    if (symbol.isEmpty() || symbol.size() > longestSymbol)
        return false;
    bool known = false;
    const kdUnitSystem found = kdUnitSystem::fromSymbol(symbol.toString(), &known);
    if (known)
        unit = found;
    return known;
}

nMeasuredText::ColumnHeader nMeasuredText::columnHeader(const QString& field)
{
    ColumnHeader header;
    const int square = field.lastIndexOf(QLatin1Char('['));
    if (square >= 0 && field.endsWith(QLatin1Char(']'))
        && splitUnit(field, square, field.size() - square, square, header))
        return header;
    // The first bracket of a blank-led group: units such as W/(m K) hold brackets of their own.
    for (int i = field.indexOf(QLatin1Char('(')); i >= 0; i = field.indexOf(QLatin1Char('('), i + 1))
        if (field.endsWith(QLatin1Char(')')) && splitUnit(field, i, field.size() - i, i, header))
            return header;
    const int slash = field.indexOf(QLatin1String(" / "));
    if (slash > 0 && splitUnit(field, slash + 3, field.size() - slash - 3, slash, header))
        return header;
    header.name = field;
    return header;
}
