#include "kdqtest.h"
#include "peimagebuilder.h"
#include "platform.h"

#include <kdQCore/coVersionNumber>
#include <kdQCore/nSystem>

using namespace PeBuilder;
using nPlatform::DataFault;
using nSystem::cError;
using nSystem::nWin32::cWindowsError;
using nSystem::nWin32::getFileVersionFromStringFileInfo;
using nSystem::nWin32::getLinkTimeStamp;

namespace {

const QString sizeFailure = S("Could not get size of version info of file '%1'.");
const QString infoFailure = S("Could not get version info of file '%1'.");
const QString valueFailure = S("Failed to query version info value.");
const QString translationFailure = S("Failed to query version info translation values.");
const QString languageFailure = S("Resource language unknown.");
const QString executableFailure = S("File '%1' is not a valid Windows executable.");

QString systemText(DataFault fault)
{
    return nPlatform::systemErrorText(nPlatform::errorCodeOf(fault));
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
    const QString m_path = m_folder.filePath(S("Schweißen %1.exe"));

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
    void linkTimeStamp()
    {
        for (const bool pe32Plus : {true, false}) {
            QVERIFY(kdqWrite(m_path, image({}, pe32Plus, pe32Plus ? 0xfffffffeU : 1700000000U)));
            QCOMPARE(getLinkTimeStamp(m_path),
                     pe32Plus ? QDateTime({2106, 2, 7}, {6, 28, 14}, Qt::UTC)
                              : QDateTime({2023, 11, 14}, {22, 13, 20}, Qt::UTC));
            QCOMPARE(getLinkTimeStamp(m_path).timeSpec(), Qt::UTC);
        }
    }

    void fileVersion_data()
    {
        QTest::addColumn<QByteArray>("info");
        QTest::addColumn<QString>("version");
        const auto text = [](const char* name, const char* found, const char* version) {
            QTest::newRow(name) << usualVersionInfo(QString::fromLatin1(found))
                                << QString::fromLatin1(version);
        };
        text("commas and blanks", "1, 2, 0, 7", "1.2.0.7");
        text("a remark", "10.0.19041.1 (WinBuild.160101.0800)", "10.0.19041.1");
        text("empty", "", "0.0.0.0");
        const QString version = S("1.2.3.4");
        const QByteArray german = u16(0x407) + u16(0x4b0);
        const auto place = [&version](const char* name, std::initializer_list<QByteArray> children) {
            QTest::newRow(name) << versionInfo(children) << version;
        };
        place("translations first", {translations(german), strings("040704b0", version)});
        place("first of two translations",
              {strings("040704b0", version), translations(german + u16(0x409) + u16(0x4e4))});
        place("table of another language before",
              {node("StringFileInfo", 1, 0, {},
                    {node("040904e4", 1, 0, {}, {PeBuilder::text("FileVersion", S("9.9"))}),
                     node("040704b0", 1, 0, {}, {PeBuilder::text("FileVersion", version)})}),
               translations(german)});
        place("text length in bytes",
              {node("StringFileInfo", 1, 0, {},
                    {node("040704b0", 1, 0, {}, {node("FileVersion", 1, 16, utf16(version))})}),
               translations(german)});
    }

    void fileVersion()
    {
        QFETCH(QByteArray, info);
        QFETCH(QString, version);
        const QByteArray bytes = image(info);
        const QByteArray named = patched(image(info, false), sectionOffset(false) + 40, u32(0x80000010U));
        for (const QByteArray& file : {bytes, named}) {
            QVERIFY(kdqWrite(m_path, file));
            QCOMPARE(getFileVersionFromStringFileInfo(m_path), coVersionNumber(version));
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
        const QString version = S("1.2.3.4");
        const QByteArray usual = image(usualVersionInfo(version));
        const int section = sectionOffset();
        const QByteArray german = u16(0x407) + u16(0x4b0);
        QTest::newRow("text file") << QByteArray(500, 'x') << sizeFailure << bad;
        QTest::newRow("no version resource")
            << patched(usual, section + 16, u32(3)) << sizeFailure << missing;
        QTest::newRow("directory contains itself")
            << patched(usual, section + 24 + 44, u32(0x80000030U)) << sizeFailure << missing;
        QTest::newRow("empty data") << patched(usual, section + 76, u32(0)) << infoFailure << missing;
        QTest::newRow("file ends in the data") << usual.left(usual.size() - 4) << infoFailure << missing;
        QTest::newRow("no translations")
            << image(versionInfo({strings("040704b0", version)})) << translationFailure << missing;
        QTest::newRow("node that is longer than its parent")
            << image(patched(versionInfo({translations(german)}), 92, u16(0xffff))) << translationFailure
            << missing;
        QTest::newRow("empty list of translations")
            << image(versionInfo({strings("040704b0", version), translations({})})) << languageFailure
            << none;
        QTest::newRow("no texts in the language")
            << image(versionInfo({strings("040904b0", version), translations(german)})) << valueFailure
            << missing;
    }

    void versionFailures()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, context);
        QFETCH(int, fault);
        QVERIFY(kdqWrite(m_path, bytes));
        QString expected = context.contains(QLatin1String("%1")) ? context.arg(m_path) : context;
        if (fault >= 0)
            expected += QLatin1Char(' ') + systemText(DataFault(fault));
        bool fromSystem = false;
        QCOMPARE(failureOf([this] { getFileVersionFromStringFileInfo(m_path); }, &fromSystem), expected);
        QCOMPARE(fromSystem, fault >= 0);
    }

    void invalidExecutable()
    {
        const QByteArray good = image({});
        for (const QByteArray& bytes : {patched(good, 0, "ZM"), patched(good, 128, QByteArray("NE\0\0", 4)),
                                        patched(good, 60, u32(0xfffffff0U)), // signature beyond the end
                                        good.left(128 + 4 + 19)}) {
            QVERIFY(kdqWrite(m_path, bytes));
            bool fromSystem = true;
            QCOMPARE(failureOf([this] { getLinkTimeStamp(m_path); }, &fromSystem),
                     executableFailure.arg(m_path));
            QVERIFY(!fromSystem);
        }
    }

    void unreadableFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("context");
        const QString empty = m_folder.filePath(S("empty.exe"));
        QVERIFY(kdqWrite(empty));
        QTest::newRow("missing") << m_folder.filePath(S("missing.exe")) << S("Failed to open file '%1'.");
        QTest::newRow("folder") << m_folder.path() << S("Failed to open file '%1'.");
        QTest::newRow("empty") << empty << S("Failed to create file mapping for '%1'.");
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
};

KDQ_TEST_MAIN(TestNSystem)
#include "tst_nsystem.moc"
