#include "dattext_p.h"
#include "deckcomments_p.h"

namespace {

// More than any sensible comment of a card has, so that a deck of comments only needs little memory.
constexpr int mostLines = 200;
constexpr int fullLine = 158;

// The writer cuts a comment after 158 bytes, or just before where that would split a character.
bool isFull(const QByteArray& text, const QByteArray& following)
{
    return text.size() == fullLine
        || (text.size() < fullLine && text.size() > fullLine - 4
            && nDatText::pieceLength(text + following, 0, fullLine) == text.size());
}

} // namespace

void DeckComments::add(const coDeckLine& line)
{
    if (m_lines.size() == 2 * mostLines)
        m_lines.remove(0, mostLines);
    const QByteArray bytes = line.bytes();
    const bool isPlain = bytes.startsWith("$ ") && !line.isCut;
    m_lines.append({line.number, line.offset, isPlain ? bytes.mid(2) : bytes, isPlain});
}

void DeckComments::splitPointLoad(coDeckOption& pointLoad, QString& component, QString& comment)
{
    const QString prefix = QStringLiteral("Point load for component '");
    const QString suffix = QStringLiteral("'.");
    int end = m_lines.size();
    int begin = beginOfParagraph(end);
    if (begin == end)
        return;
    const auto isComponent = [&](const QString& text) {
        return text.startsWith(prefix) && text.endsWith(suffix)
            && text.size() > prefix.size() + suffix.size();
    };
    QString text = QString::fromLocal8Bit(paragraph(begin, end));
    const int before = beginOfParagraph(begin);
    const QString textBefore = QString::fromLocal8Bit(paragraph(before, begin));
    if (!isComponent(text) || isComponent(textBefore)) {
        comment = text;
        text = isComponent(textBefore) ? textBefore : QString();
        begin = text.isEmpty() ? begin : before;
    }
    component = text.mid(prefix.size(), text.size() - prefix.size() - suffix.size());
    if (!component.isEmpty() || !comment.isEmpty())
        moveLines(begin, pointLoad);
}

/// Where the comment begins that ends before line \a end; \a end where there is none.
int DeckComments::beginOfParagraph(int end) const
{
    if (end == 0 || !m_lines.at(end - 1).isPlain)
        return end;
    int begin = end - 1;
    while (begin > 0 && m_lines.at(begin - 1).isPlain
           && isFull(m_lines.at(begin - 1).text, m_lines.at(begin).text))
        --begin;
    return begin;
}

QByteArray DeckComments::paragraph(int begin, int end) const
{
    QByteArray result;
    for (int i = begin; i < end; ++i)
        result += m_lines.at(i).text;
    return result;
}

void DeckComments::moveLines(int first, coDeckOption& pointLoad)
{
    const Line& line = m_lines.at(first);
    pointLoad.firstLine = line.number;
    pointLoad.offset = line.offset;
    pointLoad.lines = m_lines.size() - first;
    pointLoad.size = m_option.offset + m_option.size - line.offset;
    m_option.lines -= pointLoad.lines;
    m_option.size -= pointLoad.size;
}
