#include "csvline.h"

#include "numbertext.h"

#include <kdQCore/kdUnitValue>

#include <algorithm>

namespace {

constexpr QChar quote = QLatin1Char('"');
constexpr int usualCell = 20;

} // namespace

CsvLine::CsvLine(const coCSVBase& form, int cells)
    : m_form(form), m_delimiter(form.delimiter()), m_commentPrefix(form.commentPrefix()),
      m_hasDecimalComma(form.hasDecimalComma())
{
    m_text.reserve(cells * usualCell);
}

void CsvLine::append(const QVariant& token)
{
    const int type = token.userType();
    if (type == QMetaType::Double) {
        appendNumber(token.toDouble());
    } else if (type == QMetaType::Float) {
        char digits[nNumberText::capacity];
        appendDigits(digits, nNumberText::writeShortest(digits, token.toFloat()));
    } else if (type == qMetaTypeId<kdUnitValue>()) {
        const auto value = token.value<kdUnitValue>();
        appendNumber(value.valueIn({value.dimension(), m_form.unitIndices(value.dimension())}));
    } else {
        appendText(token.toString());
    }
}

void CsvLine::appendText(const QString& text)
{
    appendCell(m_protectsTexts && runsAsFormula(text) ? QLatin1Char('\'') + text : text);
}

const QString& CsvLine::finish()
{
    if (m_cells == 1 && m_text.isEmpty())
        m_text = QStringLiteral("\"\"");
    m_text += QLatin1Char('\n');
    return m_text;
}

void CsvLine::appendNumber(double value)
{
    char digits[nNumberText::capacity];
    appendDigits(digits, nNumberText::writeShortest(digits, value));
}

void CsvLine::appendDigits(char* first, char* last)
{
    if (m_hasDecimalComma)
        std::replace(first, last, '.', ',');
    QChar cell[nNumberText::capacity];
    std::transform(first, last, cell, [](char c) { return QLatin1Char(c); });
    appendCell(QStringView(cell, last - first));
}

void CsvLine::appendCell(QStringView cell)
{
    if (m_cells > 0)
        m_text += m_delimiter;
    if (breaksLine(cell)) {
        m_text += quote;
        m_text += cell.toString().replace(quote, QLatin1String("\"\""));
        m_text += quote;
    } else {
        m_text.append(cell.data(), int(cell.size()));
    }
    ++m_cells;
}

// The first character of a longer separator is enough to quote: at the cell's end it could be taken for the
// separator's beginning.
bool CsvLine::breaksLine(QStringView cell) const
{
    const QChar separator = m_delimiter.isEmpty() ? quote : m_delimiter.at(0);
    if (m_cells == 0 && !m_commentPrefix.isEmpty() && cell.startsWith(m_commentPrefix))
        return true;
    return std::any_of(cell.begin(), cell.end(), [separator](QChar c) {
        return c == separator || c == quote || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    });
}

// A number with a sign is none.
bool CsvLine::runsAsFormula(const QString& text) const
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty() || !QStringView(u"=+-@").contains(trimmed.first()))
        return false;
    double value = 0.0;
    return !trimmed.back().isDigit() || !nNumberText::readTyped(trimmed, value, m_hasDecimalComma);
}
