// Errors: what is thrown, what is reported, and who shows it.
#include <kdQCore/coIOException>
#include <kdQCore/kdErrorMessageHandler>
#include <kdQCore/kdReporter>
#include <kdQCore/kdReporterInterface>
#include <kdQCore/kdTypedException>

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

QTextStream out(stdout);

/// Thrown: the caller cannot go on without the file.
QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw coIOException(QObject::tr("<b>%1</b> cannot be read: %2").arg(path, file.errorString()));
    return file.readAll();
}

/// Thrown with a value that says more than the message.
void checkRow(int row, double value)
{
    if (value < 0)
        throw kdTypedException<QPair<int, int>>(QObject::tr("A stress is negative"), qMakePair(row, 2));
}

void catchThem()
{
    try {
        contentsOf("missing.txt");
    } catch (const kdException& failure) { // the root of the library's own exceptions
        out << "box: " << failure.getErrorMessage() << "\n";
        out << "log: " << failure.nonHTMLErrorMessage() << "\n";
    }
    try {
        checkRow(7, -1);
    } catch (const kdTypedException<QPair<int, int>>& failure) { // before its base
        out << "row " << failure.payload().first << ", column " << failure.payload().second << ": "
            << failure.getErrorMessage() << "\n";
    }
}

/// Reported: a producer that works on after an error.
class Import : public kdReporterInterface {
public:
    void run()
    {
        startOperation(QObject::tr("Reading"));
        for (int i = 1; i <= 1000; ++i)
            progress(i / 1000.0); // cheap: receivers drop most of it
        errorMessage(QObject::tr("3 lines were left out"));
        finishOperation(QObject::tr("Read"));
    }
};

/// The receiver of an application with windows: signals for its status bar and its dialogs.
void connectWindow(kdReporter& reporter)
{
    QObject::connect(&reporter, &kdReporter::signalStartOperation, [](const QString& text) { out << text; });
    QObject::connect(&reporter, &kdReporter::signalProgress, [](double part) { out << " [" << part << "]"; });
    QObject::connect(&reporter, &kdReporter::signalFinishOperation,
                     [](const QString& text) { out << " " << text << "\n"; });
    QObject::connect(&reporter, &kdReporter::signalErrorMessage,
                     [](const QString& text) { out << " (" << text << ")"; });
}

/// Gathered: all errors of a check, for a list afterwards.
class NameCheck : public kdErrorMessageHandler {
public:
    void check(const QStringList& names)
    {
        for (const QString& name : names)
            if (name.isEmpty() || name.size() > 20)
                addErrorMessage(QObject::tr("'%1' has %2 characters").arg(name).arg(name.size()));
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    catchThem();

    kdReporter reporter;
    connectWindow(reporter);
    Import import;
    import.startReportingTo(reporter);
    import.run();

    NameCheck names;
    names.check({"die", "", "a name that is much too long"});
    out << names.getErrorString("; ") << "\n";
    return 0;
}
