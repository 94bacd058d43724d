#pragma once

#include "coproducttype.h"

#include <QString>

/// Where the products lie in an installation.
namespace nInstallationTree {

/// The folder of the product below the installation root: "welding"; empty for the unknown product. What has
/// no folder of its own lies in "tools".
QString productFolder(const coProductType& product);

/// The file name of the application on this system; empty for the unknown product.
QString executableName(const coProductType& product);

} // namespace nInstallationTree
