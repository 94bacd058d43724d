#pragma once

#include <QtTest>

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

#define KDQ_TEST_MAIN(TestClass)                  \
    int main(int argc, char** argv)               \
    {                                             \
        QCoreApplication application(argc, argv); \
        kdqPrepareTest(#TestClass);               \
        TestClass test;                           \
        return QTest::qExec(&test, argc, argv);   \
    }
