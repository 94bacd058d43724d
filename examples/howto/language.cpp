// Languages: texts of the library and of the application in German.
#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdDebugLog>
#include <kdQCore/kdUnitSystem>
#include <kdQCore/nSolver>

#include <QCoreApplication>
#include <QTextStream>
#include <QTranslator>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    kdDebugLog::createInstance(argc, argv, false);
    QTextStream out(stdout);
    kdCommandDispatcher::createInstance();
    const bool isGerman = kdCommandDispatcher::I().setLanguage(kdQLanguage::German);
    out << (isGerman ? "German: " : "No German texts: ") << nSolver::solverNameAutomatic() << ", "
        << kdUnitSystem::translatedDimensionName(kdUnitSystem::Stress) << "\n";

    kdCommandDispatcher::I().setLanguage(kdQLanguage::English);
    out << "English: " << nSolver::solverNameAutomatic() << "\n";
    kdCommandDispatcher::removeInstance();
    kdDebugLog::removeInstance();
    return 0;
}
