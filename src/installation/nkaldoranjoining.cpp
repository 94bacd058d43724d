#include "nkaldoranjoining.h"

#include "kdbuildinfo_p.h"
#include "ncompanyinfo.h"
#include "productversion.h"

#include <QDateTime>

namespace {

constexpr ProductVersion product(coProductType::Joining);

QString thresholdsFileName(const QString& base, const QString& name)
{
    return name.isEmpty() ? base : base + QLatin1Char('_') + name;
}

} // namespace

QString nKaldoranJoining::productName()
{
    return product.productName();
}

QString nKaldoranJoining::productVersion()
{
    return product.productVersion();
}

QString nKaldoranJoining::fullVersion(bool withMinor)
{
    return product.fullVersion(withMinor);
}

QString nKaldoranJoining::fullRevisionVersion()
{
    return product.fullRevisionVersion();
}

QString nKaldoranJoining::fullRevisionOSVersion()
{
    return product.fullRevisionOSVersion();
}

QString nKaldoranJoining::fullRevisionOSVersionDate()
{
    return product.fullRevisionOSVersionDate();
}

QString nKaldoranJoining::productNameAndFullVersion()
{
    return product.productNameAndFullVersion();
}

QString nKaldoranJoining::productNameAndFullRevisionVersion()
{
    return product.productNameAndFullRevisionVersion();
}

QString nKaldoranJoining::productNameAndFullRevisionOSVersion()
{
    return product.productNameAndFullRevisionOSVersion();
}

QString nKaldoranJoining::productNameAndFullRevisionOSVersionTime()
{
    return product.productNameAndFullRevisionOSVersionTime();
}

QString nKaldoranJoining::productNameFullVersionAndSuffix()
{
    return QStringLiteral("%1%2").arg(productNameAndFullVersion(), ProductVersion::suffix());
}

QString nKaldoranJoining::joiningDirName()
{
    return QStringLiteral("joining");
}

QString nKaldoranJoining::exeFileName()
{
    return QStringLiteral("kaldoran.joining.exe");
}

QString nKaldoranJoining::iniFileName()
{
    return QStringLiteral("kaldoran.joining");
}

QString nKaldoranJoining::settingsFolderName()
{
    return QStringLiteral("kaldoran.joining_%1").arg(fullVersion(true));
}

QString nKaldoranJoining::settingsFileNameInvDbSpr()
{
    return QStringLiteral("invDbSpr");
}

QString nKaldoranJoining::settingsFileNameInvDbCli()
{
    return QStringLiteral("invDbCli");
}

QString nKaldoranJoining::settingsFileNameInvDbRsw()
{
    return QStringLiteral("invDbRsw");
}

QString nKaldoranJoining::settingsFileNameResultViewColumnsSpr()
{
    return QStringLiteral("resultViewColumnsSpr");
}

QString nKaldoranJoining::settingsFileNameResultViewColumnsCli()
{
    return QStringLiteral("resultViewColumnsCli");
}

QString nKaldoranJoining::settingsFileNameResultViewColumnsRsw()
{
    return QStringLiteral("resultViewColumnsRsw");
}

QString nKaldoranJoining::settingsFileNameResultThresholdsSpr(const QString& name)
{
    return thresholdsFileName(QStringLiteral("resultThresholdsSpr"), name);
}

QString nKaldoranJoining::settingsFileNameResultThresholdsCli(const QString& name)
{
    return thresholdsFileName(QStringLiteral("resultThresholdsCli"), name);
}

QString nKaldoranJoining::settingsFileNameResultThresholdsRsw(const QString& name)
{
    return thresholdsFileName(QStringLiteral("resultThresholdsRsw"), name);
}

QString nKaldoranJoining::fileComment(const QString& what)
{
    return QStringLiteral("%1 - written by %2 %3 (rev. %4, %5) %6")
        .arg(what, nCompanyInfo::companyName(), productNameAndFullVersion(),
             QLatin1String(nBuildInfo::revisionNumber), QLatin1String(nBuildInfo::revisionDate),
             QDateTime::currentDateTime().toString(Qt::ISODate));
}
