#pragma once

#include "platform.h"

/// A line at a console's window, over as many rows as it takes, painted anew whenever it changes. A line that
/// is longer than the window is high shows the part around the cursor.
class PaintedLine {
public:
    /// It begins where the cursor stands.
    explicit PaintedLine(nPlatform::ConsoleWindow& window) : m_window(window) { begin(); }

    void paint(const QString& prompt, bool isEmphasised, const QString& text, int cursor);
    /// The window has another size: rows were broken anew and the cursor went along.
    void follow();
    /// Goes to the row below the line, and writes \a more there with a row of its own. What is painted next
    /// begins there.
    void leave(const QString& more = QString());

private:
    void begin();
    void makeRoom(int cells);
    int cellsUpTo(nPlatform::ConsoleCell cell) const;

    nPlatform::ConsoleWindow& m_window;
    int m_columns = 1; ///< of the window when the cells below were found
    nPlatform::ConsoleCell m_begin;
    nPlatform::ConsoleCell m_cursor;
    nPlatform::ConsoleCell m_end;
};
