#pragma once

#include <QStringList>

#include <functional>
#include <memory>

/// Reads lines that a person types. Lines can be edited, earlier ones come back, also those of earlier
/// sessions, and Tab completes: by libedit (lineeditor_libedit.cpp), or without it at a console's window of
/// Windows (lineeditor_console.cpp). Where there is neither, lines are read as the terminal has them edited.
/// One object a process.
class LineEditor {
public:
    /// How the text before the cursor may go on.
    struct Completion {
        QStringList candidates; ///< whole words
        int begin = 0;          ///< of the word in that text
        QString text;           ///< what all candidates have in common, as it is typed in the word's place

        /// Whether there is more to type; else the choice may be shown.
        bool goesOn(const QString& beforeCursor) const
        {
            const QString typed = beforeCursor.mid(begin);
            return text.size() > typed.size() || (candidates.size() == 1 && text != typed);
        }
        QString choice() const { return candidates.join(QLatin1String("  ")); }
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
