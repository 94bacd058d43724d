#pragma once

#include "nkaldoranproducts.h"

#include <kdqcore_export.h>

#include <QString>

/// Names and versions of the products that run other processes of the family: forming, welding, joining and
/// material. For every other product they are "Undefined".
namespace nProcessInfo {

KDQCORE_EXPORT QString productName(nKaldoranProducts::e_Product product);
KDQCORE_EXPORT QString productVersion(nKaldoranProducts::e_Product product);

} // namespace nProcessInfo
