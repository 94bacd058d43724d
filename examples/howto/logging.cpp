// The debug log: lines, what they cost, and how an application shows them.
#include <kdQCore/kdDebugLog>
#include <kdQCore/kdLog>

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

QTextStream out(stdout);

/// A window that shows the log, or a test that looks at it.
class LogList : public kdLog::Sink {
public:
    LogList() { attach(); }
    ~LogList() override { detach(); }
    void received(const kdLog::Record& record) override
    {
        if (record.severity >= kdLog::Error)
            out << "severity " << record.severity << ": " << record.text << "\n";
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    kdDebugLog::createInstance(argc, argv, false);

    const QString path = "C:/kaldoran";
    KD_LOG(kdLog::Error, kdLog::Paths, QString("Folder '%1' is missing.").arg(path));
    {
        const LogList list;
        KD_LOG(kdLog::Error, kdLog::General, "The result file is damaged.");
        KD_LOG(kdLog::Detail, kdLog::General, "Step 1 of 100");
    }
    const QFileInfo file(kdDebugLog::logFilePath());
    kdDebugLog::removeInstance();
    kdDebugLog::removeOldLogFiles(file.dir(), "logging"); // keeps the nine newest
    return 0;
}
