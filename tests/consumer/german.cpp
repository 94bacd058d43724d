// Ends with success if the library finds its German texts; the program itself lies outside the installed
// tree.
#include <kdQCore/kdCommandDispatcher>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    kdCommandDispatcher::createInstance();
    const bool found = kdCommandDispatcher::I().setLanguage(kdQLanguage::German);
    kdCommandDispatcher::removeInstance();
    return found ? 0 : 1;
}
