// A window of the family, from start to end. Read on in mainwindow.h; docs/kdqview.md walks through the code.
#include "familyapplication.h"
#include "language.h"
#include "mainwindow.h"
#include "viewcommand.h"
#include "workspace.h"

#include <kdQCore/coPaths>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <algorithm>
#include <memory>

namespace {

/// The files of the command line. Ends the process where the user asks for help or the version.
QStringList filesToOpen()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Shows and edits tables, heat treatments and decks."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QCoreApplication::translate("main", "Files to open."),
                                 QStringLiteral("[files...]"));
    parser.process(coPaths::withoutPathOptions(QCoreApplication::arguments()));
    return parser.positionalArguments();
}

/// Help and version are asked for without a screen, too.
bool asksForText(int argc, char** argv)
{
    const auto isTextOption = [](const char* argument) {
        return qstrcmp(argument, "--help") == 0 || qstrcmp(argument, "-h") == 0
            || qstrcmp(argument, "--version") == 0 || qstrcmp(argument, "-v") == 0;
    };
    return std::any_of(argv, argv + argc, isTextOption);
}

std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv)
{
    if (asksForText(argc, argv))
        return std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/kdqview.svg")));
    return application;
}

} // namespace

int main(int argc, char** argv)
{
    FamilyApplication::prepare();
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    FamilyApplication::describe(QStringLiteral("kdqview"));

    // Debug log, paths, product, dispatcher; then the commands and the language in which they speak.
    const FamilyApplication family(argc, argv);
    ViewCommand::registerAll();
    Language language;
    language.restore();
    const QStringList files = filesToOpen();

    Workspace workspace;
    MainWindow window(language);
    window.show();
    window.openFiles(files);
    return QApplication::exec();
}
