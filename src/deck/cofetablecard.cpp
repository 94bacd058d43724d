#include "cofetablecard.h"

#include "cardlines.h"

#include <kdQCore/kdLog>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Variable = coFeTableCard::IndependentVarUsingValues;

// The base class lets a variable without values in; it counts as one with none.
const Variable& withValues(const coFeTableCardBase::IndependentVarBase* variable)
{
    static const Variable none(nMarc::NoTableVariable);
    const auto* result = dynamic_cast<const Variable*>(variable);
    return result ? *result : none;
}

void makeDistinct(coFeTableCardBase::IndependentVarBase* variable)
{
    if (auto* known = dynamic_cast<Variable*>(variable))
        known->makeValuesDistinct();
}

bool isDuplicate(double taken, double value)
{
    return std::fabs(value - taken)
        < std::numeric_limits<double>::epsilon() * std::max(1.0, std::fabs(std::max(taken, value)));
}

} // namespace

coFeTableCard::IndependentVarUsingValues::IndependentVarUsingValues(nMarc::e_TableVariableType variableType,
                                                                    const QList<double>& values,
                                                                    bool isExtrapolationAllowed)
    : IndependentVarBase(variableType), m_isExtrapolationAllowed(isExtrapolationAllowed), m_values(values)
{
}

coFeTableCard::IndependentVarUsingValues::IndependentVarUsingValues(nMarc::e_TableVariableType variableType,
                                                                    bool isExtrapolationAllowed,
                                                                    const QList<double>& values)
    : IndependentVarUsingValues(variableType, values, isExtrapolationAllowed)
{
}

coFeTableCard::IndependentVarUsingValues* coFeTableCard::IndependentVarUsingValues::getCopy() const
{
    return new IndependentVarUsingValues(*this);
}

coFeTableCard::IndependentVarUsingValues::~IndependentVarUsingValues() = default;

void coFeTableCard::IndependentVarUsingValues::setValues(const QList<double>& values)
{
    m_values = values;
    m_distinctValues.clear();
}

void coFeTableCard::IndependentVarUsingValues::makeValuesDistinct()
{
    m_distinctValues.clear();
    for (double value : qAsConst(m_values)) {
        if (!m_distinctValues.isEmpty()) {
            const double taken = m_distinctValues.constLast();
            if (isDuplicate(taken, value))
                continue;
            if (taken > value)
                return;
        }
        m_distinctValues.append(value);
    }
}

coFeTableCard::coFeTableCard(const QString& tableName, int tableId,
                             const IndependentVarUsingValues& variable1)
    : coFeTableCardBase(tableName, tableId, variable1)
{
}

coFeTableCard::~coFeTableCard() = default;

bool coFeTableCard::write(CFEDatLineWriter& writer) const
{
    if (!m_values || m_values->isEmpty()) {
        KD_LOG(
            kdLog::Fault, kdLog::WriteDat,
            QStringLiteral("Table %1 (Id=%2) has no y values.").arg(tableName(), QString::number(tableId())));
        return false;
    }
    const Variable& variable1 = withValues(&independentVariable1());
    const Block3 block3({variable1.variableType(), nPointsOfVariable1(), variable1.isExtrapolationAllowed()},
                        dataOfVariable2());
    CardLines lines(writer);
    lines.add(writeBlocks(writer, block3));
    switch (getReadMethod()) {
    case nMarc::ReadGrid:
    case nMarc::ReadGridValueByValue:
        return lines.add(writeGrid(writer)).ok();
    case nMarc::ReadPoints:
        return lines.add(writePoints(writer)).ok();
    default:
        return false;
    }
}

nMarc::e_TableReadMethod coFeTableCard::getReadMethod() const
{
    return nIndependentVars() == 1 ? nMarc::ReadPoints : m_defaultReadMethod;
}

void coFeTableCard::setIndependentVariable2(const IndependentVarUsingValues& variable)
{
    coFeTableCardBase::setIndependentVariable2(variable);
    makeDistinct(&editIndependentVariable1());
    makeDistinct(editIndependentVariable2());
}

void coFeTableCard::setDefaultReadMethodForMoreThan1IndependentVar(nMarc::e_TableReadMethod readMethod)
{
    if (readMethod < nMarc::ReadPoints)
        m_defaultReadMethod = readMethod;
}

int coFeTableCard::requiredNumberOfVariableDependentValues() const
{
    const Variable& variable1 = withValues(&independentVariable1());
    if (nIndependentVars() == 1)
        return variable1.values().size();
    const qint64 product = qint64(variable1.distinctValues().size())
        * withValues(independentVariable2()).distinctValues().size();
    return int(std::min<qint64>(product, std::numeric_limits<int>::max()));
}

void coFeTableCard::setValuesOfVariable1(const QList<double>& values)
{
    if (auto* variable1 = dynamic_cast<Variable*>(&editIndependentVariable1()))
        variable1->setValues(values);
}

int coFeTableCard::nPointsOfVariable1() const
{
    const Variable& variable1 = withValues(&independentVariable1());
    if (getReadMethod() == nMarc::ReadPoints)
        return std::min(m_values->size(), variable1.values().size());
    return variable1.distinctValues().size();
}

coFeTableCardBase::Block3::Data coFeTableCard::dataOfVariable2() const
{
    if (!independentVariable2())
        return {};
    const Variable& variable2 = withValues(independentVariable2());
    return {variable2.variableType(), variable2.distinctValues().size(), variable2.isExtrapolationAllowed()};
}

bool coFeTableCard::writeGrid(CFEDatLineWriter& writer) const
{
    const QList<double>& values1 = withValues(&independentVariable1()).distinctValues();
    const QList<double>& values2 = withValues(independentVariable2()).distinctValues();
    const int perLine = getReadMethod() == nMarc::ReadGrid ? values1.size() : 1;
    return CardLines(writer)
        .add(writer.writeDoubleValues(values1, 8))
        .add(writer.writeDoubleValues(values2, 8))
        .add(writer.writeDoubleValues(*m_values, perLine))
        .add(isNumberOfValuesRight())
        .ok();
}

bool coFeTableCard::writePoints(CFEDatLineWriter& writer) const
{
    const QList<double>& x = withValues(&independentVariable1()).values();
    const int nPoints = nPointsOfVariable1();
    CardLines lines(writer);
    for (int i = 0; i < nPoints; ++i)
        lines.reals({x.at(i), m_values->at(i)}).end();
    lines.add(isNumberOfValuesRight());
    const auto descent = std::adjacent_find(x.begin(), x.end(), [](double a, double b) { return b < a; });
    if (descent != x.end()) {
        KD_LOG(kdLog::Fault, kdLog::WriteDat,
               QStringLiteral("The x values of table %1 (Id=%2) descend after value %3.")
                   .arg(tableName(), QString::number(tableId()), QString::number(descent - x.begin() + 1)));
        lines.add(false);
    }
    return lines.ok();
}

bool coFeTableCard::isNumberOfValuesRight() const
{
    const int required = requiredNumberOfVariableDependentValues();
    if (m_values->size() == required)
        return true;
    KD_LOG(kdLog::Fault, kdLog::WriteDat,
           QStringLiteral("Number of y values of table %0 (Id=%1) should be %2.")
               .arg(tableName(), QString::number(tableId()), QString::number(required)));
    return false;
}
