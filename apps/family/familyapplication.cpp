#include "familyapplication.h"

#include <kdQCore/coPaths>
#include <kdQCore/coProductInformation>
#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdDebugLog>
#include <kdQCore/nCompanyInfo>
#include <kdqcore_version.h>

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

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

QList<kdQLanguage::KDLANGUAGE> FamilyApplication::userLanguages()
{
    QStringList codes = qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (codes.isEmpty()) // Windows does not know the variable
        codes = QLocale::system().uiLanguages();
    QList<kdQLanguage::KDLANGUAGE> languages;
    kdQLanguage::KDLANGUAGE language = kdQLanguage::English;
    for (const QString& code : qAsConst(codes))
        if (kdQLanguage::fromCode(code, language))
            languages.append(language);
    return languages;
}

void FamilyApplication::setUserLanguage()
{
    const auto languages = userLanguages();
    for (const kdQLanguage::KDLANGUAGE language : languages)
        if (kdCommandDispatcher::I().setLanguage(language))
            return;
}
