#include "nprocessinfo.h"

#include "productversion.h"

#include <QCoreApplication>

namespace {

ProductVersion versionOf(nKaldoranProducts::e_Product product)
{
    switch (product) {
    case nKaldoranProducts::Forming:
        return ProductVersion(coProductType::Forming);
    case nKaldoranProducts::Welding:
        return ProductVersion(coProductType::Welding);
    case nKaldoranProducts::Joining:
        return ProductVersion(coProductType::Joining);
    case nKaldoranProducts::Material:
        return ProductVersion(coProductType::Material);
    default:
        return ProductVersion(coProductType::Unknown);
    }
}

QString undefined()
{
    return QCoreApplication::translate("nProcessInfo", "Undefined");
}

} // namespace

QString nProcessInfo::productName(nKaldoranProducts::e_Product product)
{
    const ProductVersion version = versionOf(product);
    return version.isKnown() ? version.productName() : undefined();
}

QString nProcessInfo::productVersion(nKaldoranProducts::e_Product product)
{
    const ProductVersion version = versionOf(product);
    return version.isKnown() ? version.productVersion() : undefined();
}
