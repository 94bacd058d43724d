#include "nkaldoranam.h"

#include "productversion.h"

namespace {

constexpr ProductVersion product(coProductType::Additive);

} // namespace

QString nKaldoranAm::productName()
{
    return product.productName();
}

QString nKaldoranAm::productVersion()
{
    return product.productVersion();
}

QString nKaldoranAm::fullVersion(bool withMinor)
{
    return product.fullVersion(withMinor);
}

QString nKaldoranAm::fullRevisionVersion()
{
    return product.fullRevisionVersion();
}

QString nKaldoranAm::fullRevisionOSVersion()
{
    return product.fullRevisionOSVersion();
}

QString nKaldoranAm::fullRevisionOSVersionDate()
{
    return product.fullRevisionOSVersionDate();
}

QString nKaldoranAm::productNameAndFullVersion()
{
    return product.productNameAndFullVersion();
}

QString nKaldoranAm::productNameAndFullRevisionVersion()
{
    return product.productNameAndFullRevisionVersion();
}

QString nKaldoranAm::productNameAndFullRevisionOSVersion()
{
    return product.productNameAndFullRevisionOSVersion();
}

QString nKaldoranAm::productNameAndFullRevisionOSVersionTime()
{
    return product.productNameAndFullRevisionOSVersionTime();
}

QString nKaldoranAm::fullVersionAndSuffix()
{
    return product.fullVersionAndSuffix();
}

QString nKaldoranAm::amDirName()
{
    return QStringLiteral("additive");
}

QString nKaldoranAm::iniFileName()
{
    return QStringLiteral("kaldoran.additive");
}

QString nKaldoranAm::versionDependentIniFileName(bool withMinor)
{
    return iniFileName() + QLatin1Char('_') + fullVersion(withMinor);
}

QString nKaldoranAm::exeFileName(bool withExtension)
{
    return withExtension ? QStringLiteral("Kaldoran Additive.exe") : QStringLiteral("Kaldoran Additive");
}

QString nKaldoranAm::databaseDirectoryName()
{
    return QStringLiteral("MasterLibrary");
}
