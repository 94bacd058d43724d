#pragma once

#include <kdqcore_export.h>

#include <QString>

/// Fixed texts about the companion tools.
namespace nGlobal {

KDQCORE_EXPORT QString kaldoranRemapName();        ///< "Kaldoran Remap"
KDQCORE_EXPORT QString kaldoranMultimeshName();    ///< "Kaldoran Multimesh"
KDQCORE_EXPORT QString kaldoranUtilitiesName();    ///< "Kaldoran.utilities"
KDQCORE_EXPORT QString kaldoranUtilitiesVersion(); ///< "2018"

} // namespace nGlobal
