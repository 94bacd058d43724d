// Reports one message of every kind, and messages of the levels 0 to 3, to a streamReporter.
// Usage: reporthelper <maximum level>

#include <kdQCore/kdReporterInterface>
#include <kdQCore/streamReporter>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    streamReporter console(QCoreApplication::arguments().value(1).toInt());
    const kdReporterInterface producer(console);
    producer.startOperation(QString::fromUtf8("Erwärmen"));
    producer.startOperation(QStringLiteral("again"));
    for (const double fraction : {0.5, 0.125, 1.0 / 3.0, 1.0, 1e-7})
        producer.progress(fraction);
    for (int level = 0; level < 4; ++level)
        producer.message(QStringLiteral("level %1").arg(level), level);
    producer.errorMessage(QString::fromUtf8("zu heiß"));
    producer.finishOperation(QStringLiteral("done"));
    return 0;
}
