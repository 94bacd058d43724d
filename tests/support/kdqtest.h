#pragma once

#include <QtTest>

#include <functional>
#include <thread>
#include <vector>

#define S(text) QStringLiteral(text)

/// Prepares the process for a test: no trace of the real user's settings or folders. Called by KDQ_TEST_MAIN.
void kdqPrepareTest(const char* testName);

#ifdef Q_OS_WIN
constexpr bool kdqOnWindows = true;
#else
constexpr bool kdqOnWindows = false;
#endif

/// What a program wrote as text: on Windows its lines end with CR LF.
inline QByteArray kdqWithPlainLineEnds(QByteArray text)
{
    return kdqOnWindows ? text.replace("\r\n", "\n") : text;
}

/// Removes the working directory of a program that has ended; on Windows its console may hold the folder for
/// a moment longer.
void kdqRemoveFolder(const QString& path);

/// A row of test data; literals are QStrings.
template <typename... Values>
void kdqRow(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}

/// Everything in the file; empty where there is none.
inline QByteArray kdqContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes the file, and the folders on the way to it.
inline bool kdqWrite(const QString& path, const QByteArray& content = QByteArray())
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}

/// Does \a work, which is called with 0 to \a count - 1, in so many threads at once, and waits for them.
template <typename Work>
void kdqInThreads(int count, const Work& work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(std::cref(work), i);
    for (std::thread& thread : threads)
        thread.join();
}

#define KDQ_TEST_MAIN(TestClass)                  \
    int main(int argc, char** argv)               \
    {                                             \
        QCoreApplication application(argc, argv); \
        kdqPrepareTest(#TestClass);               \
        TestClass test;                           \
        return QTest::qExec(&test, argc, argv);   \
    }
