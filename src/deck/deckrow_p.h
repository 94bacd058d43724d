#pragma once

#include "decklines_p.h"

#include <QStringList>

/// One data line of a card, field by field. The first field that does not hold what is expected is reported;
/// all after it are passed over. A blank or missing field is 0.
class DeckRow {
    Q_DECLARE_TR_FUNCTIONS(coDeckReader)

public:
    /// Takes the option's next data line.
    DeckRow(DeckLines& lines, coDeckOption& option);
    /// Fields of the keyword line itself, behind the keyword.
    DeckRow(DeckLines& lines, coDeckOption& option, const coDeckLine& line, int start);

    DeckRow& integer(int& value);
    /// One of two values; \a value becomes whether it is \a ifTrue.
    DeckRow& choice(bool& value, int ifTrue, int ifFalse);
    /// A number that our cards always write. Another one is read, but no card can hold it.
    DeckRow& constant(int expected);
    DeckRow& constants(int expected, int count);
    DeckRow& real(double& value);
    DeckRow& constantReal(double expected);
    /// What is left of the line.
    DeckRow& rest(QString& text);
    /// The same as a field: in free format a comma ends it.
    DeckRow& word(QString& text);
    /// Reports blank fields, and what is left on the line.
    DeckRow& end();

    bool atEnd() const { return m_fields.atEnd(); }
    /// Of the last field.
    int column() const { return m_fields.field().column; }
    bool ok() const { return m_ok; }
    /// Whether a card can hold what was read.
    bool isOurs() const { return m_isOurs; }

private:
    bool isBlank();
    void fail(const QString& expected);
    void notOurs(const QString& expected);

    DeckLines& m_lines;
    coDeckOption& m_option;
    coDeckFields m_fields;
    int m_number = 0; ///< of the field
    QStringList m_blanks;
    int m_blankColumn = 0; ///< of the first of them
    bool m_ok = true;
    bool m_isOurs = true;
};
