#pragma once

#include "cotableinput.h"
#include "nheattreatment.h"

/// What a heat treater sees of an input: the constant, or the name of the table that was chosen.
///
/// It is a coTableInput without the table's values, its mode in the numbers of heat treatment:
///
/// \code
/// coPredefTableOrConstant choice(stage.htcToEnv());
/// choice.text();                        // "1500 W/(m²·K)", "Durixol 4", "<user-defined>"
/// choice.setMode(nHeatTreatment::PredefinedTableMode);
/// choice.applyTo(input);                // leaves the input's own table alone
/// \endcode
///
/// A value type.
class KDQCORE_EXPORT coPredefTableOrConstant {
public:
    /// The constant plain number 0.
    coPredefTableOrConstant() = default;
    coPredefTableOrConstant(nHeatTreatment::e_Mode mode, const kdUnitValue& constant,
                            const QString& tableName = QString());
    explicit coPredefTableOrConstant(const coTableInput& input);

    void applyTo(coTableInput& input) const;

    nHeatTreatment::e_Mode mode() const { return m_mode; }
    void setMode(nHeatTreatment::e_Mode mode) { m_mode = mode; }
    kdUnitValue constant() const { return m_constant; }
    void setConstant(const kdUnitValue& constant) { m_constant = constant; }
    QString tableName() const { return m_tableName; }
    void setTableName(const QString& name) { m_tableName = name; }

    /// The constant with its unit, or getPredefinedTableName().
    QString text() const;

    /// True for mode 2 only, which is the user's own table in both numberings.
    static bool isUserDefinedTable(int mode);
    /// \a name, but the translated "<user-defined>" for mode 2: for showing, not for files.
    static QString getPredefinedTableName(int mode, const QString& name);

    /// Convert between the numberings. Any number that is none counts as a table of the project.
    static nHeatTreatment::e_Mode htMode(coTableInput::e_Mode mode);
    static coTableInput::e_Mode tableInputMode(nHeatTreatment::e_Mode mode);

    friend bool operator==(const coPredefTableOrConstant& a, const coPredefTableOrConstant& b)
    {
        return a.m_mode == b.m_mode && a.m_constant == b.m_constant && a.m_tableName == b.m_tableName;
    }
    friend bool operator!=(const coPredefTableOrConstant& a, const coPredefTableOrConstant& b)
    {
        return !(a == b);
    }

private:
    nHeatTreatment::e_Mode m_mode = nHeatTreatment::ConstantMode;
    kdUnitValue m_constant;
    QString m_tableName;
};
