// A small application of the family for tests of the debug log, which can be created only in a fresh process.
// Usage: loghelper <mode>

#include <kdQCore/kdDebugLog>
#include <kdQCore/kdLog>

#include <QCoreApplication>
#include <QVector>

#include <atomic>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <thread>

namespace {

using Mode = void (*)(int argc, char** argv);

class CountingSink : public kdLog::Sink {
public:
    CountingSink() { attach(); }
    ~CountingSink() override { detach(); }
    void received(const kdLog::Record& record) override { m_characters += record.text.size(); }

private:
    int m_characters = 0;
};

void log(int severity, const QString& text)
{
    KD_LOG(kdLog::Severity(severity), kdLog::Socket, text);
}

void severities(int argc, char** argv)
{
    kdDebugLog::createInstance(argc, argv, false);
    for (int severity = kdLog::Trace; severity <= kdLog::Critical; ++severity)
        log(severity, QStringLiteral("severity %1").arg(severity));
    kdDebugLog::removeInstance();
}

void withApplication(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    kdDebugLog::createInstance(argc, argv, false);
    std::printf("%s\n", kdDebugLog::logFilePath().toLocal8Bit().constData());
    kdDebugLog::removeInstance();
}

void withoutArguments(int, char**)
{
    kdDebugLog::createInstance(0, nullptr, false);
    log(2, QStringLiteral("nameless"));
    kdDebugLog::removeInstance();
}

void currentDirectory(int argc, char** argv)
{
    kdDebugLog::createInstance(argc, argv, true);
    log(2, QStringLiteral("here"));
    kdDebugLog::removeInstance();
}

void echo(int argc, char** argv)
{
    kdDebugLog::setAlsoLogToStdErrorEnabled(true);
    severities(argc, argv);
}

void aroundLife(int argc, char** argv)
{
    log(5, QStringLiteral("before"));
    kdDebugLog::flush();
    severities(argc, argv);
    kdDebugLog::flush();
    log(6, QStringLiteral("after"));
}

void createAndRemoveTwice(int argc, char** argv)
{
    kdDebugLog::removeInstance();
    kdDebugLog::createInstance(argc, argv, false);
    kdDebugLog::createInstance(argc, argv, false);
    log(0, QStringLiteral("first life"));
    kdDebugLog::removeInstance();
    kdDebugLog::removeInstance();
    kdDebugLog::createInstance(argc, argv, false);
    log(0, QStringLiteral("second life"));
    kdDebugLog::removeInstance();
}

void textsFromOutside(int argc, char** argv)
{
    kdDebugLog::createInstance(argc, argv, false);
    log(2,
        QStringLiteral(
            "two\n6 20260101 00:00:00.000000 1 forged.cpp:1] Socket           lines\r\nand three"));
    log(2, QStringLiteral("bell \a escape \x1b[2J end"));
    log(2, QString::fromUtf8("Größe "));
    log(2, QString(40000, QChar(0xE4)));
    log(2, QString(40000, QLatin1Char('\n')));
    log(2, QString());
    kdDebugLog::removeInstance();
}

/// Says when the line is written, then waits to be killed.
void untilKilled(int argc, char** argv)
{
    kdDebugLog::createInstance(argc, argv, false);
    log(argv[2][0] - '0', QStringLiteral("last words"));
    if (std::strcmp(argv[3], "flush") == 0)
        kdDebugLog::flush();
    std::puts("written");
    std::fflush(stdout);
    std::getchar();
}

void manyThreads(int argc, char** argv)
{
    kdDebugLog::createInstance(argc, argv, false);
    constexpr int threadCount = 4;
    constexpr int lineCount = 250;
    std::atomic<int> running{threadCount};
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t)
        threads.emplace_back([t, &running] {
            for (int i = 0; i < lineCount; ++i)
                log(i % 7, QStringLiteral("thread %1 line %2").arg(QString::number(t), QString::number(i)));
            --running;
        });
    while (running > 0) {
        CountingSink sink;
        kdDebugLog::flush();
    }
    for (std::thread& thread : threads)
        thread.join();
    kdDebugLog::removeInstance();
}

const std::map<std::string, Mode> modes{
    {"severities", severities},
    {"withApplication", withApplication},
    {"withoutArguments", withoutArguments},
    {"currentDirectory", currentDirectory},
    {"echo", echo},
    {"aroundLife", aroundLife},
    {"createAndRemoveTwice", createAndRemoveTwice},
    {"textsFromOutside", textsFromOutside},
    {"untilKilled", untilKilled},
    {"manyThreads", manyThreads},
};

} // namespace

int main(int argc, char** argv)
{
    const auto mode = argc > 1 ? modes.find(argv[1]) : modes.end();
    if (mode == modes.end())
        return 2;
    mode->second(argc, argv);
    return 0;
}
