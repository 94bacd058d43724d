#include "codeckfields.h"
#include "deckwords_p.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace {

// Of point loads and currents.
constexpr int labelLine = 3;
constexpr int nodeListLine = 7;

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

} // namespace

DeckWords::DeckWords(QIODevice& deck, const coDeckOption& option, CFEDatLineWriter::datExtensionMode mode)
    : m_scanner(deck, option.size), m_option(option), m_mode(mode)
{
    deck.seek(option.offset);
}

bool DeckWords::next(DeckWord& word)
{
    while (m_next == m_words.size())
        if (!nextLine())
            return false;
    word = {m_words.at(m_next++), m_option.firstLine + m_scanner.line().number - 1};
    return true;
}

bool DeckWords::nextLine()
{
    if (!m_scanner.next())
        return false;
    m_words.clear();
    m_next = 0;
    const coDeckLine& line = m_scanner.line();
    if (line.kind == coDeckLine::Comment || line.kind == coDeckLine::Blank)
        return true;
    const int skipped = m_lines++ > 0 ? 0 : keywordLength();
    // The names and further keywords of our own options are fields; a formula or another's text is a whole.
    const bool isWhole = m_option.kind == coDeckOption::Other || m_option.kind == coDeckOption::FormulaTable;
    const bool isPoint =
        m_option.kind == coDeckOption::PointLoad || m_option.kind == coDeckOption::PointCurrent;
    if (isPoint && m_lines == labelLine)
        splitText(line, 6);
    else if (isPoint && m_lines == nodeListLine)
        splitText(line, 0);
    else if (line.kind == coDeckLine::Keyword && skipped == 0 && isWhole)
        m_words.append(line.bytes().trimmed());
    else if (line.isFree())
        splitFree(line.begin + skipped, line.endOfFields);
    else
        splitFixed(line.begin + skipped, line.endOfFields);
    return true;
}

int DeckWords::keywordLength() const
{
    switch (m_option.kind) {
    case coDeckOption::Comments:
    case coDeckOption::Other:
        return 0;
    case coDeckOption::Process:
    case coDeckOption::TableSection:
        return m_option.keyword.size();
    default:
        return m_scanner.line().length();
    }
}

// A text touches the integer before it, and may hold blanks and commas itself.
void DeckWords::splitText(const coDeckLine& line, int integers)
{
    coDeckFields fields(line, m_mode, m_option.format);
    for (int i = 0; i < integers; ++i)
        m_words.append(fields.takeInt().text().toLocal8Bit());
    const char* const begin = fields.takeRest().begin;
    QByteArray text(begin, static_cast<int>(line.end - begin));
    const bool isField =
        m_option.kind == coDeckOption::PointCurrent && m_option.format != CFEDatLineWriter::fixed;
    if (isField && text.endsWith(','))
        text.chop(1);
    m_words.append(text);
}

void DeckWords::splitFree(const char* begin, const char* end)
{
    while (begin != end) {
        const char* word = begin;
        while (begin != end && *begin != ',' && !isBlank(*begin))
            ++begin;
        if (begin != word)
            m_words.append(QByteArray(word, static_cast<int>(begin - word)));
        if (begin != end)
            ++begin;
    }
}

void DeckWords::splitFixed(const char* begin, const char* end)
{
    while (begin != end) {
        const char* run = begin;
        while (begin != end && !isBlank(*begin))
            ++begin;
        if (begin != run)
            addRun(run, begin);
        else
            ++begin;
    }
}

// Fields are right-justified, so a run of them is cut from its end.
void DeckWords::addRun(const char* begin, const char* end)
{
    const bool isNumeric =
        std::all_of(begin, end, [](char c) { return c != '\0' && std::strchr("0123456789.eEdD+-", c); });
    const bool isReal = std::memchr(begin, '.', static_cast<std::size_t>(end - begin)) != nullptr;
    const int field = (isReal ? 10 : 5) * (m_mode == CFEDatLineWriter::standard ? 1 : 2);
    auto length = static_cast<int>(end - begin);
    for (int first = isNumeric ? length % field : length; length > 0;
         length -= first, begin += first, first = field)
        if (first > 0)
            m_words.append(QByteArray(begin, first));
}
