#include "decklines_p.h"

#include <algorithm>

namespace {

// Neither the mark behind a full line nor the commas of a data line count: the writer fills lines with
// fields.
std::ptrdiff_t width(const coDeckLine& line)
{
    const std::ptrdiff_t commas =
        line.kind == coDeckLine::Data ? std::count(line.begin, line.endOfFields, ',') : 0;
    return line.endOfFields - line.begin - commas;
}

} // namespace

DeckLines::DeckLines(QIODevice& deck, CFEDatLineWriter::datExtensionMode mode, bool readsCards,
                     const coDeckFindingSink& sink)
    : m_scanner(deck), m_mode(mode), m_readsCards(readsCards), m_sink(sink)
{
}

const coDeckLine& DeckLines::take(coDeckOption& option)
{
    const coDeckLine& line = m_scanner.line();
    m_isAhead = false;
    if (option.lines == 0) {
        option.firstLine = line.number;
        option.offset = line.offset;
    }
    if (Q_UNLIKELY(line.isCut))
        m_cutOption = option.firstLine;
    ++option.lines;
    option.size = line.offset + line.size - option.offset;
    if (Q_UNLIKELY(line.length() > CFEDatLineWriter::maxLineWidth
                   && width(line) > CFEDatLineWriter::maxLineWidth))
        report(line.kind == coDeckLine::Data ? coDeckFinding::Error : coDeckFinding::Warning, option,
               CFEDatLineWriter::maxLineWidth + 1,
               tr("the line has more than the %1 columns that the solver reads.")
                   .arg(CFEDatLineWriter::maxLineWidth));
    return line;
}

void DeckLines::takeComments(coDeckOption& option)
{
    while (ahead() && ahead()->kind == coDeckLine::Comment)
        take(option);
}

const coDeckLine* DeckLines::takeData(coDeckOption& option)
{
    takeComments(option);
    if (isDataAhead()) {
        const coDeckLine& line = take(option);
        if (m_knownFormat != option.firstLine && line.isFree())
            option.format = CFEDatLineWriter::free;
        m_knownFormat = option.firstLine;
        return &line;
    }
    if (const coDeckLine* line = ahead())
        error(option, 1,
              tr("data line expected, found '%1'.")
                  .arg(QString::fromLocal8Bit(line->begin, qMin(line->length(), 40))));
    else
        error(option, 0, tr("data line expected, found the end of the deck."));
    return nullptr;
}

bool DeckLines::takeText(coDeckOption& option, QString& text)
{
    takeComments(option);
    if (!ahead()) {
        error(option, 0, tr("text line expected, found the end of the deck."));
        return false;
    }
    const coDeckLine& line = take(option);
    text = QString::fromLocal8Bit(line.begin, line.length());
    return true;
}

void DeckLines::error(const coDeckOption& option, int column, const QString& text)
{
    report(coDeckFinding::Error, option, column, text);
}

void DeckLines::errorInLine(const coDeckOption& option, qint64 line, const QString& text)
{
    ++m_errors;
    if (m_sink)
        m_sink({coDeckFinding::Error, line, 0, nameOf(option), text});
}

void DeckLines::warning(const coDeckOption& option, int column, const QString& text)
{
    report(coDeckFinding::Warning, option, column, text);
}

// Names may be as long as lines, and findings many: one text serves all of an option.
const QString& DeckLines::nameOf(const coDeckOption& option)
{
    const int length = option.keyword.size() + option.name.size();
    if (m_named.line != option.firstLine || m_named.kind != option.kind || m_named.length != length)
        m_named = {option.firstLine, option.kind, length, option.text()};
    return m_named.text;
}

void DeckLines::report(coDeckFinding::Severity severity, const coDeckOption& option, int column,
                       const QString& text)
{
    if (severity == coDeckFinding::Error)
        ++m_errors;
    if (m_sink)
        m_sink({severity, m_scanner.line().number, column, nameOf(option), text});
}
