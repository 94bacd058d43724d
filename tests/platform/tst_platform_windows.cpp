#include "kdqtest.h"
#include "platform.h"

#include <kdQCore/coVersionNumber>
#include <kdQCore/kdException>
#include <kdQCore/nSystem>

#include <windows.h>

using namespace nPlatform;

namespace {

const wchar_t* wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

qint64 ticks(const FILETIME& time)
{
    return (qint64(time.dwHighDateTime) << 32) | time.dwLowDateTime;
}

} // namespace

class TestPlatformWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void versionAsTheSystemReadsIt()
    {
        for (const char* name : {"Qt5Core.dll", "Qt5Network.dll", "Qt5Test.dll"}) {
            const QString file = QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(name));
            const QString text = fileVersionBySystem(file);
            QVERIFY2(!text.isEmpty(), name);
            QCOMPARE(nSystem::nWin32::getFileVersionFromStringFileInfo(file), coVersionNumber(text));
        }
    }

    void lockedFileKeepsItsName()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("x.lock"));
        ExclusiveFile file;
        QVERIFY(file.create(path));
        QVERIFY(file.touch());
        QVERIFY(!QFile::remove(path)); // nobody can take it from a live owner
        WIN32_FILE_ATTRIBUTE_DATA attributes{};
        QVERIFY(GetFileAttributesExW(wide(path), GetFileExInfoStandard, &attributes));
        FILETIME now{};
        GetSystemTimeAsFileTime(&now);
        constexpr qint64 minute = 60 * qint64(10000000);
        QVERIFY(qAbs(ticks(now) - ticks(attributes.ftLastWriteTime)) < minute);
        file.close();
        QVERIFY(QFile::remove(path));
    }

    void systemFactsAgreeWithOtherSources()
    {
        const SystemInformation& information = systemInformation();
        QCOMPARE(information.cores, QThread::idealThreadCount());
        QCOMPARE(information.hostName.toLower(), QSysInfo::machineHostName().toLower().left(15));
        QCOMPARE(information.userName.section(QLatin1Char('\\'), -1), qEnvironmentVariable("USERNAME"));
        QVERIFY(information.userName.contains(QLatin1Char('\\')));
        QVERIFY(information.physicalMemory > 64 * 1024 * 1024);
        QCOMPARE(information.architecture, QStringLiteral("x64"));
    }

    void localTextIsTheAnsiCodePage()
    {
        const QString text = QStringLiteral("Gr\u00f6\u00dfe");
        char expected[32] = {};
        QVERIFY(WideCharToMultiByte(CP_ACP, 0, wide(text), -1, expected, sizeof expected, nullptr, nullptr));
        const kdException exception(text);
        QCOMPARE(QByteArray(exception.what()), QByteArray(expected));
        QCOMPARE(exception.getErrorMessage(), text);
    }
};

KDQ_TEST_MAIN(TestPlatformWindows)
#include "tst_platform_windows.moc"
