#pragma once

#include "cfeabstractdatcard.h"
#include "cfedatlinewriter.h"

#include <QCoreApplication>
#include <QSharedPointer>
#include <QString>

/// One option of a deck, as coDeckReader finds it: a keyword with its data lines, or a run of comments.
/// Copies share the card.
struct KDQCORE_EXPORT coDeckOption {
    Q_DECLARE_TR_FUNCTIONS(coDeckOption)

public:
    enum Kind {
        Comments, ///< comment and blank lines that belong to no card
        Other,    ///< an option that this library does not write: a keyword line and what follows it
        Title,
        LoadCase,
        Element,
        Feature,
        Nodal,
        TableSection, ///< coFeParameterSectionTable
        Process,      ///< coFeAutoforgeCard
        AutoLoad,     ///< cFeAutoLoadCard
        Solver,       ///< coFeSolverCard
        Table,        ///< coFeDataTableCard
        FormulaTable, ///< coFeTableCardUsingFormula
        PointLoad,    ///< cPointLoadCard
        PointCurrent  ///< cFePointCurrentCard
    };

    Kind kind = Other;
    /// As the deck spells it: "table", "point load"; the whole line for Other; empty for Comments.
    QString keyword;
    /// Title, load case, table, the label of a point load or current.
    QString name;
    /// The id of a table; the number of Element, Feature and Nodal.
    int id = 0;

    QString nodeList;       ///< The node list that a point load or current acts on.
    int tableReference = 0; ///< The table that a point current follows, 0 for none.

    qint64 firstLine = 0; ///< counted from 1
    qint64 lines = 0;
    qint64 offset = 0; ///< of the first byte in the deck
    qint64 size = 0;   ///< in bytes, the last line end included

    /// Whether its fields are separated by commas.
    CFEDatLineWriter::datFormat format = CFEDatLineWriter::fixed;

    /// What writes the option again, byte for byte where this library wrote it. Null for kinds without a
    /// card, where the reader found an error in it, and where no cards were asked for.
    QSharedPointer<cFeAbstractDatCard> card;

    /// For people, and the same in any letter case of a known keyword: "table 'yield_stress'".
    QString text() const;
};
