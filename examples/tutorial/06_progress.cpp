// Progress, messages and errors: a producer that tells, a receiver that shows.
#include <kdQCore/kdDataTable>
#include <kdQCore/kdReporterInterface>
#include <kdQCore/streamReporter>

#include <QFileInfo>
#include <QObject>

/// Looks at files and tells what it finds. It does not know who listens.
class FileCheck : public kdReporterInterface {
public:
    bool run(const QStringList& files)
    {
        bool ok = true;
        startOperation(QObject::tr("Looking at %1 files").arg(files.size()));
        for (int i = 0; i < files.size(); ++i) {
            if (QFileInfo::exists(files[i]))
                message(QObject::tr("%1 is there").arg(files[i]), 1);
            else
                ok = fail(files[i]);
            progress(double(i + 1) / files.size());
        }
        finishOperation(ok ? QObject::tr("All found") : QObject::tr("Not all found"));
        return ok;
    }

private:
    bool fail(const QString& file) const
    {
        errorMessage(QObject::tr("%1 is missing").arg(file));
        return false;
    }
};

int main()
{
    streamReporter console(1); // shows messages of the levels 0 and 1
    FileCheck check;
    check.startReportingTo(console);
    return check.run({"yield_stress.csv", "furnace.csv"}) ? 0 : 1;
}
