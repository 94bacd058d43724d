#pragma once

#include <kdqcore_export.h>

#include <QFlags>
#include <QList>

/// Codes of the solver that cards write as they are.
///
/// Most of these enumerations name only what this library itself relies on. The other codes are the solver's
/// and are passed through: take them from its manual and cast them,
/// static_cast<nMarc::e_TableVariableType>(code). Any int is a legal value.
namespace nMarc {

/// What a table depends on, as the solver numbers it.
enum e_TableVariableType : int { NoTableVariable = 0 };

/// How the data lines of a table are laid out.
enum e_TableReadMethod : int {
    ReadGrid = 0,             ///< values of variable 1, of variable 2, then the dependent values row by row
    ReadGridValueByValue = 1, ///< the same with one dependent value per line
    ReadPoints = 2,           ///< one line per point: x, y
    ReadFormula = 3
};

/// Licence features, a bit each.
enum e_LicFlag : int { NoLicFlag = 0 };
Q_DECLARE_FLAGS(LicFlags, e_LicFlag)

enum e_AutoForgeContactToleranceFlag : int { DefaultContactTolerance = 0 };

/// The solver's packed form of a set of digits: each value from 0 to 9 is a decimal digit, other values are
/// skipped, the digits are sorted ascending: [3, 1, 2] gives 123. 0 for no digits, and for a number beyond
/// int.
KDQCORE_EXPORT int packedNumber(const QList<int>& digits);

} // namespace nMarc

Q_DECLARE_OPERATORS_FOR_FLAGS(nMarc::LicFlags)
