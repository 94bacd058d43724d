#include "kdqtest.h"
#include "peimagebuilder.h"
#include "platform.h"
#include "versionresource_p.h"

#include <kdQCore/coVersionNumber>
#include <kdQCore/nSystem>

#include <vector>

using namespace PeBuilder;
using nPlatform::DataFault;
using nSystem::cError;
using nSystem::nWin32::cWindowsError;
using nSystem::nWin32::getFileVersionFromStringFileInfo;
using nSystem::nWin32::getLinkTimeStamp;

namespace {

const QString sizeFailure = QStringLiteral("Could not get size of version info of file '%1'.");
const QString infoFailure = QStringLiteral("Could not get version info of file '%1'.");
const QString valueFailure = QStringLiteral("Failed to query version info value.");
const QString translationFailure = QStringLiteral("Failed to query version info translation values.");
const QString languageFailure = QStringLiteral("Resource language unknown.");
const QString executableFailure = QStringLiteral("File '%1' is not a valid Windows executable.");

QString systemText(DataFault fault)
{
    return nPlatform::systemErrorText(nPlatform::errorCodeOf(fault));
}

/// What the readers make of bytes that end where the heap block ends, so that a sanitizer sees an access
/// beyond.
QString versionIn(const QByteArray& image)
{
    const std::vector<uchar> bytes(image.begin(), image.end());
    ByteView block;
    if (PeImage(ByteView(bytes.data(), image.size())).findResource(16, block) != PeImage::Lookup::Found)
        return QString();
    const VersionResource resource(block);
    const auto translations = resource.translations();
    if (!translations || !translations->u32(0))
        return QString();
    return resource.text(*translations->u16(0), *translations->u16(2), QStringLiteral("FileVersion"))
        .value_or(QString());
}

QByteArray patched(QByteArray image, int offset, const QByteArray& bytes)
{
    return image.replace(offset, bytes.size(), bytes);
}

} // namespace

class TestNSystem : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("Schweißen %1.exe"));

    void write(const QByteArray& bytes)
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    template <typename Function>
    QString failureOf(Function function, bool* fromSystem = nullptr)
    {
        try {
            function();
        } catch (const cError& failure) {
            if (fromSystem)
                *fromSystem = dynamic_cast<const cWindowsError*>(&failure) != nullptr;
            return failure.message();
        }
        return QString();
    }

