#include "cofetablecardusingformula.h"

#include "cardlines.h"

#include <kdQCore/kdLog>

coFeTableCardUsingFormula::coFeTableCardUsingFormula(const QString& tableName, int tableId,
                                                     const IndependentVarBase& variable1)
    : coFeTableCardBase(tableName, tableId, variable1)
{
}

coFeTableCardUsingFormula::~coFeTableCardUsingFormula() = default;

bool coFeTableCardUsingFormula::write(CFEDatLineWriter& writer) const
{
    if (m_formula.isEmpty()) {
        KD_LOG(
            kdLog::Fault, kdLog::WriteDat,
            QStringLiteral("Table %1 (Id=%2) has no formula.").arg(tableName(), QString::number(tableId())));
        return false;
    }
    const IndependentVarBase* variable2 = independentVariable2();
    const Block3 block3(Block3::Data(independentVariable1().variableType()),
                        variable2 ? Block3::Data(variable2->variableType()) : Block3::Data());
    CardLines lines(writer);
    lines.add(writeBlocks(writer, block3));
    return lines.text(m_formula).end().ok();
}

nMarc::e_TableReadMethod coFeTableCardUsingFormula::getReadMethod() const
{
    return nMarc::ReadFormula;
}
