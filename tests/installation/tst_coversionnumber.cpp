#if __has_include(<sys/sysmacros.h>)
#include <sys/sysmacros.h>
#endif
#include "kdqtest.h"

#include <kdQCore/coVersionNumber>

#include <sys/types.h>

using Version = coVersionNumber;

class TestCoVersionNumber : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsTexts_data();
    void readsTexts();
    void formats_data();
    void formats();
    void ordering();
};

void TestCoVersionNumber::readsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("parts");
    const auto row = [](const char* text, const QVector<int>& parts) {
        QTest::newRow(text) << QString::fromUtf8(text) << parts;
    };
    row("2018.1", {2018, 1, 0, 0});
    row("", {0, 0, 0, 0});
    row("4.x.2", {4, 0, 2, 0});
    row("1.2.3.4.5", {1, 2, 3, 4});
    row("..3", {0, 0, 3, 0});
    row("-1.+2. 3 .0x10", {-1, 2, 3, 0});
    row("99999999999.2147483647.-2147483648", {0, 2147483647, -2147483647 - 1, 0});
}

void TestCoVersionNumber::readsTexts()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, parts);
    const Version version = Version::fromString(text);
    QCOMPARE((QVector<int>{version.major(), version.minor(), version.patchLevel(), version.revision()}),
             parts);
    QCOMPARE(Version(text), version);
    QCOMPARE(Version::fromString(version.toString(Version::AllParts)), version);
}

void TestCoVersionNumber::formats_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortened");
    QTest::newRow("major") << 0 << "4"
                           << "4.0.0.0";
    QTest::newRow("patch level") << 2 << "4.1.2"
                                 << "4.1.2.0";
    QTest::newRow("all") << 3 << "4.1.2.7"
                         << "4.1.2.7";
    QTest::newRow("beyond") << 4 << "4.1.2.7"
                            << "4.1.2.7";
}

void TestCoVersionNumber::formats()
{
    QFETCH(int, format);
    Version version;
    version.setMajor(4);
    version.setMinor(1);
    version.setPatchLevel(2);
    version.setRevision(7);
    QTEST(version.toString(static_cast<Version::e_Format>(format)), "text");
    QTEST(version.shortend(static_cast<Version::e_Format>(format)).toString(Version::AllParts), "shortened");
}

void TestCoVersionNumber::ordering()
{
    const QVector<Version> ascending{{-1, 5, 5, 5}, {},           {4, 0, 9, 9}, {4, 1, 0, 7},
                                     {4, 1, 0, 8},  {4, 1, 1, 0}, {5, 0, 0, 0}};
    for (int i = 0; i < ascending.size(); ++i) {
        for (int k = 0; k < ascending.size(); ++k) {
            const Version& a = ascending.at(i);
            const Version& b = ascending.at(k);
            QCOMPARE(a < b, i < k);
            QCOMPARE(a > b, i > k);
            QCOMPARE(a <= b, i <= k);
            QCOMPARE(a >= b, i >= k);
            QCOMPARE(a == b, i == k);
            QCOMPARE(a != b, i != k);
        }
    }
}

KDQ_TEST_MAIN(TestCoVersionNumber)
#include "tst_coversionnumber.moc"
