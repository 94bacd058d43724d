#include "paintedline.h"

#include <algorithm>

using nPlatform::ConsoleCell;

namespace {

/// At the most: how wide the window paints a character is its own affair.
int cellsOf(const QString& text)
{
    constexpr char16_t firstWide = 0x1100;
    const auto wide =
        std::count_if(text.begin(), text.end(), [](QChar character) { return character >= firstWide; });
    return static_cast<int>(text.size() + wide);
}

} // namespace

void PaintedLine::begin()
{
    m_columns = std::max(1, m_window.size().column);
    m_begin = m_cursor = m_end = m_window.cursor();
}

void PaintedLine::paint(const QString& prompt, bool isEmphasised, const QString& text, int cursor)
{
    const int room = m_columns * (m_window.size().row - 1) - cellsOf(prompt);
    const int size = static_cast<int>(text.size());
    const int most = cellsOf(text) <= room ? size : std::min(size, std::max(1, room / 2));
    const int first = std::clamp(cursor - most / 2, 0, size - most);
    const QString shown = text.mid(first, most);
    const int before = cursor - first;
    makeRoom(cellsOf(prompt) + cellsOf(shown));
    m_window.moveCursor(m_begin);
    m_window.write(prompt, isEmphasised);
    m_window.write(shown.left(before));
    m_cursor = m_window.cursor();
    m_window.write(shown.mid(before));
    const ConsoleCell end = m_window.cursor();
    const int left = cellsUpTo(m_end) - cellsUpTo(end);
    if (left > 0)
        m_window.erase(end, left);
    m_end = end;
    m_window.moveCursor(m_cursor);
}

void PaintedLine::follow()
{
    const int toCursor = m_begin.column + cellsUpTo(m_cursor);
    const int toEnd = m_begin.column + cellsUpTo(m_end);
    m_columns = std::max(1, m_window.size().column);
    m_begin.row = std::max(0, m_window.cursor().row - toCursor / m_columns);
    m_end = {toEnd % m_columns, m_begin.row + toEnd / m_columns};
}

void PaintedLine::leave(const QString& more)
{
    m_window.moveCursor(m_end);
    if (m_end.column > 0 || m_end.row == m_begin.row) // else it filled its last row
        m_window.write(QStringLiteral("\n"));
    if (!more.isEmpty())
        m_window.write(more + QLatin1Char('\n'));
    begin();
}

/// So that rows do not move while cells are being remembered.
void PaintedLine::makeRoom(int cells)
{
    constexpr int lostAtTheEdge = 1; // by a wide character that does not fit there
    const int lastRow = m_window.size().row - 1;
    const int rows = (m_begin.column + cells) / std::max(1, m_columns - lostAtTheEdge);
    const int missing = std::min(m_begin.row, m_begin.row + rows - lastRow);
    if (missing <= 0)
        return;
    m_window.moveCursor({0, lastRow});
    m_window.write(QString(missing, QLatin1Char('\n')));
    m_begin.row -= missing;
    m_end.row -= missing;
}

int PaintedLine::cellsUpTo(ConsoleCell cell) const
{
    return (cell.row - m_begin.row) * m_columns + cell.column - m_begin.column;
}
