// A window of the family, from start to end. Read on in mainwindow.h; docs/kdqview.md walks through the code.
#include "familyapplication.h"
#include "language.h"
#include "mainwindow.h"
#include "programhelp.h"
#include "viewcommand.h"
#include "workspace.h"

#include <kdQCore/coPaths>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTextStream>

#include <cstdlib>
#include <memory>

namespace {

/// The files of the command line. Ends the process where the user asks for help, version or manual.
QStringList filesToOpen()
{
    QCommandLineParser parser;
    ProgramHelp help;
    help.name = QStringLiteral("kdqview");
    help.purpose = QStringLiteral("tables, heat treatments and solver input decks in a window");
    help.description =
        QCoreApplication::translate("main", "Shows and edits tables, heat treatments and decks.");
    help.options = {parser.addHelpOption(), parser.addVersionOption(), ProgramHelp::manualOption()};
    help.arguments = {{QStringLiteral("files"), QCoreApplication::translate("main", "Files to open."),
                       QStringLiteral("[files...]")}};
    help.describeTo(parser);
    parser.addOption(help.options.constLast());
    parser.process(coPaths::withoutPathOptions(QCoreApplication::arguments()));
    if (parser.isSet(help.options.constLast())) {
        QTextStream(stdout) << help.manualPage() << Qt::flush;
        std::exit(EXIT_SUCCESS);
    }
    return parser.positionalArguments();
}

std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv)
{
    if (ProgramHelp::isTextWanted(argc, argv))
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
