#include "nkaldoranmaterial.h"

#include "copaths.h"
#include "nfilesystem.h"
#include "platform.h"
#include "productversion.h"
#include "uilanguage.h"

#include <kdQCore/kdLog>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace {

constexpr ProductVersion product(coProductType::Material);

/// Of the installation that the running application belongs to.
QString inMaterialFolder(const QString& path)
{
    const QString binFolder =
        QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
    return nFileSystem::toCleanAndNativeFilePath(binFolder + QStringLiteral("/../../material/") + path);
}

} // namespace

QString nKaldoranMaterial::productName()
{
    return product.productName();
}

QString nKaldoranMaterial::productVersion()
{
    return product.productVersion();
}

QString nKaldoranMaterial::productNameAndVersion()
{
    return product.productNameAndVersion();
}

QString nKaldoranMaterial::fullVersion()
{
    return product.fullVersion(true);
}

QString nKaldoranMaterial::fullRevisionVersion()
{
    return product.fullRevisionVersion();
}

QString nKaldoranMaterial::productNameForSettings()
{
    return QStringLiteral("material");
}

QString nKaldoranMaterial::iniFileName()
{
    return QStringLiteral("kaldoran.material");
}

QString nKaldoranMaterial::exeFileName(bool withExtension)
{
    return withExtension ? QStringLiteral("kaldoran.material.exe") : QStringLiteral("kaldoran.material");
}

QString nKaldoranMaterial::fileExtension()
{
    return QStringLiteral(".xmt");
}

QString nKaldoranMaterial::xmtVersion11()
{
    return QStringLiteral("-xmt_11");
}

QString nKaldoranMaterial::xmtVersion12()
{
    return QStringLiteral("-xmt_12");
}

QString nKaldoranMaterial::newMatDefaultName()
{
    return QStringLiteral("New_Material");
}

QString nKaldoranMaterial::validationExceptionFileName()
{
    return QStringLiteral("validation_exceptions.txt");
}

QString nKaldoranMaterial::toolMaterialFlag()
{
    return QStringLiteral("Tool material");
}

QString nKaldoranMaterial::fileExtensionWildcard()
{
    return QLatin1Char('*') + fileExtension();
}

QString nKaldoranMaterial::intermediateFilePath()
{
    return QDir::temp().filePath(QStringLiteral("Kaldoran Material Intermediate Files"));
}

QString nKaldoranMaterial::documentsFolder()
{
    return coPaths::created() ? coPaths::I().getMaterialDocsPath() : inMaterialFolder(QStringLiteral("doc"));
}

QString nKaldoranMaterial::tutorialFilePath()
{
    return nFileSystem::toCleanAndNativeFilePath(
        QStringLiteral("%1/Kaldoran_Material_Tutorial_%2.pdf").arg(documentsFolder(), uiLanguageCode()));
}

QString nKaldoranMaterial::executableFilePath()
{
    if (coPaths::created())
        return coPaths::I().getMaterialApplicationFilePath();
    const bool withExtension = nPlatform::executableExtension().size() > 0;
    return inMaterialFolder(QStringLiteral("bin/") + exeFileName(withExtension));
}

bool nKaldoranMaterial::execute(const QStringList& arguments)
{
    const QString path = executableFilePath();
    const bool isStarted = QProcess::startDetached(path, arguments);
    if (isStarted)
        KD_LOG(kdLog::Trace, kdLog::General, QStringLiteral("Open %0, path: %1").arg(productName(), path));
    else
        KD_LOG(kdLog::Fault, kdLog::General,
               QStringLiteral("Open %0, path %1:, failed").arg(productName(), path));
    return isStarted;
}

QString nKaldoranMaterial::callerVersionStartParamFlag()
{
    return QStringLiteral("-callerVersion");
}

QString nKaldoranMaterial::validateMaterialsStartParam()
{
    return QStringLiteral("-validateMaterials");
}

QString nKaldoranMaterial::validationReportTargetPathStartParam()
{
    return QStringLiteral("-reportPath");
}

QString nKaldoranMaterial::addToDatabaseFlag()
{
    return QStringLiteral("-addToDatabase");
}

QString nKaldoranMaterial::showDatabaseFlag()
{
    return QStringLiteral("-showDatabase");
}

QString nKaldoranMaterial::openFileFlag()
{
    return QStringLiteral("-open");
}

QString nKaldoranMaterial::readOnlyFlag()
{
    return QStringLiteral("-readOnly");
}

QString nKaldoranMaterial::nFilterArgs::commandArg()
{
    return QStringLiteral("-filters");
}

QString nKaldoranMaterial::nFilterArgs::wildcard()
{
    return QStringLiteral("*");
}

QString nKaldoranMaterial::nFilterArgs::groupFlag()
{
    return QStringLiteral("Group");
}

QString nKaldoranMaterial::nFilterArgs::areaFlag()
{
    return QStringLiteral("Area");
}

QString nKaldoranMaterial::nFilterArgs::pairSeparator()
{
    return QStringLiteral(":");
}

QString nKaldoranMaterial::nFilterArgs::listSeparator()
{
    return QStringLiteral(";");
}

QString nKaldoranMaterial::nFilterArgs::mkFilterArg(const QString& key, const QString& value)
{
    return key + pairSeparator() + value;
}

QString nKaldoranMaterial::nAreaOfApplication::welding()
{
    return QStringLiteral("Welding");
}

QString nKaldoranMaterial::nAreaOfApplication::powder()
{
    return QStringLiteral("Powder");
}

QString nKaldoranMaterial::nAreaOfApplication::basePlate()
{
    return QStringLiteral("Base plate");
}

QString nKaldoranMaterial::Legacy::toolSteelGroup()
{
    return QStringLiteral("ToolSteel");
}

QString nKaldoranMaterial::Docs::relDamageTutorialPath()
{
    return QStringLiteral("Chapters/02_10_Damage/Damage");
}
