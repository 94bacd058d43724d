#include "nkaldorandemos.h"

#include "kdbuildinfo_p.h"
#include "productversion.h"

namespace {

constexpr ProductVersion product(coProductType::DemosAndExamples);

} // namespace

QString nKaldoranDemos::productName()
{
    return product.productName();
}

QString nKaldoranDemos::productNameForFilePath()
{
    return QStringLiteral("kaldoran.demos");
}

QString nKaldoranDemos::productVersion()
{
    return product.productVersion();
}

QString nKaldoranDemos::fullRevisionVersion()
{
    return QStringLiteral("%1.%2").arg(productVersion(), QLatin1String(nBuildInfo::revisionNumber));
}

QString nKaldoranDemos::productNameAndVersion()
{
    return product.productNameAndVersion();
}

QString nKaldoranDemos::iniFileName()
{
    return QStringLiteral("kaldoran.demos");
}

QString nKaldoranDemos::exeFileName(bool withExtension)
{
    return withExtension ? QStringLiteral("kaldoran.demos.exe") : QStringLiteral("kaldoran.demos");
}

QString nKaldoranDemos::startMenuName()
{
    return QStringLiteral("Demos & Examples");
}

QString nKaldoranDemos::demosFileExtension(bool withDot)
{
    return withDot ? QStringLiteral(".kddemos") : QStringLiteral("kddemos");
}

QStringList nKaldoranDemos::standardNameFilter()
{
    return {QStringLiteral("*.xml"), QLatin1Char('*') + demosFileExtension(true)};
}
