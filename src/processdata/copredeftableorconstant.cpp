#include "copredeftableorconstant.h"

coPredefTableOrConstant::coPredefTableOrConstant(nHeatTreatment::e_Mode mode, const kdUnitValue& constant,
                                                 const QString& tableName)
    : m_mode(mode), m_constant(constant), m_tableName(tableName)
{
}

coPredefTableOrConstant::coPredefTableOrConstant(const coTableInput& input)
    : coPredefTableOrConstant(htMode(input.mode()), input.constant(), input.tableName())
{
}

void coPredefTableOrConstant::applyTo(coTableInput& input) const
{
    input.setMode(tableInputMode(m_mode));
    input.setConstant(m_constant);
    input.setTableName(m_tableName);
}

QString coPredefTableOrConstant::text() const
{
    return m_mode == nHeatTreatment::ConstantMode ? m_constant.toLocalizedString()
                                                  : getPredefinedTableName(m_mode, m_tableName);
}

bool coPredefTableOrConstant::isUserDefinedTable(int mode)
{
    return mode == nHeatTreatment::UserDefinedTableMode;
}

QString coPredefTableOrConstant::getPredefinedTableName(int mode, const QString& name)
{
    return isUserDefinedTable(mode) ? nHeatTreatment::getUserDefinedTableName(true) : name;
}

nHeatTreatment::e_Mode coPredefTableOrConstant::htMode(coTableInput::e_Mode mode)
{
    switch (mode) {
    case coTableInput::Constant:
        return nHeatTreatment::ConstantMode;
    case coTableInput::UserDefinedTable:
        return nHeatTreatment::UserDefinedTableMode;
    case coTableInput::PredefinedTable:
        return nHeatTreatment::PredefinedTableMode;
    case coTableInput::ProjectTable:
        break;
    }
    return nHeatTreatment::ProjectTableMode;
}

coTableInput::e_Mode coPredefTableOrConstant::tableInputMode(nHeatTreatment::e_Mode mode)
{
    switch (mode) {
    case nHeatTreatment::ConstantMode:
        return coTableInput::Constant;
    case nHeatTreatment::PredefinedTableMode:
        return coTableInput::PredefinedTable;
    case nHeatTreatment::UserDefinedTableMode:
        return coTableInput::UserDefinedTable;
    case nHeatTreatment::ProjectTableMode:
        break;
    }
    return coTableInput::ProjectTable;
}
