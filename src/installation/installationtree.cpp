#include "installationtree_p.h"
#include "nkaldoranam.h"
#include "nkaldorandemos.h"
#include "nkaldoranjoining.h"
#include "nkaldoranmaterial.h"
#include "nkaldoranwelding.h"
#include "platform.h"

QString nInstallationTree::productFolder(const coProductType& product)
{
    switch (product.type()) {
    case coProductType::Unknown:
        return QString();
    case coProductType::Additive:
        return nKaldoranAm::amDirName();
    case coProductType::DemosAndExamples:
        return QStringLiteral("demos");
    case coProductType::Forming:
        return QStringLiteral("forming");
    case coProductType::Joining:
        return nKaldoranJoining::joiningDirName();
    case coProductType::Material:
        return QStringLiteral("material");
    case coProductType::Mesh:
        return QStringLiteral("tools/kaldoran.mesh");
    case coProductType::Welding:
        return nKaldoranWelding::weldingDirName();
    case coProductType::Jes:
    case coProductType::Service:
    case coProductType::Monitor:
    case coProductType::Remote:
        break;
    }
    return QStringLiteral("tools");
}

namespace {

QString baseName(const coProductType& product)
{
    switch (product.type()) {
    case coProductType::Unknown:
        break;
    case coProductType::Additive:
        return nKaldoranAm::exeFileName(false);
    case coProductType::DemosAndExamples:
        return nKaldoranDemos::exeFileName(false);
    case coProductType::Forming:
        return QStringLiteral("kaldoran.forming");
    case coProductType::Jes:
        return QStringLiteral("kaldoran.jes");
    case coProductType::Joining:
        return QStringLiteral("kaldoran.joining");
    case coProductType::Material:
        return nKaldoranMaterial::exeFileName(false);
    case coProductType::Mesh:
        return QStringLiteral("kaldoran.mesh");
    case coProductType::Service:
        return QStringLiteral("kaldoran.service");
    case coProductType::Welding:
        return nKaldoranWelding::exeFileName(false);
    case coProductType::Monitor:
        return QStringLiteral("kaldoran.monitor");
    case coProductType::Remote:
        return QStringLiteral("kaldoran.remote");
    }
    return QString();
}

} // namespace

QString nInstallationTree::executableName(const coProductType& product)
{
    return product.isUnknown() ? QString() : baseName(product) + nPlatform::executableExtension();
}
