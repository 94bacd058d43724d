#include "nkaldoranjes.h"

#include "productversion.h"

#include <QCoreApplication>
#include <QDir>

namespace {

constexpr ProductVersion product(coProductType::Jes);

} // namespace

QString nKaldoranJes::productName()
{
    return product.productName();
}

QString nKaldoranJes::productVersion()
{
    return product.productVersion();
}

QString nKaldoranJes::fullVersion(bool withMinor)
{
    return product.fullVersion(withMinor);
}

QString nKaldoranJes::fullRevisionVersion()
{
    return product.fullRevisionVersion();
}

QString nKaldoranJes::fullRevisionOSVersion()
{
    return product.fullRevisionOSVersion();
}

QString nKaldoranJes::fullRevisionOSVersionDate()
{
    return product.fullRevisionOSVersionDate();
}

QString nKaldoranJes::productNameAndFullVersion()
{
    return product.productNameAndFullVersion();
}

QString nKaldoranJes::productNameAndFullRevisionVersion()
{
    return product.productNameAndFullRevisionVersion();
}

QString nKaldoranJes::productNameAndFullRevisionOSVersion()
{
    return product.productNameAndFullRevisionOSVersion();
}

QString nKaldoranJes::productNameAndFullRevisionOSVersionTime()
{
    return product.productNameAndFullRevisionOSVersionTime();
}

QString nKaldoranJes::fullVersionAndSuffix()
{
    return product.fullVersionAndSuffix();
}

QString nKaldoranJes::shortProductName()
{
    return QStringLiteral("jes");
}

QString nKaldoranJes::iniFileName()
{
    return QStringLiteral("kaldoran.jes");
}

QString nKaldoranJes::iniFileSuffix()
{
    return QStringLiteral(".ini");
}

QString nKaldoranJes::opFolderName()
{
    return QStringLiteral("_stages");
}

QString nKaldoranJes::projectSettingsFolderName()
{
    return QStringLiteral("_projectSettings");
}

QString nKaldoranJes::backgroundImageFileName()
{
    return QStringLiteral("backgroundImage");
}

QString nKaldoranJes::defaultProjectName()
{
    return QStringLiteral("Project");
}

QString nKaldoranJes::imagesFolderName()
{
    return QStringLiteral("_images");
}

QString nKaldoranJes::projectFileExtension()
{
    return QStringLiteral(".jes");
}

QString nKaldoranJes::projectFileSelectionFilter()
{
    return QCoreApplication::translate("nKaldoranJes", "jes files (*%1)").arg(projectFileExtension());
}

QString nKaldoranJes::createProjectFilePath(const QString& folder, const QString& name)
{
    return createProjectFolderPath(folder, name) + QDir::separator() + name + projectFileExtension();
}

QString nKaldoranJes::createProjectFolderPath(const QString& folder, const QString& name)
{
    return QStringLiteral("%1%2%3").arg(folder, QString(QDir::separator()), name);
}
