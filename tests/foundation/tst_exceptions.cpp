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

using nKaldoranMaterial::maDataError;
using nKaldoranMaterial::maValueError;
using nSystem::cError;
using nSystem::nWin32::cWindowsError;
using PositionException = kdTypedException<QPair<int, int>>;

static_assert(std::is_abstract_v<maDataError> && std::has_virtual_destructor_v<maDataError>);
static_assert(!std::is_base_of_v<std::exception, maDataError>);
static_assert(
    std::is_base_of_v<kdException, PositionException> && std::is_base_of_v<kdException, coIOException>);
static_assert(
    std::is_base_of_v<std::runtime_error, kdException> && std::is_base_of_v<std::runtime_error, cError>);
static_assert(std::is_base_of_v<cError, cWindowsError> && !std::is_base_of_v<kdException, cError>);
static_assert(
    std::is_nothrow_copy_constructible_v<kdException> && std::is_move_assignable_v<PositionException>);
static_assert(std::is_copy_assignable_v<maValueError> && std::is_move_constructible_v<cWindowsError>);

namespace {

/// Gives the process another local encoding while it lives.
class LocalEncoding {
public:
    explicit LocalEncoding(const char* name) : m_saved(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocalEncoding() { QTextCodec::setCodecForLocale(m_saved); }
    Q_DISABLE_COPY(LocalEncoding)

private:
    QTextCodec* m_saved;
};

} // namespace

class TestExceptions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void messageIsKeptInTheLocalEncoding_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("readBack");
        const QString text = QStringLiteral("Größe ≥ 5 µm");
        QTest::newRow("UTF-8") << QByteArray("UTF-8") << text << text.toUtf8() << text;
        QTest::newRow("one byte, with a substitute")
            << QByteArray("ISO-8859-1") << text << QByteArray("Gr\xf6\xdf\x65 ? 5 \xb5m")
            << QStringLiteral("Größe ? 5 µm");
    }

    void messageIsKeptInTheLocalEncoding()
    {
        QFETCH(QByteArray, encoding);
        QFETCH(QString, message);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, readBack);
        const LocalEncoding local(encoding.constData());
        const kdException exception(message);
        QCOMPARE(QByteArray(exception.what()), bytes);
        QCOMPARE(exception.getErrorMessage(), readBack);
        QCOMPARE(QString(exception), readBack);
        QCOMPARE(QByteArray(cError(message).what()), bytes);
        QCOMPARE(cError(message).message(), readBack);
        QCOMPARE(QByteArray(coIOException(message).what()), bytes);
    }

    void withoutMessage()
    {
        const kdException exception;
        QVERIFY(QByteArray(exception.what()).isEmpty());
        QVERIFY(exception.getErrorMessage().isEmpty());
        QVERIFY(QString(exception).isEmpty());
        QVERIFY(exception.nonHTMLErrorMessage().isEmpty());
    }

    void markupIsForTheMessageBoxOnly()
    {
        const kdException exception(QStringLiteral("<p>File <b>a&amp;b</b> is missing.</p><p>Größe: 5</p>"));
        QCOMPARE(exception.nonHTMLErrorMessage(), QStringLiteral("File a&b is missing.\nGröße: 5"));
        QVERIFY(exception.getErrorMessage().startsWith(QLatin1String("<p>File <b>")));
    }

    void payloadSurvivesThrowingAndCopying()
    {
        try {
            throw PositionException(QStringLiteral("bad cell"), {7, 2});
        } catch (const kdException& caught) {
            const auto* position = dynamic_cast<const PositionException*>(&caught);
            QVERIFY(position);
            const PositionException copy = *position;
            QCOMPARE(copy.payload(), qMakePair(7, 2));
            QCOMPARE(copy.getErrorMessage(), QStringLiteral("bad cell"));
        }
    }

    void systemErrorText_data()
    {
        QTest::addColumn<qulonglong>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("known") << qulonglong(ENOENT) << nPlatform::systemErrorText(ENOENT);
        QTest::newRow("unknown") << 987654ULL << QString();
    }

    void systemErrorText()
    {
        QFETCH(qulonglong, code);
        QFETCH(QString, text);
        const cWindowsError error(QStringLiteral("Öffnen"), static_cast<unsigned long>(code));
        QCOMPARE(error.message(), QStringLiteral("Öffnen ") + text);
        QCOMPARE(error.message().endsWith(QLatin1Char('\n')), !text.isEmpty());
    }

    void materialErrorIsNoStandardException()
    {
        try {
            throw maValueError(QStringLiteral("E < 0"), -7);
        } catch (const std::exception&) {
            QFAIL("caught as a standard exception");
        } catch (const maDataError& caught) {
            QCOMPARE(caught.message(), QStringLiteral("E < 0"));
            const auto* value = dynamic_cast<const maValueError*>(&caught);
            QVERIFY(value);
            const maValueError copy = *value;
            QCOMPARE(copy.text(), QStringLiteral("E < 0"));
            QCOMPARE(copy.value(), -7);
        }
    }
};

KDQ_TEST_MAIN(TestExceptions)
#include "tst_exceptions.moc"
