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
    void readsTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("read");
        const auto row = [](const char* text, const char* read) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(read);
        };
        row("2018.1", "2018.1.0.0");
        row("", "0.0.0.0");
        row("4.x.2", "4.0.2.0");
        row("1.2.3.4.5", "1.2.3.4");
        row("-1.+2. 3 .0x10", "-1.2.3.0");
        row("99999999999.2147483647.-2147483648", "0.2147483647.-2147483648.0");
    }

    void readsTexts()
    {
        QFETCH(QString, text);
        QTEST(Version(text).toString(), "read");
    }

    void formats()
    {
        Version version;
        version.setMajor(4);
        version.setMinor(1);
        version.setPatchLevel(2);
        version.setRevision(7);
        const char* const texts[] = {"4", "4.1", "4.1.2", "4.1.2.7", "4.1.2.7"}; // the last one is no format
        for (int format = 0; format < 5; ++format) {
            const auto asked = static_cast<Version::e_Format>(format);
            QCOMPARE(version.toString(asked), QLatin1String(texts[format]));
            QCOMPARE(version.shortend(asked), Version(QString::fromLatin1(texts[format])));
        }
    }

    void ordering()
    {
        const QVector<Version> ascending{{-1, 5, 5, 5}, {},           {4, 0, 9, 9}, {4, 1, 0, 7},
                                         {4, 1, 0, 8},  {4, 1, 1, 0}, {5, 0, 0, 0}};
        for (int i = 0; i < ascending.size(); ++i) {
            for (int k = 0; k < ascending.size(); ++k) {
                const Version& a = ascending.at(i);
                const Version& b = ascending.at(k);
                QVERIFY((a < b) == (i < k) && (a > b) == (i > k));
                QVERIFY((a <= b) == (i <= k) && (a >= b) == (i >= k));
                QVERIFY((a == b) == (i == k) && (a != b) == (i != k));
            }
        }
    }
};

KDQ_TEST_MAIN(TestCoVersionNumber)
#include "tst_coversionnumber.moc"