private Q_SLOTS:
    void linkTimeStamp_data()
    {
        QTest::addColumn<bool>("pe32Plus");
        QTest::addColumn<quint32>("seconds");
        QTest::addColumn<QDateTime>("time");
        QTest::newRow("PE32") << false << 1700000000U << QDateTime({2023, 11, 14}, {22, 13, 20}, Qt::UTC);
        QTest::newRow("PE32+, after 2038")
            << true << 0xfffffffeU << QDateTime({2106, 2, 7}, {6, 28, 14}, Qt::UTC);
        QTest::newRow("zero") << true << 0U << QDateTime({1970, 1, 1}, {0, 0, 0}, Qt::UTC);
    }

    void linkTimeStamp()
    {
        QFETCH(bool, pe32Plus);
        QFETCH(quint32, seconds);
        QFETCH(QDateTime, time);
        Options options;
        options.pe32Plus = pe32Plus;
        options.timeStamp = seconds;
        write(image(options));
        QCOMPARE(getLinkTimeStamp(m_path), time);
        QCOMPARE(getLinkTimeStamp(m_path).timeSpec(), Qt::UTC);
    }

    void fileVersion_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("version");
        QTest::newRow("four numbers") << QStringLiteral("2018.1.2.12345") << QStringLiteral("2018.1.2.12345");
        QTest::newRow("two numbers") << QStringLiteral("2018.1") << QStringLiteral("2018.1.0.0");
        QTest::newRow("commas and blanks") << QStringLiteral("1, 2, 0, 7") << QStringLiteral("1.2.0.7");
        QTest::newRow("a remark") << QStringLiteral("10.0.19041.1 (WinBuild.160101.0800)")
                                  << QStringLiteral("10.0.19041.1");
        QTest::newRow("no number") << QStringLiteral("4.x.2") << QStringLiteral("4.0.2.0");
        QTest::newRow("empty") << QString() << QStringLiteral("0.0.0.0");
    }

    void fileVersion()
    {
        QFETCH(QString, text);
        QFETCH(QString, version);
        for (const bool pe32Plus : {false, true}) {
            Options options;
            options.pe32Plus = pe32Plus;
            options.versionInfo = usualVersionInfo(text);
            write(image(options));
            QCOMPARE(getFileVersionFromStringFileInfo(m_path), coVersionNumber(version));
        }
    }

    void versionLookup_data()
    {
        QTest::addColumn<QByteArray>("info");
        const QString version = QStringLiteral("1.2.3.4");
        const QByteArray german = u16(0x407) + u16(0x4b0);
        QTest::newRow("hexadecimal digits in capitals")
            << versionInfo({strings("040704B0", version), translations(german)});
        QTest::newRow("translations first")
            << versionInfo({translations(german), strings("040704b0", version)});
        QTest::newRow("first of two translations")
            << versionInfo({strings("040704b0", version), translations(german + u16(0x409) + u16(0x4e4))});
        QTest::newRow("neutral language")
            << versionInfo({strings("000004b0", version), translations(u16(0) + u16(0x4b0))});
        QTest::newRow("table of another language before")
            << versionInfo({node("StringFileInfo", 1, 0, {},
                                 {node("040904e4", 1, 0, {}, {text("FileVersion", QStringLiteral("9.9"))}),
                                  node("040704b0", 1, 0, {}, {text("FileVersion", version)})}),
                            translations(german)});
        QTest::newRow("text length in bytes")
            << versionInfo({node("StringFileInfo", 1, 0, {},
                                 {node("040704b0", 1, 0, {}, {node("FileVersion", 1, 16, utf16(version))})}),
                            translations(german)});
    }

    void versionLookup()
    {
        QFETCH(QByteArray, info);
        for (const quint32 name : {1U, 77U, 0x80000010U}) {
            Options options;
            options.resourceName = name;
            options.versionInfo = info;
            write(image(options));
            QCOMPARE(getFileVersionFromStringFileInfo(m_path), coVersionNumber(1, 2, 3, 4));
        }
    }

    void versionFailures_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("context");
        QTest::addColumn<int>("fault");
        const int missing = int(DataFault::ResourceMissing);
        const int bad = int(DataFault::BadExecutable);
        constexpr int none = -1;
        const QString version = QStringLiteral("1.2.3.4");
        const auto with = [](const QByteArray& info) {
            Options options;
            options.versionInfo = info;
            return image(options);
        };
        const QByteArray usual = with(usualVersionInfo(version));
        const int section = sectionOffset(Options());
        const QByteArray german = u16(0x407) + u16(0x4b0);
        Options otherType;
        otherType.resourceType = 3;
        otherType.versionInfo = usualVersionInfo(version);

        QTest::newRow("text file") << QByteArray(500, 'x') << sizeFailure << bad;
        QTest::newRow("no version resource") << image(otherType) << sizeFailure << missing;
        QTest::newRow("neither PE32 nor PE32+")
            << patched(usual, 128 + 24, u16(0x107)) << sizeFailure << missing;
        QTest::newRow("type is no directory")
            << patched(usual, section + 20, u32(24)) << sizeFailure << missing;
        QTest::newRow("directory contains itself")
            << patched(usual, section + 24 + 44, u32(0x80000030U)) << sizeFailure << missing;
        QTest::newRow("directory far outside")
            << patched(usual, section + 20, u32(0xffffffffU)) << sizeFailure << missing;
        QTest::newRow("65535 entries that are not there")
            << patched(usual.left(section + 24), section + 12, u32(0xffffffffU)) << sizeFailure << missing;
        QTest::newRow("empty data") << patched(usual, section + 76, u32(0)) << infoFailure << missing;
        QTest::newRow("size beyond the section")
            << patched(usual, section + 76, u32(0xffffffffU)) << infoFailure << missing;
        QTest::newRow("address beyond every section")
            << patched(usual, section + 72, u32(0xfffffff0U)) << infoFailure << missing;
        QTest::newRow("file ends in the data") << usual.left(usual.size() - 4) << infoFailure << missing;
        QTest::newRow("no translations")
            << with(versionInfo({strings("040704b0", version)})) << translationFailure << missing;
        QTest::newRow("block of another kind")
            << with(node("VERSION", 0, 0, {}, {translations(german)})) << translationFailure << missing;
        QTest::newRow("node that is longer than its parent")
            << with(patched(versionInfo({translations(german)}), 92, u16(0xffff))) << translationFailure
            << missing;
        QTest::newRow("node of no length") << with(patched(versionInfo({translations(german)}), 92, u16(0)))
                                           << translationFailure << missing;
        QTest::newRow("empty list of translations")
            << with(versionInfo({strings("040704b0", version), translations({})})) << languageFailure << none;
        QTest::newRow("half a translation")
            << with(versionInfo({strings("040704b0", version), translations(u16(0x407))})) << languageFailure
            << none;
        QTest::newRow("no texts in the language")
            << with(versionInfo({strings("040904b0", version), translations(german)})) << valueFailure
            << missing;
        QTest::newRow("no file version") << with(versionInfo(
            {node("StringFileInfo", 1, 0, {}, {node("040704b0", 1, 0, {}, {text("Comments", version)})}),
             translations(german)})) << valueFailure
                                         << missing;
    }

    void versionFailures()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, context);
        QFETCH(int, fault);
        write(bytes);
        QString expected = context.contains(QLatin1String("%1")) ? context.arg(m_path) : context;
        if (fault >= 0)
            expected += QLatin1Char(' ') + systemText(DataFault(fault));
        bool fromSystem = false;
        QCOMPARE(failureOf([this] { getFileVersionFromStringFileInfo(m_path); }, &fromSystem), expected);
        QCOMPARE(fromSystem, fault >= 0);
    }

    void invalidExecutable_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray good = image(Options());
        QTest::newRow("one byte") << QByteArray("M");
        QTest::newRow("DOS header magic") << patched(good, 0, "ZM");
        QTest::newRow("DOS header cut off") << good.left(63);
        QTest::newRow("PE signature") << patched(good, 128, QByteArray("NE\0\0", 4));
        QTest::newRow("offset of the signature beyond the end") << patched(good, 60, u32(0xfffffff0U));
        QTest::newRow("offset of the signature at the end")
            << patched(good, 60, u32(quint32(good.size()) - 4));
        QTest::newRow("file header cut off") << good.left(128 + 4 + 19);
    }

    void invalidExecutable()
    {
        QFETCH(QByteArray, bytes);
        write(bytes);
        bool fromSystem = true;
        QCOMPARE(failureOf([this] { getLinkTimeStamp(m_path); }, &fromSystem), executableFailure.arg(m_path));
        QVERIFY(!fromSystem);
    }

    void unreadableFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("context");
        const QString empty = m_folder.filePath(QStringLiteral("empty.exe"));
        QVERIFY(QFile(empty).open(QIODevice::WriteOnly));
        QTest::newRow("missing") << m_folder.filePath(QStringLiteral("missing.exe"))
                                 << QStringLiteral("Failed to open file '%1'.");
        QTest::newRow("folder") << m_folder.path() << QStringLiteral("Failed to open file '%1'.");
        QTest::newRow("empty") << empty << QStringLiteral("Failed to create file mapping for '%1'.");
    }

    void unreadableFile()
    {
        QFETCH(QString, path);
        QFETCH(QString, context);
        const nPlatform::MappedFile mapped(path);
        const QString reason = QLatin1Char(' ') + nPlatform::systemErrorText(mapped.errorCode());
        QCOMPARE(failureOf([&] { getLinkTimeStamp(path); }), context.arg(path) + reason);
        QCOMPARE(failureOf([&] { getFileVersionFromStringFileInfo(path); }), sizeFailure.arg(path) + reason);
    }

    void everyTruncation()
    {
        Options options;
        options.versionInfo = usualVersionInfo(QStringLiteral("1.2.3.4"));
        const QByteArray whole = image(options);
        QCOMPARE(versionIn(whole), QStringLiteral("1.2.3.4"));
        for (int size = 0; size < whole.size(); ++size)
            QCOMPARE(versionIn(whole.left(size)), QString());
    }

    // Whatever is read from damaged bytes is fine; reading beyond them is not.
    void everyDamagedByte()
    {
        Options options;
        options.versionInfo = usualVersionInfo(QStringLiteral("1.2.3.4"));
        const QByteArray whole = image(options);
        int stillRead = 0;
        for (int offset = 0; offset < whole.size(); ++offset)
            for (const char mask : {'\x01', '\x80', '\xff'})
                stillRead += versionIn(patched(whole, offset, QByteArray(1, char(whole[offset] ^ mask))))
                    == QLatin1String("1.2.3.4");
        QVERIFY(stillRead > 0 && stillRead < 3 * whole.size());
    }

    void executableOfARealLinker()
    {
        const QString version = QStringLiteral("2018.1.0.4711");
        const QString compiler = QStandardPaths::findExecutable(QStringLiteral("x86_64-w64-mingw32-gcc"));
        const QString resourceCompiler =
            QStandardPaths::findExecutable(QStringLiteral("x86_64-w64-mingw32-windres"));
        if (compiler.isEmpty() || resourceCompiler.isEmpty())
            QSKIP("needs the mingw-w64 cross compiler");
        const auto writeSource = [this](const char* name, const QString& content) {
            QFile file(m_folder.filePath(QLatin1String(name)));
            return file.open(QIODevice::WriteOnly) && file.write(content.toLatin1()) > 0;
        };
        QVERIFY(writeSource("main.c", QStringLiteral("int start(void) { return 0; }\n")));
        QVERIFY(
            writeSource("version.rc",
                        QStringLiteral("1 VERSIONINFO\nFILEVERSION 9,9,9,9\n{\n"
                                       " BLOCK \"StringFileInfo\" { BLOCK \"040904E4\" {\n"
                                       "  VALUE \"CompanyName\", \"x\"\n  VALUE \"FileVersion\", \"%1\"\n"
                                       "  VALUE \"ProductVersion\", \"1.0\" } }\n"
                                       " BLOCK \"VarFileInfo\" { VALUE \"Translation\", 0x409, 1252 }\n}\n")
                            .arg(version)));
        const auto run = [this](const QString& program, const QStringList& arguments) {
            QProcess process;
            process.setWorkingDirectory(m_folder.path());
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1600000000"));
            process.setProcessEnvironment(environment);
            process.start(program, arguments);
            return process.waitForFinished() && process.exitCode() == 0;
        };
        QVERIFY(run(resourceCompiler, {QStringLiteral("version.rc"), QStringLiteral("version.o")}));
        QVERIFY(run(compiler,
                    {QStringLiteral("-nostdlib"), QStringLiteral("-Wl,-estart"), QStringLiteral("main.c"),
                     QStringLiteral("version.o"), QStringLiteral("-o"), QStringLiteral("real.exe")}));
        const QString path = m_folder.filePath(QStringLiteral("real.exe"));
        QCOMPARE(getFileVersionFromStringFileInfo(path), coVersionNumber(version));
        QCOMPARE(getLinkTimeStamp(path).toSecsSinceEpoch(), qint64(1600000000));
    }
};

KDQ_TEST_MAIN(TestNSystem)
#include "tst_nsystem.moc"
