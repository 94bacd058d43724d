// Text commands with undo and redo, and the start and end of an application of the family.
#include <kdQCore/coProductInformation>
#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdDataTable>
#include <kdQCore/kdDebugLog>
#include <kdQCore/kdLog>
#include <kdQCore/streamReporter>

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTextStream>

/// What the commands work on. In a larger application this is the open project.
kdDataTable curve(kdUnitSystem::Time, kdUnitSystem::Temperature);

class Scale : public kdCommand {
public:
    using kdCommand::kdCommand;

    QString name() const override { return "scale"; }
    QString helpMessage() const override { return tr("Scales the curve. Usage: scale <factor>"); }
    bool allowUndo() override { return true; }

    bool execute() override
    {
        bool ok = false;
        const double factor = parameter().toDouble(&ok);
        if (!ok || factor == 0) {
            errorMessage(tr("A factor is expected, not '%1'").arg(parameter()));
            return false;
        }
        m_former = curve;
        curve.scaleYData(factor);
        return true;
    }

    bool undo() override
    {
        curve = m_former;
        return true;
    }

private:
    kdDataTable m_former;
};

QSharedPointer<kdCommand> createScale(const QString& parameter)
{
    return QSharedPointer<Scale>::create(parameter);
}

void work(QTextStream& out)
{
    curve.addPoint(0, 300);
    curve.addPoint(60, 900);

    streamReporter console(0);
    kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
    dispatcher.registerCommand(createScale);
    dispatcher.startReportingTo(console);

    dispatcher.execute("scale 2; scale 0.25");
    out << "scaled: " << curve.pointAt(1).y() << "\n";
    dispatcher.slotUndo();
    out << "after undo: " << curve.pointAt(1).y() << "\n";
    dispatcher.slotRedo();
    out << "after redo: " << curve.pointAt(1).y() << "\n" << Qt::flush;
    dispatcher.execute("scale much");
}

/// The debug log lies below LOCALAPPDATA. Windows sets that variable; elsewhere the application does.
void chooseDataFolder()
{
    if (qEnvironmentVariableIsEmpty("LOCALAPPDATA"))
        qputenv("LOCALAPPDATA",
                QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)));
}

int main(int argc, char** argv)
{
    chooseDataFolder();
    QCoreApplication application(argc, argv);
    kdDebugLog::createInstance(argc, argv, false);
    coProductInformation::registerProduct(coProductType::welding(), coVersionNumber(2018, 1, 0, 345));
    kdCommandDispatcher::createInstance();

    QTextStream out(stdout);
    work(out);
    KD_LOG(kdLog::Notable, kdLog::General, "All work is done.");
    out << "The log is " << kdDebugLog::logFilePath() << "\n";

    kdCommandDispatcher::removeInstance(); // in reverse order
    kdDebugLog::removeInstance();
    return 0;
}
