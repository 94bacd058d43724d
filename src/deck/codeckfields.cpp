#include "codeckfields.h"

#include "decknumber_p.h"

#include <algorithm>
#include <cstring>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

} // namespace

QString coDeckFields::Field::text() const
{
    return QString::fromLocal8Bit(begin, static_cast<int>(end - begin));
}

coDeckFields::coDeckFields(const coDeckLine& line, CFEDatLineWriter::datExtensionMode mode)
    : coDeckFields(line, mode, line.isFree() ? CFEDatLineWriter::free : CFEDatLineWriter::fixed)
{
}

coDeckFields::coDeckFields(const coDeckLine& line, CFEDatLineWriter::datExtensionMode mode,
                           CFEDatLineWriter::datFormat format, int start)
    : m_begin(line.begin), m_next(line.begin + std::min(start, line.length())), m_end(line.endOfFields),
      m_isFree(format != CFEDatLineWriter::fixed), m_isStandard(mode == CFEDatLineWriter::standard)
{
}

bool coDeckFields::readReal(double& value)
{
    takeReal();
    return nDeckNumber::readReal(m_field.begin, m_field.end, value);
}

bool coDeckFields::readInt(int& value)
{
    takeInt();
    return nDeckNumber::readInt(m_field.begin, m_field.end, value);
}

const coDeckFields::Field& coDeckFields::take(int width)
{
    const std::ptrdiff_t left = m_end - m_next;
    const char* end = m_next + std::min<std::ptrdiff_t>(width, left);
    if (m_isFree) {
        const void* comma = left > 0 ? std::memchr(m_next, ',', static_cast<std::size_t>(left)) : nullptr;
        end = comma ? static_cast<const char*>(comma) : m_end;
    }
    m_field.begin = m_next;
    m_field.end = end;
    m_next = m_isFree && end != m_end ? end + 1 : end;
    while (m_field.begin != m_field.end && isBlank(m_field.end[-1]))
        --m_field.end;
    while (m_field.begin != m_field.end && isBlank(*m_field.begin))
        ++m_field.begin;
    m_field.column = static_cast<int>(m_field.begin - m_begin) + 1;
    return m_field;
}

const coDeckFields::Field& coDeckFields::takeRest()
{
    m_field = {m_next, m_end, static_cast<int>(m_next - m_begin) + 1};
    m_next = m_end;
    return m_field;
}

bool coDeckFields::isRestBlank() const
{
    return std::all_of(m_next, m_end, isBlank);
}
