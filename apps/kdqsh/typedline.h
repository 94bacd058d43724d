#pragma once

#include "editedline.h"
#include "lineeditor.h"
#include "platform.h"

#include <QCoreApplication>

/// A line from its first key to its last: obeys the keys that people know from shells and from Windows' own
/// window (docs/kdqsh.md lists them), brings earlier lines back, searches them and completes words. It shows
/// nothing itself.
class TypedLine {
    Q_DECLARE_TR_FUNCTIONS(TypedLine)

public:
    enum State {
        Typing,
        Choosing, ///< the word cannot be completed, choice() may be shown
        Entered,
        Dropped,
        Ended
    };

    /// \a earlier lines: oldest first. \a completer must live as long as the object.
    TypedLine(const QStringList& earlier, const LineEditor::Completer& completer);

    State press(const nPlatform::ConsoleKey& key);

    const QString& text() const { return m_line.text(); }
    int cursor() const { return m_line.cursor(); }
    /// What stands before it: what was asked for while lines are searched, else \a usual.
    QString prompt(const QString& usual) const;
    const QString& choice() const { return m_choice; }

private:
    State pressOnce(const nPlatform::ConsoleKey& key);
    State pressCharacter(const nPlatform::ConsoleKey& key);
    State pressControl(char16_t control);
    void edit(char16_t control);
    void pressWithAlt(char16_t character);
    State complete();
    void recall(int step);
    void beginSearch();
    void search(int from, const EditedLine& sought);
    bool goOnSearching(const nPlatform::ConsoleKey& key);

    const QStringList m_earlier;
    const LineEditor::Completer& m_completer;
    EditedLine m_line;
    int m_place;          ///< of the line among the earlier ones, behind them for the new one
    QString m_unfinished; ///< new line, while an earlier one is shown
    bool m_isSearching = false;
    EditedLine m_sought;
    EditedLine m_lineBeforeSearch;
    int m_placeBeforeSearch = 0;
    QString m_choice;
};
