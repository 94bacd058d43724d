#pragma once

#include <QStringList>

#include <functional>
#include <memory>

/// Reads lines that a person types. With libedit (lineeditor_libedit.cpp) lines can be edited, earlier ones
/// come back, also those of earlier sessions, and Tab completes; without it (lineeditor_plain.cpp) lines are
/// just read. One object a process.
class LineEditor {
public:
    /// The words that may stand at the end of the text before the cursor.
    using Completer = std::function<QStringList(const QString& beforeCursor)>;

    /// Earlier lines are kept in \a historyFile; none are kept where it is empty.
    LineEditor(const QString& historyFile, Completer completer);
    ~LineEditor();
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    /// Waits for a line, which comes without its line end; false at the end of the input.
    bool readLine(const QString& prompt, QString& line);

private:
    class Private;
    std::unique_ptr<Private> d;
};
