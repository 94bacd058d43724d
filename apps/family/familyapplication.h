#pragma once

#include <kdQCore/kdQLanguage>

#include <QCoreApplication>

/// What every application of the family does at start-up and shut-down: the debug log first, then the paths
/// of the installation, the product's registration and the command dispatcher; at the end all of them in
/// reverse order.
///
/// \code
/// int main(int argc, char** argv)
/// {
///     FamilyApplication::prepare();
///     QApplication application(argc, argv);
///     FamilyApplication::describe(QStringLiteral("kdqview"));
///     const FamilyApplication family(argc, argv);
///     ... // register commands, make the window
///     FamilyApplication::setUserLanguage();
///     return QApplication::exec();
/// }
/// \endcode
///
/// For the main thread.
class FamilyApplication {
public:
    /// Before the application object: the debug log lies below a folder that only Windows names of itself.
    static void prepare();
    /// After the application object: name, version and organisation, by which settings are found.
    static void describe(const QString& applicationName);

    FamilyApplication(int argc, char** argv);
    ~FamilyApplication();
    Q_DISABLE_COPY(FamilyApplication)

    /// The user's own folder for data of the family, such as histories; need not exist.
    static QString dataFolder();
    /// The languages of the user that the family speaks, the dearest first: those of the variable LANGUAGE,
    /// or of the system where it is not set.
    static QList<kdQLanguage::KDLANGUAGE> userLanguages();
    /// The first language of the user that the dispatcher has texts for; English where it has none.
    static void setUserLanguage();
};
