#include "nkaldoranwelding.h"

#include "productversion.h"

namespace {

constexpr ProductVersion product(coProductType::Welding);

} // namespace

QString nKaldoranWelding::productName()
{
    return product.productName();
}

QString nKaldoranWelding::productVersion()
{
    return product.productVersion();
}

QString nKaldoranWelding::fullVersion(bool withMinor)
{
    return product.fullVersion(withMinor);
}

QString nKaldoranWelding::fullRevisionVersion()
{
    return product.fullRevisionVersion();
}

QString nKaldoranWelding::fullRevisionOSVersion()
{
    return product.fullRevisionOSVersion();
}

QString nKaldoranWelding::fullRevisionOSVersionDate()
{
    return product.fullRevisionOSVersionDate();
}

QString nKaldoranWelding::productNameAndFullVersion()
{
    return product.productNameAndFullVersion();
}

QString nKaldoranWelding::productNameAndFullRevisionVersion()
{
    return product.productNameAndFullRevisionVersion();
}

QString nKaldoranWelding::productNameAndFullRevisionOSVersion()
{
    return product.productNameAndFullRevisionOSVersion();
}

QString nKaldoranWelding::productNameAndFullRevisionOSVersionTime()
{
    return product.productNameAndFullRevisionOSVersionTime();
}

QString nKaldoranWelding::fullVersionAndSuffix()
{
    return product.fullVersionAndSuffix();
}

QString nKaldoranWelding::weldingDirName()
{
    return QStringLiteral("welding");
}

QString nKaldoranWelding::iniFileName()
{
    return QStringLiteral("kaldoran.welding");
}

QString nKaldoranWelding::versionDependentIniFileName(bool withMinor)
{
    return iniFileName() + QLatin1Char('_') + fullVersion(withMinor);
}

QString nKaldoranWelding::exeFileName(bool withExtension)
{
    return withExtension ? QStringLiteral("kaldoran.welding.exe") : QStringLiteral("kaldoran.welding");
}

QString nKaldoranWelding::databaseDirectoryName()
{
    return QStringLiteral("Database");
}
