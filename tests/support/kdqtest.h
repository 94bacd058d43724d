#pragma once

#include <QtTest>

/// Prepares the process for a test: no trace of the real user's settings or folders. Called by KDQ_TEST_MAIN.
void kdqPrepareTest(const char* testName);

#define KDQ_TEST_MAIN(TestClass)                  \
    int main(int argc, char** argv)               \
    {                                             \
        QCoreApplication application(argc, argv); \
        kdqPrepareTest(#TestClass);               \
        TestClass test;                           \
        return QTest::qExec(&test, argc, argv);   \
    }
