#include "decknumber_p.h"
#include "deckrow_p.h"

#include <cmath>

DeckRow::DeckRow(DeckLines& lines, coDeckOption& option) : m_lines(lines), m_option(option)
{
    const coDeckLine* line = lines.takeData(option);
    m_ok = line != nullptr;
    if (m_ok)
        m_fields = coDeckFields(*line, lines.mode(), option.format);
}

DeckRow::DeckRow(DeckLines& lines, coDeckOption& option, const coDeckLine& line, int start)
    : m_lines(lines), m_option(option), m_fields(line, lines.mode(), option.format, start)
{
}

DeckRow& DeckRow::integer(int& value)
{
    if (!m_ok)
        return *this;
    ++m_number;
    value = 0;
    if (!m_fields.readInt(value) && !isBlank())
        fail(tr("whole number"));
    return *this;
}

DeckRow& DeckRow::choice(bool& value, int ifTrue, int ifFalse)
{
    int code = ifFalse;
    if (!integer(code).m_ok)
        return *this;
    value = code == ifTrue;
    if (code != ifTrue && code != ifFalse)
        fail(tr("%1 or %2").arg(ifFalse).arg(ifTrue));
    return *this;
}

DeckRow& DeckRow::constant(int expected)
{
    int value = expected;
    if (integer(value).m_ok && value != expected)
        notOurs(QString::number(expected));
    return *this;
}

DeckRow& DeckRow::constants(int expected, int count)
{
    for (int i = 0; i < count; ++i)
        constant(expected);
    return *this;
}

DeckRow& DeckRow::real(double& value)
{
    if (!m_ok)
        return *this;
    ++m_number;
    value = 0.0;
    if (!m_lines.readReal(m_fields.takeReal(), value) && !isBlank())
        fail(tr("number"));
    else if (!std::isfinite(value))
        fail(tr("finite number"));
    return *this;
}

DeckRow& DeckRow::constantReal(double expected)
{
    double value = expected;
    if (real(value).m_ok && value != expected)
        notOurs(QString::number(expected));
    return *this;
}

DeckRow& DeckRow::word(QString& text)
{
    rest(text);
    if (m_ok && m_option.format != CFEDatLineWriter::fixed && text.endsWith(QLatin1Char(',')))
        text.chop(1);
    return *this;
}

DeckRow& DeckRow::rest(QString& text)
{
    // To the very end: a name may look as if it ended in a continuation mark.
    if (m_ok) {
        const char* const begin = m_fields.takeRest().begin;
        text = QString::fromLocal8Bit(begin, static_cast<int>(m_lines.scanner().line().end - begin));
    }
    return *this;
}

DeckRow& DeckRow::end()
{
    if (m_ok && !m_blanks.isEmpty())
        m_lines.warning(m_option, m_blankColumn,
                        tr("blank fields read as 0: %1.").arg(m_blanks.join(QLatin1String(", "))));
    if (!m_ok || m_fields.atEnd())
        return *this;
    const coDeckFields::Field& field = m_fields.takeRest();
    m_lines.error(m_option, field.column,
                  tr("end of line expected, found '%1'.").arg(field.text().trimmed()));
    m_ok = false;
    return *this;
}

// The solver reads 0 where a field is blank or missing.
bool DeckRow::isBlank()
{
    if (!m_fields.field().isEmpty())
        return false;
    if (m_blanks.isEmpty())
        m_blankColumn = column();
    m_blanks.append(QString::number(m_number));
    m_isOurs = false;
    return true;
}

void DeckRow::fail(const QString& expected)
{
    const coDeckFields::Field& field = m_fields.field();
    const QString number = QString::number(m_number);
    m_lines.error(m_option, field.column,
                  field.isEmpty()
                      ? tr("%1 expected in field %2, found nothing.").arg(expected, number)
                      : tr("%1 expected in field %2, found '%3'.").arg(expected, number, field.text()));
    m_ok = false;
}

void DeckRow::notOurs(const QString& expected)
{
    m_isOurs = false;
    const coDeckFields::Field& field = m_fields.field();
    const QString number = QString::number(m_number);
    if (field.isEmpty())
        m_blanks.removeLast();
    m_lines.warning(m_option, field.column,
                    field.isEmpty()
                        ? tr("field %1 is blank, where cards write %2.").arg(number, expected)
                        : tr("field %1 is %2, where cards write %3.").arg(number, field.text(), expected));
}
