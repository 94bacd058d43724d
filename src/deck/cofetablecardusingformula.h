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
/// The formula is written as it is, a line break as a blank; its syntax is the solver's.
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
