#pragma once

#include "cofetablecardbase.h"

/// A table given by a formula of one or two independent variables, which the solver evaluates.
///
/// \code
/// coFeTableCardUsingFormula card(QStringLiteral("conductivity"), 3,
///                                coFeTableCardBase::IndependentVarBase(temperature));
/// card.setFormula(QStringLiteral("54-0.0333*v1"));
/// writer.writeCard(card);
/// \endcode
///
/// The formula is written as it is, a line break as a blank. Its language is the solver's, in which v1 and v2
/// are the independent variables. That of coExpression is akin to it but not the same: conditions, angles in
/// degrees and the names of some functions are coExpression's own. A formula of numbers, v1 and v2, + - * /,
/// parentheses and abs() means the same in both; the larger of a and b is then (a + b + abs(a - b)) / 2.
///
/// Not thread-safe. Owns all its data.
class KDQCORE_EXPORT coFeTableCardUsingFormula : public coFeTableCardBase {
public:
    coFeTableCardUsingFormula(const QString& tableName, int tableId, const IndependentVarBase& variable1);
    coFeTableCardUsingFormula(const coFeTableCardUsingFormula&) = default;
    coFeTableCardUsingFormula& operator=(const coFeTableCardUsingFormula&) = default;
    ~coFeTableCardUsingFormula() override;

    /// An empty formula is logged, nothing is written, and the result is false.
    bool write(CFEDatLineWriter& writer) const override;

    /// Always nMarc::ReadFormula.
    nMarc::e_TableReadMethod getReadMethod() const override;

    QString formula() const { return m_formula; }
    void setFormula(const QString& formula) { m_formula = formula; }

private:
    QString m_formula;
};
