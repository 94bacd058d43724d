#include "kddebuglog.h"

#include "kdbuildinfo_p.h"
#include "kdlog.h"
#include "kdlogbackend_p.h"
#include "platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <ostream>

bool kdDebugLog::m_alsoLogToStdError = false;
bool kdDebugLog::m_enableLoggingFlag = false;

namespace {

QString& destinationOfThisRun()
{
    static QString destination;
    return destination;
}

QString currentDirectory()
{
    QString path = QDir::currentPath();
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return QDir::toNativeSeparators(path);
}

void logFact(const char* label, const QString& value)
{
    constexpr int labelWidth = 19;
    const QString opening = QLatin1String(label) + QLatin1String(": ");
    KD_LOG(kdLog::Notice, kdLog::General, opening.rightJustified(labelWidth) + value);
}

void logRule()
{
    KD_LOG(kdLog::Notice, kdLog::General, QString(79, QLatin1Char('-')));
}

void logMachine(const nPlatform::SystemInformation& system)
{
    logFact("OS", system.operatingSystem);
    logFact("CPU", system.processor);
    logFact("Architecture", system.architecture);
    logFact("Cores", QString::number(system.cores));
    logFact("Physical memory", QString::number(system.physicalMemory / 1024) + QLatin1String(" kB"));
}

QStringList argumentsOf(int argc, char* const* argv)
{
    if (QCoreApplication::instance())
        return QCoreApplication::arguments().mid(1);
    QStringList result;
    for (int i = 1; argv && i < argc && argv[i]; ++i)
        result.append(QString::fromLocal8Bit(argv[i]));
    return result;
}

void logProgram(int argc, char* const* argv)
{
    const QString executable =
        QCoreApplication::instance() ? QCoreApplication::applicationFilePath() : QString();
    if (!executable.isEmpty())
        logFact("Executable", executable);
    else if (argc > 0 && argv && argv[0])
        logFact("argv[0]", QString::fromLocal8Bit(argv[0]));
    logFact("Arguments", argumentsOf(argc, argv).join(QLatin1Char(' ')));
    logFact("Working directory", QDir::currentPath());
}

void logBuild()
{
    const auto both = [](const char* first, const char* second) {
        return QLatin1String(first) + QLatin1Char(' ') + QLatin1String(second);
    };
    logFact("Revision", both(nBuildInfo::revisionNumber, nBuildInfo::revisionDate));
    logFact("Build date", both(nBuildInfo::buildDate, nBuildInfo::buildTime));
    logFact("Qt version", QLatin1String(nBuildInfo::qtVersion));
    logFact("Configuration", QLatin1String(nBuildInfo::configuration));
}

} // namespace

void kdDebugLog::createInstance(int argc, char* const* argv, bool logInCurrentDirectory)
{
    if (m_enableLoggingFlag) {
        KD_LOG(kdLog::Fault, kdLog::General, QStringLiteral("kdDebugLog creation failed!"));
        return;
    }
    nPlatform::presetTimeZone();
    const QString program = argv && argv[0] ? QString::fromLocal8Bit(argv[0]) : QString();
    const QString baseName = QFileInfo(program).fileName();
    const QString destination =
        logInCurrentDirectory ? currentDirectory() + baseName : defaultLogPath(baseName);
    nLogBackEnd::Settings settings;
    settings.programName = program.toLocal8Bit().toStdString();
    settings.destination = QDir::toNativeSeparators(destination).toLocal8Bit().toStdString();
    settings.echo = m_alsoLogToStdError;
    if (!nLogBackEnd::start(settings)) {
        KD_LOG(kdLog::Fault, kdLog::General, QStringLiteral("kdDebugLog creation failed!"));
        return;
    }
    destinationOfThisRun() = destination;
    logSystemInfo(argc, argv);
    m_enableLoggingFlag = true;
}

void kdDebugLog::removeInstance()
{
    if (!m_enableLoggingFlag) {
        KD_LOG(kdLog::Fault, kdLog::General, QStringLiteral("kdDebugLog remove failed!"));
        return;
    }
    m_enableLoggingFlag = false;
    destinationOfThisRun().clear();
    nLogBackEnd::stop();
}

bool kdDebugLog::created()
{
    return m_enableLoggingFlag;
}

void kdDebugLog::flush()
{
    if (m_enableLoggingFlag)
        nLogBackEnd::flush();
}

void kdDebugLog::setAlsoLogToStdErrorEnabled(bool enabled)
{
    m_alsoLogToStdError = enabled;
}

QString kdDebugLog::logFilePath()
{
    if (destinationOfThisRun().isEmpty())
        return QString();
    const QFileInfo destination(destinationOfThisRun());
    const QString ending = QStringLiteral(".%1.log").arg(QCoreApplication::applicationPid());
    const QFileInfoList files = destination.dir().entryInfoList(QDir::Files, QDir::Time);
    for (const QFileInfo& file : files)
        if (file.fileName().startsWith(destination.fileName()) && file.fileName().endsWith(ending))
            return file.absoluteFilePath();
    return QString();
}

QString kdDebugLog::defaultLogPath(QString baseName)
{
    if (baseName.isEmpty())
        baseName = QStringLiteral("kaldoran");
    const QDir directory(qEnvironmentVariable("LOCALAPPDATA") + QLatin1String("/kaldoran/log/"));
    if (!directory.exists())
        directory.mkpath(QStringLiteral("."));
    return directory.absoluteFilePath(baseName + QLatin1Char('-'));
}

void kdDebugLog::removeOldLogFiles(const QDir& directory, const QString& baseName)
{
    constexpr int kept = 9;
    QStringList logs;
    const QFileInfoList files = directory.entryInfoList(QDir::Files, QDir::Time);
    for (const QFileInfo& file : files)
        if (file.fileName().startsWith(baseName) && file.fileName().endsWith(QLatin1String(".log")))
            logs.append(file.absoluteFilePath());
    for (int i = kept; i < logs.size(); ++i)
        QFile::remove(logs.at(i));
}

void kdDebugLog::logSystemInfo(int argc, char* const* argv)
{
    const nPlatform::SystemInformation& system = nPlatform::systemInformation();
    logRule();
    logMachine(system);
    logRule();
    logFact("Username", qEnvironmentVariable("USERNAME"));
    logFact("Hostname", system.hostName);
    logFact("HostID", system.hostId);
    logRule();
    logProgram(argc, argv);
    logBuild();
    logRule();
}

std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    return stream.write(bytes.constData(), bytes.size());
}
