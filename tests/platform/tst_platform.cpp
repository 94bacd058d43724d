#include "kdqtest.h"
#include "platform.h"

#include <atomic>
#include <climits>
#include <cstdio>

using namespace nPlatform;

/// What every system promises; the sources' own sides are tested beside it.
class TestPlatform : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Start times count in ticks of 10 ms: the processes started below are to be later ones.
    void initTestCase() { QThread::msleep(25); }

    void clockRunsWhileTheProcessSleeps()
    {
        const qint64 before = monotonicMilliseconds();
        QThread::msleep(40);
        QVERIFY(monotonicMilliseconds() - before >= 39);
    }

    void errorTextEndsWithTheSystemsLineBreak()
    {
        constexpr unsigned long missingFile = 2; // the same number on POSIX and Windows
        const QString text = systemErrorText(missingFile);
        QVERIFY(text.trimmed().size() > 3);
        QVERIFY(text.endsWith(QLatin1Char('\n')));
        QCOMPARE(systemErrorText(99999), QString());
    }

    void moduleIsWhatTheCodeIsLinkedInto()
    {
        QCOMPARE(moduleFolder(), QCoreApplication::applicationDirPath());
    }

    void noSuchProcess()
    {
        const qint64 ownBeyond32Bits = (qint64(1) << 32) | QCoreApplication::applicationPid();
        for (const qint64 id : {qint64(0), qint64(-1), qint64(INT_MAX), ownBeyond32Bits})
            QVERIFY(!processFacts(id).alive);
    }

    void otherProcessUntilItEnds()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("-wait-for-input")});
        QVERIFY(process.waitForStarted());
        const qint64 id = process.processId();
        const ProcessFacts facts = processFacts(id);
        const ProcessFacts own = processFacts(QCoreApplication::applicationPid());
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QVERIFY(facts.alive);
        QCOMPARE(facts.executableName, own.executableName);
        QVERIFY(!facts.startTime.isEmpty());
        QVERIFY(facts.startTime != own.startTime);
        QVERIFY(!processFacts(id).alive);
    }

    void exclusiveFileIsTakenOnce()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Schloß.lock"));
        ExclusiveFile first;
        QVERIFY(first.create(path));
        ExclusiveFile second;
        QVERIFY(!second.create(path));
        QVERIFY(!second.isOpen());
        QCOMPARE(second.failure(), ExclusiveFile::Failure::Exists);
        QVERIFY(second.errorCode() != 0);

        const QByteArray record("PID=1\nUserName=J\xc3\xb6rg\n");
        QVERIFY(first.write(record));
        QVERIFY(first.flush());
        QCOMPARE(kdqContentOf(path), record);
        first.close();
        QVERIFY(!first.write(record));
        QCOMPARE(first.failure(), ExclusiveFile::Failure::Unexpected);
        QVERIFY(!first.flush());
        QVERIFY(!first.touch());
        QVERIFY(QFile::remove(path));
        QVERIFY(second.create(path));
        QCOMPARE(second.errorCode(), 0UL);
    }

    void exclusiveFileRefused()
    {
        struct Row {
            QString path;
            ExclusiveFile::Failure failure;
        };
        QVector<Row> rows{
            {QDir::tempPath(), ExclusiveFile::Failure::Exists}, // a folder bears the name
            {QDir::tempPath() + QStringLiteral("/no/such/x.lock"), ExclusiveFile::Failure::Unexpected}};
        if (kdqOnWindows)
            rows.append({QDir::tempPath() + QStringLiteral("/a|b"), ExclusiveFile::Failure::Unexpected});
        else if (QFile::exists(QStringLiteral("/sys/kernel"))) // not even root may
            rows.append({QStringLiteral("/sys/kdq.lock"), ExclusiveFile::Failure::NotPermitted});
        for (const Row& row : rows) {
            ExclusiveFile file;
            QVERIFY2(!file.create(row.path), qPrintable(row.path));
            QCOMPARE(int(file.failure()), int(row.failure));
            QVERIFY(file.errorCode() != 0);
        }
    }

    void filesInAFolderOfALongPath()
    {
        QTemporaryDir folder;
        QString path = folder.path();
        for (int i = 0; i < 30; ++i) // some 600 characters, beyond the old limit of Windows
            path += QLatin1Char('/') + QStringLiteral("Verzeichnis-äöü-%1").arg(i);
        QVERIFY(QDir().mkpath(path));
        path += QStringLiteral("/Zwölf.lock");
        const QByteArray content(3 * 4096 + 17, 'p');
        ExclusiveFile file;
        QVERIFY(file.create(path));
        QVERIFY(file.write(content));
        file.close();
        const MappedFile view(path);
        QCOMPARE(view.failure(), MappedFile::Failure::None);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(view.data()), static_cast<int>(view.size())),
                 content);
    }

    void raceForAFileHasOneWinner()
    {
        QTemporaryDir folder;
        std::atomic<int> wins{0};
        kdqInThreads(2, [&](int) {
            for (int i = 0; i < 200; ++i) {
                ExclusiveFile file;
                wins += file.create(folder.filePath(QString::number(i)));
            }
        });
        QCOMPARE(wins.load(), 200);
    }
};

int main(int argc, char** argv)
{
    if (argc > 1 && qstrcmp(argv[1], "-wait-for-input") == 0)
        return std::getchar() == EOF ? 0 : 1;
    QCoreApplication application(argc, argv);
    kdqPrepareTest("TestPlatform");
    TestPlatform test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_platform.moc"
