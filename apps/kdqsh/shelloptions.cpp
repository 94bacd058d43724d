#include "shelloptions.h"

#include "shellmanual.h"

#include <QCommandLineParser>

ShellOptions::Outcome ShellOptions::parse(const QStringList& arguments, bool isInteractive)
{
    QCommandLineParser parser;
    ProgramHelp help;
    help.name = QStringLiteral("kdqsh");
    help.purpose = QStringLiteral("tables of material data and solver input decks by text commands");
    help.description = tr(
        "Tables of material data and solver input decks by text commands. Commands come from a script, from\n"
        "-c, from standard input, or from a prompt. The exit status is 0 only if all went well, 1 if a "
        "command\n"
        "failed, 2 if this command line was wrong, 130 after Ctrl-C. \"-basePath FOLDER\" names the\n"
        "installation, with \"-undoSetup\" for this run only.");
    const QCommandLineOption commandsOption(QStringLiteral("c"),
                                            tr("Runs these commands, separated by \";\"."), tr("commands"));
    const QCommandLineOption keepGoingOption({QStringLiteral("k"), QStringLiteral("keep-going")},
                                             tr("Goes on after a command that failed."));
    const QCommandLineOption stopOption(
        QStringLiteral("stop-on-error"),
        tr("Stops at the first command that failed (default, except at the prompt)."));
    const QCommandLineOption quietOption(
        {QStringLiteral("q"), QStringLiteral("quiet")},
        tr("Shows errors and the results that were asked for, nothing else."));
    const QCommandLineOption colorOption(
        QStringLiteral("color"),
        tr("Colours: auto (on terminals, unless NO_COLOR is set or TERM is dumb), always, never."),
        tr("when"), QStringLiteral("auto"));
    const QCommandLineOption manualOption = ProgramHelp::manualOption();
    const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                        tr("Shows this help."));
    const QCommandLineOption versionOption({QStringLiteral("v"), QStringLiteral("version")},
                                           tr("Shows the version, and what it was built with."));
    help.options = {commandsOption, keepGoingOption, stopOption,    quietOption,
                    colorOption,    helpOption,      versionOption, manualOption};
    help.arguments = {{QStringLiteral("script"), tr("File with commands (UTF-8); \"-\" is standard input."),
                       QStringLiteral("[script]")}};
    help.describeTo(parser);
    parser.addOptions(help.options);

    const auto refuse = [this](const QString& reason) {
        text = reason;
        return Refuse;
    };
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(helpOption)) {
        text = parser.helpText();
        return ShowText;
    }
    if (parser.isSet(versionOption)) {
        text = QStringLiteral("kdqsh %1\nQt %2, glog %3, %4")
                   .arg(QCoreApplication::applicationVersion(), QLatin1String(qVersion()),
                        QStringLiteral(KDQSH_GLOG_VERSION), QStringLiteral(KDQSH_COMPILER));
        return ShowText;
    }
    if (parser.isSet(manualOption)) {
        text = nShellManual::page(help);
        return ShowText;
    }
    const QStringList scripts = parser.positionalArguments();
    const bool hasCommands = parser.isSet(commandsOption);
    if (parser.isSet(keepGoingOption) && parser.isSet(stopOption))
        return refuse(tr("--keep-going and --stop-on-error exclude each other."));
    if (scripts.size() + (hasCommands ? 1 : 0) > 1)
        return refuse(tr("Only one script or one -c can be run."));

    const QStringList colourWords{QStringLiteral("auto"), QStringLiteral("always"), QStringLiteral("never")};
    const int colourWord = colourWords.indexOf(parser.value(colorOption));
    if (colourWord < 0)
        return refuse(tr("--color takes auto, always or never, not '%1'.").arg(parser.value(colorOption)));

    colours = static_cast<ShellConsole::Colours>(colourWord);
    isQuiet = parser.isSet(quietOption);
    if (hasCommands) {
        source = CommandText;
        commands = parser.values(commandsOption).join(QLatin1Char('\n'));
    } else if (!scripts.isEmpty() && scripts.first() != QLatin1String("-")) {
        source = ScriptFile;
        scriptFile = scripts.first();
    } else {
        source = isInteractive ? Prompt : StandardInput;
    }
    keepsGoing = parser.isSet(keepGoingOption) || (source == Prompt && !parser.isSet(stopOption));
    return Run;
}
