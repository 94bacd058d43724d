#pragma once

#include <QString>

/// The text of a line and the cursor in it. What is one character to people stays whole, whatever it is made
/// of: surrogate pairs, letters with their accents.
class EditedLine {
public:
    /// How far an operation goes. A word ends where letters and digits end.
    enum Reach { Character, Word, All };

    const QString& text() const { return m_text; }
    /// Before the character of this index.
    int cursor() const { return m_cursor; }
    QString beforeCursor() const { return m_text.left(m_cursor); }

    /// The cursor is at the end then.
    void set(const QString& text);
    void insert(const QString& text);
    /// Puts another text in the place of what stands between \a begin and the cursor.
    void replaceFrom(int begin, const QString& text);

    void goBack(Reach reach) { m_cursor = before(reach); }
    void goOn(Reach reach) { m_cursor = behind(reach); }
    void cutBack(Reach reach);
    void cutOn(Reach reach);
    /// What was cut last, words and more.
    void paste() { insert(m_cut); }

private:
    int before(Reach reach) const;
    int behind(Reach reach) const;
    int characterFrom(int begin, bool isBack) const;
    bool isOfWord(int index) const;
    void cut(int begin, int end, Reach reach);

    QString m_text;
    QString m_cut;
    int m_cursor = 0;
};
