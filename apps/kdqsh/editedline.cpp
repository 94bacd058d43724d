#include "editedline.h"

#include <QTextBoundaryFinder>

void EditedLine::set(const QString& text)
{
    m_text = text;
    m_cursor = static_cast<int>(text.size());
}

void EditedLine::insert(const QString& text)
{
    m_text.insert(m_cursor, text);
    m_cursor += static_cast<int>(text.size());
}

void EditedLine::replaceFrom(int begin, const QString& text)
{
    cut(begin, m_cursor, Character);
    insert(text);
}

void EditedLine::cutBack(Reach reach)
{
    cut(before(reach), m_cursor, reach);
}

void EditedLine::cutOn(Reach reach)
{
    cut(m_cursor, behind(reach), reach);
}

int EditedLine::before(Reach reach) const
{
    if (reach != Word)
        return reach == All ? 0 : characterFrom(m_cursor, true);
    int begin = m_cursor;
    while (begin > 0 && !isOfWord(begin - 1))
        --begin;
    while (begin > 0 && isOfWord(begin - 1))
        --begin;
    return begin;
}

int EditedLine::behind(Reach reach) const
{
    const int size = static_cast<int>(m_text.size());
    if (reach != Word)
        return reach == All ? size : characterFrom(m_cursor, false);
    int end = m_cursor;
    while (end < size && !isOfWord(end))
        ++end;
    while (end < size && isOfWord(end))
        ++end;
    return end;
}

int EditedLine::characterFrom(int begin, bool isBack) const
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, m_text);
    finder.setPosition(begin);
    const int found = static_cast<int>(isBack ? finder.toPreviousBoundary() : finder.toNextBoundary());
    return found < 0 ? begin : found;
}

bool EditedLine::isOfWord(int index) const
{
    const QChar character = m_text.at(index);
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate()
        || character == QLatin1Char('_');
}

void EditedLine::cut(int begin, int end, Reach reach)
{
    if (reach != Character && begin < end)
        m_cut = m_text.mid(begin, end - begin);
    m_text.remove(begin, end - begin);
    m_cursor = begin;
}
