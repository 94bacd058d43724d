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
    if (parser.isSet(keepGoingOption) && parser.isSet(stopOption))
        return refuse(tr("--keep-going and --stop-on-error exclude each other."));
    isQuiet = parser.isSet(quietOption);
    if (!readColours(parser.value(colorOption))
        || !readSource(parser.positionalArguments(), parser.values(commandsOption), isInteractive))
        return Refuse;
    keepsGoing = parser.isSet(keepGoingOption) || (source == Prompt && !parser.isSet(stopOption));
    return Run;
}

ShellOptions::Outcome ShellOptions::refuse(const QString& reason)
{
    text = reason;
    return Refuse;
}

bool ShellOptions::readColours(const QString& word)
{
    const QStringList words{QStringLiteral("auto"), QStringLiteral("always"), QStringLiteral("never")};
    const int index = words.indexOf(word);
    if (index < 0) {
        text = tr("--color takes auto, always or never, not '%1'.").arg(word);
        return false;
    }
    colours = static_cast<ShellConsole::Colours>(index);
    return true;
}

bool ShellOptions::readSource(const QStringList& scripts, const QStringList& commandTexts, bool isInteractive)
{
    if (scripts.size() + (commandTexts.isEmpty() ? 0 : 1) > 1) {
        text = tr("Only one script or one -c can be run.");
        return false;
    }
    if (!commandTexts.isEmpty()) {
        source = CommandText;
        commands = commandTexts.join(QLatin1Char('\n'));
    } else if (!scripts.isEmpty() && scripts.first() != QLatin1String("-")) {
        source = ScriptFile;
        scriptFile = scripts.first();
    } else {
        source = isInteractive ? Prompt : StandardInput;
    }
    return true;
}
