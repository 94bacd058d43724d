// A small application of the family for tests of what a whole process writes: its debug log, which can be
// created only in a fresh process, and its reports.
// Usage: loghelper <step>..., where a digit logs a line of that severity.

#include <kdQCore/kdDebugLog>
#include <kdQCore/kdLog>
#include <kdQCore/kdReporterInterface>
#include <kdQCore/streamReporter>

#include <QCoreApplication>

#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

void log(int severity, const QString& text)
{
    KD_LOG(kdLog::Severity(severity), kdLog::Socket, text);
}

void logTextsFromOutside()
{
    log(2,
        QStringLiteral(
            "two\n6 20260101 00:00:00.000000 1 forged.cpp:1] Socket           lines\r\nand three"));
    log(2, QStringLiteral("bell \a escape \x1b[2J end"));
    log(2, QString::fromUtf8("Größe "));
    log(2, QString(40000, QChar(0xE4)));
    log(2, QString(40000, QLatin1Char('\n')));
    log(2, QString());
}

void logFromManyThreads()
{
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([t] {
            for (int i = 0; i < 250; ++i)
                log(i % 7, QStringLiteral("thread %1 line %2").arg(QString::number(t), QString::number(i)));
        });
    for (int i = 0; i < 100; ++i)
        kdDebugLog::flush();
    for (std::thread& thread : threads)
        thread.join();
}

/// One message of every kind, and messages of the levels 0 to 2.
void report()
{
    streamReporter console(1);
    const kdReporterInterface producer(console);
    producer.startOperation(QString::fromUtf8("Erwärmen"));
    producer.startOperation(QStringLiteral("again"));
    for (const double fraction : {0.5, 1.0 / 3.0, 1.0, 1e-7})
        producer.progress(fraction);
    for (int level = 0; level < 3; ++level)
        producer.message(QStringLiteral("level %1").arg(level), level);
    producer.errorMessage(QString::fromUtf8("zu heiß"));
    producer.finishOperation(QStringLiteral("done"));
}

void waitToBeKilled()
{
    std::puts("ready");
    std::fflush(stdout);
    std::getchar();
}

} // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<QCoreApplication> application;
    const std::map<std::string, std::function<void()>> steps{
        {"application", [&] { application = std::make_unique<QCoreApplication>(argc, argv); }},
        {"create", [&] { kdDebugLog::createInstance(argc, argv, false); }},
        {"createHere", [&] { kdDebugLog::createInstance(argc, argv, true); }},
        {"createNameless", [] { kdDebugLog::createInstance(0, nullptr, false); }},
        {"remove", kdDebugLog::removeInstance},
        {"flush", kdDebugLog::flush},
        {"echo", [] { kdDebugLog::setAlsoLogToStdErrorEnabled(true); }},
        {"path", [] { std::puts(qPrintable(kdDebugLog::logFilePath())); }},
        {"texts", logTextsFromOutside},
        {"threads", logFromManyThreads},
        {"report", report},
        {"wait", waitToBeKilled},
    };
    for (int i = 1; i < argc; ++i) {
        const auto step = steps.find(argv[i]);
        if (step != steps.end())
            step->second();
        else
            log(argv[i][0] - '0', QStringLiteral("severity ") + QString::fromLatin1(argv[i]));
    }
    return 0;
}
