#include "familyapplication.h"
#include "linesource.h"
#include "platform.h"
#include "shell.h"
#include "shellcompletion.h"
#include "shellgroups.h"
#include "shellinterrupt.h"
#include "shelloptions.h"
#include "shellsession.h"

#include <kdQCore/coPaths>
#include <kdQCore/kdCommandDispatcher>

#include <QDir>
#include <QFileInfo>

namespace {

enum ExitStatus { AllWell = 0, CommandFailed = 1, WrongCommandLine = 2 };

std::unique_ptr<LineSource> openSource(const ShellOptions& options, const ShellConsole& console,
                                       QString& error)
{
    if (options.source == ShellOptions::Prompt)
        return std::make_unique<PromptLines>(
            QDir(FamilyApplication::dataFolder()).filePath(QStringLiteral("kdqsh_history")),
            nShellCompletion::complete, console.paintsOutput());
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

int runShell(const ShellOptions& options)
{
    ShellConsole console;
    console.setQuiet(options.isQuiet);
    console.setColours(options.colours);
    kdCommandDispatcher::I().startReportingTo(console.reporter());
    ShellSession session;
    session.setSettingsFile(QDir(FamilyApplication::dataFolder()).filePath(QStringLiteral("kdqsh.ini")));
    QString error;
    const std::unique_ptr<LineSource> source = openSource(options, console, error);
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
    if (nInterrupt::isRequested() && options.source != ShellOptions::Prompt)
        return nInterrupt::exitStatus;
    return ok ? AllWell : CommandFailed;
}

} // namespace

int main(int argc, char** argv)
{
    FamilyApplication::prepare();
    QCoreApplication application(argc, argv);
    FamilyApplication::describe(QStringLiteral("kdqsh"));

    nInterrupt::watch();
    const FamilyApplication family(argc, argv);
    nShellGroups::registerCommands();
    FamilyApplication::setUserLanguage();
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
    return runShell(options);
}
