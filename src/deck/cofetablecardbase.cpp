#include "cofetablecardbase.h"

#include "cardlines.h"

#include <kdQCore/kdLog>

coFeTableCardBase::IndependentVarBase* coFeTableCardBase::IndependentVarBase::getCopy() const
{
    return new IndependentVarBase(*this);
}

coFeTableCardBase::IndependentVarBase::~IndependentVarBase() = default;

bool coFeTableCardBase::Block1::write(CFEDatLineWriter& writer) const
{
    return CardLines(writer).field(QStringLiteral("table")).text(m_tableName).end().ok();
}

coFeTableCardBase::Block1::~Block1() = default;

coFeTableCardBase::Block2::Block2(int tableId, int nIndependentVars, nMarc::e_TableReadMethod readMethod)
    : m_tableId(tableId), m_nIndependentVars(nIndependentVars),
      m_readMethod(readMethod == nMarc::ReadPoints && nIndependentVars != 1 ? nMarc::ReadGrid : readMethod)
{
}

bool coFeTableCardBase::Block2::write(CFEDatLineWriter& writer) const
{
    return CardLines(writer).ints({m_tableId, m_nIndependentVars, 0, 0, m_readMethod}).end().ok();
}

coFeTableCardBase::Block2::~Block2() = default;

coFeTableCardBase::Block3::Data::Data(nMarc::e_TableVariableType variableType, int nPoints,
                                      bool isExtrapolationAllowed)
    : m_variableType(variableType), m_nPoints(nPoints), m_isExtrapolationAllowed(isExtrapolationAllowed)
{
}

bool coFeTableCardBase::Block3::Data::write(CFEDatLineWriter& writer) const
{
    return CardLines(writer).ints({m_variableType, m_nPoints, m_isExtrapolationAllowed ? 2 : 1}).ok();
}

coFeTableCardBase::Block3::Data::~Data() = default;

coFeTableCardBase::Block3::Block3(const Data& variable1, const Data& variable2)
    : m_variable1(variable1), m_variable2(variable2)
{
}

bool coFeTableCardBase::Block3::write(CFEDatLineWriter& writer) const
{
    if (!m_variable1.isValid())
        return false;
    CardLines lines(writer);
    lines.add(m_variable1.write(writer));
    if (m_variable2.isValid())
        lines.add(m_variable2.write(writer));
    return lines.end().ok();
}

coFeTableCardBase::Block3::~Block3() = default;

coFeTableCardBase::~coFeTableCardBase() = default;

coFeTableCardBase::coFeTableCardBase(const QString& tableName, int tableId,
                                     const IndependentVarBase& variable1)
    : m_variable1(variable1.getCopy()), m_tableId(tableId), m_tableName(tableName)
{
}

coFeTableCardBase::coFeTableCardBase(const coFeTableCardBase& other)
    : cFeAbstractDatCard(other), m_variable1(other.m_variable1->getCopy()),
      m_variable2(other.m_variable2 ? other.m_variable2->getCopy() : nullptr), m_tableId(other.m_tableId),
      m_tableName(other.m_tableName)
{
}

coFeTableCardBase& coFeTableCardBase::operator=(const coFeTableCardBase& other)
{
    if (this == &other)
        return *this;
    m_variable1.reset(other.m_variable1->getCopy());
    m_variable2.reset(other.m_variable2 ? other.m_variable2->getCopy() : nullptr);
    m_tableId = other.m_tableId;
    m_tableName = other.m_tableName;
    return *this;
}

void coFeTableCardBase::setIndependentVariable2(const IndependentVarBase& variable)
{
    m_variable2.reset(variable.getCopy());
}

bool coFeTableCardBase::writeBlocks(CFEDatLineWriter& writer, const Block3& block3) const
{
    CardLines lines(writer);
    lines.add(Block1(m_tableName).write(writer));
    lines.add(Block2(m_tableId, nIndependentVars(), getReadMethod()).write(writer));
    lines.add(block3.write(writer));
    if (m_variable2 && !block3.variable2().isValid()) {
        KD_LOG(kdLog::Fault, kdLog::WriteDat,
               QStringLiteral("The second independent variable of table %1 (Id=%2) has no type.")
                   .arg(m_tableName, QString::number(m_tableId)));
        lines.add(false);
    }
    return lines.ok();
}
