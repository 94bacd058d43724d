#include "familyapplication.h"

#include <kdQCore/coPaths>
#include <kdQCore/coProductInformation>
#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdDebugLog>
#include <kdQCore/kdQLanguage>
#include <kdQCore/nCompanyInfo>
#include <kdqcore_version.h>

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace {

/// The variable LANGUAGE overrides the system's choice, also on systems that do not know it.
QStringList userLanguages()
{
    const QStringList chosen = qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return chosen.isEmpty() ? QLocale::system().uiLanguages() : chosen;
}

} // namespace

void FamilyApplication::prepare()
{
    if (qEnvironmentVariableIsEmpty("LOCALAPPDATA"))
        qputenv("LOCALAPPDATA",
                QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)));
}

void FamilyApplication::describe(const QString& applicationName)
{
    QCoreApplication::setApplicationName(applicationName);
    QCoreApplication::setApplicationVersion(QStringLiteral(KDQCORE_VERSION_STRING));
    QCoreApplication::setOrganizationName(nCompanyInfo::organizationNameForSettings());
}

FamilyApplication::FamilyApplication(int argc, char** argv)
{
    kdDebugLog::createInstance(argc, argv, false);
    const QString program = argc > 0 ? QFileInfo(QString::fromLocal8Bit(argv[0])).fileName() : QString();
    if (!program.isEmpty())
        kdDebugLog::removeOldLogFiles(QFileInfo(kdDebugLog::logFilePath()).dir(), program);
    coPaths::createInstance();
    coProductInformation::registerProduct(coProductType::service(),
                                          coVersionNumber(QCoreApplication::applicationVersion()));
    kdCommandDispatcher::createInstance();
}

FamilyApplication::~FamilyApplication()
{
    kdCommandDispatcher::removeInstance();
    coProductInformation::unregisterProduct();
    coPaths::removeInstance();
    kdDebugLog::removeInstance();
}

QString FamilyApplication::dataFolder()
{
    return QDir(qEnvironmentVariable("LOCALAPPDATA")).filePath(QStringLiteral("kaldoran"));
}

void FamilyApplication::setUserLanguage()
{
    const QStringList wanted = userLanguages();
    kdQLanguage::KDLANGUAGE language = kdQLanguage::English;
    for (const QString& code : wanted)
        if (kdQLanguage::fromCode(code, language) && kdCommandDispatcher::I().setLanguage(language))
            return;
}
