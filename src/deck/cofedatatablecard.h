#pragma once

#include "cofetablecard.h"

#include <QCoreApplication>
#include <QString>

class kdDataTable;
class kdUnitSystem;

/// A table card that takes its values from a kdDataTable and owns them.
///
/// Use it instead of coFeTableCard wherever the values lie in a table of the project. The solver knows no
/// units, so all values are converted to SI, or to the units that the deck is written in.
///
/// \code
/// coFeDataTableCard card(curve.name(), 7, time); // the independent variable by its type
/// if (!card.setTable(curve))
///     reporter.error(card.errorText());
/// writer.writeCard(card);
/// \endcode
///
/// The table may change or go once it is set. A table that does not fit is refused: the card keeps its values
/// and errorText() says why. Not thread-safe. Owns all its data.
class KDQCORE_EXPORT coFeDataTableCard : public coFeTableCard {
    Q_DECLARE_TR_FUNCTIONS(coFeDataTableCard)

public:
    /// The values of \a variable1 come from the table later.
    coFeDataTableCard(const QString& tableName, int tableId, const IndependentVarUsingValues& variable1);
    coFeDataTableCard(const coFeDataTableCard& other);
    coFeDataTableCard& operator=(const coFeDataTableCard& other);
    ~coFeDataTableCard() override;

    /// Takes the points of an XY table: at least one row, all values finite, X not descending.
    bool setTable(const kdDataTable& table);
    bool setTable(const kdDataTable& table, const kdUnitSystem& xUnit, const kdUnitSystem& yUnit);

    /// Takes a grid: column 0 holds variable 1, each further column the dependent values for one value of
    /// \a variable2. Both variables must ascend. The values of \a variable2 are written as given.
    bool setGrid(const kdDataTable& table, const IndependentVarUsingValues& variable2);
    bool setGrid(const kdDataTable& table, const IndependentVarUsingValues& variable2,
                 const kdUnitSystem& xUnit, const kdUnitSystem& yUnit);

    /// The card's values as a table: X and Y; of a grid one further column for each value of the second
    /// variable, which is its name. Without units: a card keeps none.
    kdDataTable toTable() const;

    /// Takes dependent values as they are; whether they fit the variables shows in write() only.
    void setOwnValues(const QList<double>& values);

    /// Why the last table was refused, for the user; empty where it was taken.
    QString errorText() const { return m_errorText; }

private:
    bool take(const kdDataTable& table, const kdUnitSystem* xUnit, const kdUnitSystem* yUnit);
    bool takeGrid(const kdDataTable& table, const IndependentVarUsingValues& variable2,
                  const kdUnitSystem* xUnit, const kdUnitSystem* yUnit);
    bool accept(const QList<double>& x, const QList<double>& y);
    bool refuse(const QString& errorText);

    QList<double> m_ownValues;
    QString m_errorText;
};
