#pragma once

#include <QStringList>

#include <functional>
#include <memory>

/// Reads lines that a person types. With libedit (lineeditor_libedit.cpp) lines can be edited, earlier ones
/// come back, also those of earlier sessions, and Tab completes; without it (lineeditor_plain.cpp) lines are
/// read as the system's window has them edited. One object a process.
class LineEditor {
public:
    /// How the text before the cursor may go on.
    struct Completion {
        QStringList candidates; ///< whole words
        int begin = 0;          ///< of the word in that text
        QString text;           ///< what all candidates have in common, as it is typed in the word's place
    };
    using Completer = std::function<Completion(const QString& beforeCursor)>;

    enum Outcome {
        Line,
        Dropped, ///< Ctrl-C
        End      ///< of the input
    };

    /// Earlier lines are kept in \a historyFile; none are kept where it is empty.
    LineEditor(const QString& historyFile, Completer completer);
    ~LineEditor();
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    /// Waits for a line, which comes without its line end. \a prompt stands in bold where \a isEmphasised.
    Outcome readLine(const QString& prompt, bool isEmphasised, QString& line);

private:
    class Private;
    std::unique_ptr<Private> d;
};
