#include "kdqtest.h"
#include "platform.h"

#include <kdQCore/cError>
#include <kdQCore/coIOException>
#include <kdQCore/kdException>
#include <kdQCore/kdTypedException>
#include <kdQCore/maDataError>

#include <QTextCodec>

#include <cerrno>
#include <type_traits>

#define S(text) QStringLiteral(text)

using nKaldoranMaterial::maDataError;
using nKaldoranMaterial::maValueError;
using nSystem::cError;
using nSystem::nWin32::cWindowsError;
using PositionException = kdTypedException<QPair<int, int>>;

static_assert(!std::is_base_of_v<std::exception, maDataError> && !std::is_base_of_v<kdException, cError>);

class TestExceptions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void messageIsKeptInTheLocalEncoding_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("readBack");
        const QString text = S("Größe ≥ 5 µm");
        QTest::newRow("UTF-8") << QByteArray("UTF-8") << text.toUtf8() << text;
        QTest::newRow("one byte, with a substitute")
            << QByteArray("ISO-8859-1") << QByteArray("Gr\xf6\xdf\x65 ? 5 \xb5m") << S("Größe ? 5 µm");
    }

    void messageIsKeptInTheLocalEncoding()
    {
        QFETCH(QByteArray, encoding);
        QTextCodec* const former = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(encoding));
        const auto restore = qScopeGuard([former] { QTextCodec::setCodecForLocale(former); });
        const QString message = S("Größe ≥ 5 µm");
        const kdException exception(message);
        QTEST(QByteArray(exception.what()), "bytes");
        QTEST(exception.getErrorMessage(), "readBack");
        QTEST(QByteArray(cError(message).what()), "bytes");
        QTEST(cError(message).message(), "readBack");
        QTEST(QByteArray(coIOException(message).what()), "bytes");
    }

    void markupIsForTheMessageBoxOnly()
    {
        const kdException exception(S("<p>File <b>a&amp;b</b> is missing.</p><p>Größe: 5</p>"));
        QCOMPARE(exception.nonHTMLErrorMessage(), S("File a&b is missing.\nGröße: 5"));
        QVERIFY(exception.getErrorMessage().startsWith(QLatin1String("<p>File <b>")));
        QCOMPARE(kdException().nonHTMLErrorMessage(), QString());
    }

    void payloadSurvivesThrowingAndCopying()
    {
        try {
            throw PositionException(S("bad cell"), {7, 2});
        } catch (const kdException& caught) {
            const PositionException copy = dynamic_cast<const PositionException&>(caught);
            QCOMPARE(copy.payload(), qMakePair(7, 2));
            QCOMPARE(copy.getErrorMessage(), S("bad cell"));
        }
    }

    void systemErrorText()
    {
        const cWindowsError known(S("Öffnen"), ENOENT);
        QCOMPARE(known.message(), S("Öffnen ") + nPlatform::systemErrorText(ENOENT));
        QVERIFY(known.message().endsWith(QLatin1Char('\n')));
        QCOMPARE(cWindowsError(S("Öffnen"), 987654UL).message(), S("Öffnen "));
    }

    void materialErrorIsCaughtByItsBase()
    {
        try {
            throw maValueError(S("E < 0"), -7);
        } catch (const maDataError& caught) {
            QCOMPARE(caught.message(), S("E < 0"));
            QCOMPARE(dynamic_cast<const maValueError&>(caught).value(), -7);
        }
    }
};

KDQ_TEST_MAIN(TestExceptions)
#include "tst_exceptions.moc"
