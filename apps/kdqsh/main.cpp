#include "linesource.h"
#include "platform.h"
#include "shell.h"
#include "shellcompletion.h"
#include "shellgroups.h"
#include "shelloptions.h"
#include "shellsession.h"

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

enum ExitStatus { AllWell = 0, CommandFailed = 1, WrongCommandLine = 2 };

/// The debug log lies below this folder; only Windows sets it of itself.
QString localDataFolder()
{
    if (qEnvironmentVariableIsEmpty("LOCALAPPDATA"))
        qputenv("LOCALAPPDATA",
                QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)));
    return qEnvironmentVariable("LOCALAPPDATA");
}

/// The variable LANGUAGE overrides the system's choice, also on systems that do not know it.
QStringList userLanguages()
{
    const QStringList chosen = qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return chosen.isEmpty() ? QLocale::system().uiLanguages() : chosen;
}

void setUserLanguage()
{
    const QStringList wanted = userLanguages();
    kdQLanguage::KDLANGUAGE language = kdQLanguage::English;
    for (const QString& code : wanted)
        if (kdQLanguage::fromCode(code, language) && kdCommandDispatcher::I().setLanguage(language))
            return;
}

/// The process-wide objects of an application of the family, in the order in which they depend on each other.
class Application {
public:
    Application(int argc, char** argv)
    {
        kdDebugLog::createInstance(argc, argv, false);
        const QString program = argc > 0 ? QFileInfo(QString::fromLocal8Bit(argv[0])).fileName() : QString();
        if (!program.isEmpty())
            kdDebugLog::removeOldLogFiles(QFileInfo(kdDebugLog::logFilePath()).dir(), program);
        coPaths::createInstance();
        coProductInformation::registerProduct(coProductType::service(),
                                              coVersionNumber(QCoreApplication::applicationVersion()));
        kdCommandDispatcher::createInstance();
        nShellGroups::registerCommands();
        setUserLanguage();
    }

    ~Application()
    {
        kdCommandDispatcher::removeInstance();
        coProductInformation::unregisterProduct();
        coPaths::removeInstance();
        kdDebugLog::removeInstance();
    }

    Q_DISABLE_COPY(Application)
};

std::unique_ptr<LineSource> openSource(const ShellOptions& options, const QString& dataFolder, QString& error)
{
    if (options.source == ShellOptions::Prompt)
        return std::make_unique<PromptLines>(
            QDir(dataFolder).filePath(QStringLiteral("kaldoran/kdqsh_history")),
            nShellCompletion::candidates);
    if (options.source == ShellOptions::CommandText)
        return std::make_unique<TextLines>(options.commands);
    auto file = std::make_unique<QFile>(options.scriptFile);
    const bool isScript = options.source == ShellOptions::ScriptFile;
    if (isScript ? !file->open(QIODevice::ReadOnly) : !file->open(stdin, QIODevice::ReadOnly)) {
        error = Shell::tr("'%1' cannot be read: %2").arg(options.scriptFile, file->errorString());
        return nullptr;
    }
    return std::make_unique<FileLines>(std::move(file),
                                       isScript ? options.scriptFile : QStringLiteral("stdin"));
}

int runShell(const ShellOptions& options, const QString& dataFolder)
{
    ShellConsole console;
    console.setQuiet(options.isQuiet);
    kdCommandDispatcher::I().startReportingTo(console.reporter());
    ShellSession session;
    session.setSettingsFile(QDir(dataFolder).filePath(QStringLiteral("kaldoran/kdqsh.ini")));
    QString error;
    const std::unique_ptr<LineSource> source = openSource(options, dataFolder, error);
    if (source == nullptr) {
        console.error(error);
        return WrongCommandLine;
    }
    if (options.source == ShellOptions::ScriptFile)
        session.setScriptFolder(QFileInfo(options.scriptFile).path());
    if (options.source == ShellOptions::Prompt)
        console.message(Shell::tr("kdqsh %1. 'help' shows the commands, 'quit' ends the session.")
                            .arg(QCoreApplication::applicationVersion()),
                        ShellConsole::Account);
    bool ok = Shell(console, options.keepsGoing).run(*source);
    if (session.deck.isOpen() && !session.deck.close()) {
        console.error(session.deck.errorText());
        ok = false;
    }
    return ok ? AllWell : CommandFailed;
}

} // namespace

int main(int argc, char** argv)
{
    const QString dataFolder = localDataFolder();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kdqsh"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KDQCORE_VERSION_STRING));
    QCoreApplication::setOrganizationName(nCompanyInfo::organizationNameForSettings());

    const Application family(argc, argv);
    ShellOptions options;
    switch (options.parse(coPaths::withoutPathOptions(QCoreApplication::arguments()),
                          nPlatform::isTerminal(nPlatform::StandardStream::Input))) {
    case ShellOptions::ShowText:
        ShellConsole().message(options.text);
        return AllWell;
    case ShellOptions::Refuse:
        ShellConsole().error(QStringLiteral("kdqsh: %1").arg(options.text));
        return WrongCommandLine;
    case ShellOptions::Run:
        break;
    }
    return runShell(options, dataFolder);
}
