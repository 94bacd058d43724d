#pragma once

#include "cofetablecardbase.h"

#include <QList>

/// A table given by values, over one or two independent variables.
///
/// With one variable, x and y are written point by point; x must not descend. With two variables the
/// dependent values lie on the grid of the variables' distinct values: first those for the first value of
/// variable 2, in the order of variable 1, then those for its second value, and so on.
///
/// \code
/// const QList<double> stress{355.0e6, 355.0e6, 276.9e6}; // must outlive the card
/// coFeTableCard card(QStringLiteral("yield stress"), 1,
///                    coFeTableCard::IndependentVarUsingValues(temperature, {293.15, 673.15, 773.15}));
/// card.setValues(&stress);
/// writer.writeCard(card);
/// \endcode
///
/// coFeDataTableCard makes such a card from a kdDataTable and owns its values.
///
/// Not thread-safe. Owns copies of its variables, but not the dependent values.
class KDQCORE_EXPORT coFeTableCard : public coFeTableCardBase {
public:
    /// An independent variable with the values at which the table is given.
    class KDQCORE_EXPORT IndependentVarUsingValues : public IndependentVarBase {
    public:
        IndependentVarUsingValues(nMarc::e_TableVariableType variableType, const QList<double>& values = {},
                                  bool isExtrapolationAllowed = true);
        IndependentVarUsingValues(nMarc::e_TableVariableType variableType, bool isExtrapolationAllowed,
                                  const QList<double>& values);
        IndependentVarUsingValues(const IndependentVarUsingValues&) = default;
        IndependentVarUsingValues& operator=(const IndependentVarUsingValues&) = default;

        IndependentVarUsingValues* getCopy() const override;
        ~IndependentVarUsingValues() override;

        /// Whether the solver extends the table beyond its first and last value, or holds these.
        bool isExtrapolationAllowed() const { return m_isExtrapolationAllowed; }
        void setIsExtrapolationAllowed(bool isAllowed) { m_isExtrapolationAllowed = isAllowed; }

        const QList<double>& values() const { return m_values; }
        /// Also forgets the distinct values.
        void setValues(const QList<double>& values);

        /// Empty until makeValuesDistinct().
        const QList<double>& distinctValues() const { return m_distinctValues; }

        /// Finds the distinct values: drops each value that equals the one taken before it (to a
        /// relative 2.2e-16, absolute below 1), and everything from the first value on that is smaller than
        /// the one before it.
        void makeValuesDistinct();

    private:
        bool m_isExtrapolationAllowed;
        QList<double> m_values;
        QList<double> m_distinctValues;
    };

    coFeTableCard(const QString& tableName, int tableId, const IndependentVarUsingValues& variable1);
    coFeTableCard(const coFeTableCard&) = default;
    coFeTableCard& operator=(const coFeTableCard&) = default;
    ~coFeTableCard() override;

    /// Without dependent values nothing is written. What does not fit (number of values, descending x, a
    /// variable without a type) is logged, makes the result false, and the rest is written all the same.
    bool write(CFEDatLineWriter& writer) const override;

    /// nMarc::ReadPoints with one variable, otherwise the default read method.
    nMarc::e_TableReadMethod getReadMethod() const override;

    /// Also makes the values of both variables distinct.
    void setIndependentVariable2(const IndependentVarUsingValues& variable);

    /// nMarc::ReadGrid by default. Codes from nMarc::ReadPoints on are ignored.
    void setDefaultReadMethodForMoreThan1IndependentVar(nMarc::e_TableReadMethod readMethod);
    nMarc::e_TableReadMethod defaultReadMethodForMoreThan1IndependentVar() const
    {
        return m_defaultReadMethod;
    }

    /// The dependent values, which stay the caller's and must live as long as the card and its copies are
    /// written.
    void setValues(const QList<double>* values) { m_values = values; }
    const QList<double>* values() const { return m_values; }

    /// How many dependent values the independent ones ask for; the largest int where the product is beyond
    /// it.
    int requiredNumberOfVariableDependentValues() const;

protected:
    /// Keeps type and extrapolation.
    void setValuesOfVariable1(const QList<double>& values);

private:
    int nPointsOfVariable1() const;
    Block3::Data dataOfVariable2() const;
    bool writeGrid(CFEDatLineWriter& writer) const;
    bool writePoints(CFEDatLineWriter& writer) const;
    bool isNumberOfValuesRight() const;

    nMarc::e_TableReadMethod m_defaultReadMethod = nMarc::ReadGrid;
    const QList<double>* m_values = nullptr;
};
