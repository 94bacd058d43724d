#include "kdqtest.h"
#include "platform.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace nPlatform;

class TestPlatformPosix : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void errorTextsOfNoErrorNumberAreEmpty()
    {
        for (const unsigned long code :
             {(1UL << 32) | ENOENT, 0xffffffffUL, static_cast<unsigned long>(INT_MAX)})
            QCOMPARE(systemErrorText(code), QString());
    }

    void systemInformationAgreesWithOtherSources()
    {
        const SystemInformation& information = systemInformation();
        QCOMPARE(&information, &systemInformation());
        QCOMPARE(information.cores, QThread::idealThreadCount());
        QCOMPARE(information.hostName, QSysInfo::machineHostName());
        QVERIFY(information.operatingSystem.contains(QSysInfo::kernelVersion()));
        QVERIFY(!information.processor.isEmpty());
        QProcess id;
        id.start(QStringLiteral("id"), {QStringLiteral("-un")});
        QVERIFY(id.waitForFinished());
        QCOMPARE(information.userName, QString::fromLocal8Bit(id.readAll().trimmed()));
        const QByteArray memory =
            kdqContentOf(QStringLiteral("/proc/meminfo")).split('\n').constFirst().simplified();
        QCOMPARE(information.physicalMemory / 1024, memory.split(' ').at(1).toULongLong());
        QCOMPARE(information.architecture == QLatin1String("x64"),
                 QSysInfo::currentCpuArchitecture() == QLatin1String("x86_64"));
    }

    void otherProcess()
    {
        QTemporaryDir folder;
        for (const QString& name : {QStringLiteral("a) Z (b 1 2"), QStringLiteral("Größe")}) {
            const QString path = folder.filePath(name);
            QVERIFY(QFile::copy(QStandardPaths::findExecutable(QStringLiteral("sleep")), path));
            QProcess process;
            process.start(path, {QStringLiteral("60")});
            QVERIFY(process.waitForStarted());
            QTRY_COMPARE(processFacts(process.processId()).executableName, name);
            const QString startTime = processFacts(process.processId()).startTime;
            QVERIFY(QFile::remove(path));
            QCOMPARE(processFacts(process.processId()).executableName, name);
            QCOMPARE(processFacts(process.processId()).startTime, startTime);
            process.kill();
            QVERIFY(process.waitForFinished());
        }
    }

    void endedProcessThatItsParentHasNotAskedAfter()
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(0);
        siginfo_t information{};
        QCOMPARE(waitid(P_PID, static_cast<id_t>(child), &information, WEXITED | WNOWAIT), 0);
        QVERIFY(!processFacts(child).alive);
        waitpid(child, nullptr, 0);
    }

    void terminal()
    {
        const int saved = dup(STDIN_FILENO);
        const int nullDevice = open("/dev/null", O_RDONLY);
        dup2(nullDevice, STDIN_FILENO);
        const bool nullIsTerminal = isTerminal(StandardStream::Input);
        const int controller = posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(controller >= 0 && grantpt(controller) == 0 && unlockpt(controller) == 0);
        const int pseudoTerminal = open(ptsname(controller), O_RDWR | O_NOCTTY);
        dup2(pseudoTerminal, STDIN_FILENO);
        const bool terminalIsTerminal = isTerminal(StandardStream::Input);
        dup2(saved, STDIN_FILENO);
        for (int descriptor : {saved, nullDevice, controller, pseudoTerminal})
            close(descriptor);
        QVERIFY(!nullIsTerminal);
        QVERIFY(terminalIsTerminal);
    }

    void timeZoneIsNamedOnlyWhereUnset()
    {
        const QByteArray given("Asia/Kathmandu");
        qputenv("TZ", given);
        presetTimeZone();
        QCOMPARE(qgetenv("TZ"), given);

        const auto hourOf = [](time_t moment) {
            tm parts{};
            tzset();
            localtime_r(&moment, &parts);
            return parts.tm_hour;
        };
        qunsetenv("TZ");
        const int expected = hourOf(1700000000);
        presetTimeZone();
        const bool named = qEnvironmentVariableIsSet("TZ");
        const int actual = hourOf(1700000000);
        qputenv("TZ", given);
        tzset();
        QCOMPARE(named, QFile::exists(QStringLiteral("/etc/localtime")));
        QCOMPARE(actual, expected);
    }

    void touchMakesTheFileYoung()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("x.lock"));
        ExclusiveFile file;
        QVERIFY(file.create(path));
        const timespec old[2] = {{1000, 0}, {1000, 0}};
        QCOMPARE(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), old, 0), 0);
        QCOMPARE(QFileInfo(path).lastModified().toSecsSinceEpoch(), qint64(1000));
        QVERIFY(file.touch());
        QVERIFY(QFileInfo(path).lastModified().secsTo(QDateTime::currentDateTime()) < 60);
    }

    void mappingDoesNotWaitForAPipe()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("pipe"));
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        const MappedFile view(path);
        QCOMPARE(int(view.failure()), int(MappedFile::Failure::Open));
        QVERIFY(view.errorCode() != 0);
    }
};

KDQ_TEST_MAIN(TestPlatformPosix)
#include "tst_platform_posix.moc"
