#pragma once

#include "decklines_p.h"
#include "deckrow_p.h"

/// Reads the data lines of the options that this library's cards write. Each function is called with the
/// option's keyword line taken; it takes the option's other lines, reports what is wrong with them, and sets
/// the card where there is nothing wrong and cards are wanted.
class DeckCardReader {
    Q_DECLARE_TR_FUNCTIONS(coDeckReader)

public:
    DeckCardReader(DeckLines& lines, coDeckOption& option) : m_lines(lines), m_option(option) { }

    void readTableSection();
    void readProcess();
    void readAutoLoad();
    void readSolver();
    void readTable();
    void readPointLoad(const QString& component, const QString& comment);
    void readPointCurrent();
    /// Takes what is left of an option after an error in it, as far as its kind tells.
    void passOver();

private:
    struct TableVariable {
        int type = 0;
        int points = 0;
        bool isExtrapolated = true;
        QList<double> values;
    };
    /// What the first lines of a table say.
    struct TableHead {
        qint64 line = 0; ///< the one that announces the points
        int variables = 0;
        int readMethod = 0;
        TableVariable variable[2];
    };

    DeckRow nextRow()
    {
        ++m_rows;
        return DeckRow(m_lines, m_option);
    }
    DeckRow keywordRow(int keywordLength);
    bool note(const DeckRow& row);
    template <typename Card>
    void keep(const Card& card)
    {
        if (m_lines.readsCards() && m_isOurs && m_lines.isWhole(m_option))
            m_option.card = QSharedPointer<Card>::create(card);
    }

    bool isAhead(const char* keyword);
    bool isNodeListMark(const coDeckLine& line) const;
    bool isNameAhead();
    bool readForceTables(int forces);
    bool readSolverExtras(class coFeSolverCard& card, int solverId);
    bool readTableHead(TableHead& head);
    void readFormula(const TableHead& head);
    bool isPointAhead(bool isExpected);
    void readPoints(TableHead& head);
    void readGrid(TableHead& head);
    bool readGridVariable(TableVariable& variable, int number);
    /// \a taker takes the next field, which has an index, and says whether it was as it should be.
    template <typename Taker>
    bool readList(qint64 expected, const QString& what, const Taker& taker);
    template <typename Taker>
    bool readListLine(const coDeckLine& line, qint64& count, const Taker& taker);
    bool readValue(const coDeckFields::Field& field, double& value);
    bool takeValue(coDeckFields& fields, QList<double>& values);
    bool isAtEnd(coDeckFields& fields);
    void keepTable(const TableHead& head, const QList<double>& values);

    DeckLines& m_lines;
    coDeckOption& m_option;
    bool m_isOurs = true;
    int m_rows = 0;
};
