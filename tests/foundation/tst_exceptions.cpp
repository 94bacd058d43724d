#include "kdqtest.h"
#include "platform.h"

#include <kdQCore/cError>
#include <kdQCore/coIOException>
#include <kdQCore/kdErrorMessageHandler>
#include <kdQCore/kdException>
#include <kdQCore/kdTypedException>
#include <kdQCore/maDataError>

#include <QTextCodec>

#include <cerrno>
#include <tuple>
#include <type_traits>

using nKaldoranMaterial::maDataError;
using nKaldoranMaterial::maValueError;
using nSystem::cError;
using nSystem::nWin32::cWindowsError;
using PositionException = kdTypedException<QPair<int, int>>;

static_assert(!std::is_base_of_v<std::exception, maDataError> && !std::is_base_of_v<kdException, cError>);

namespace {

class Collector : public kdErrorMessageHandler {
public:
    using kdErrorMessageHandler::addErrorMessage;
    using kdErrorMessageHandler::clearErrorMessages;
};

} // namespace

class TestExceptions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void messageIsKeptInTheLocalEncoding()
    {
        const QString message = S("Größe ≥ 5 µm");
        QTextCodec* const former = QTextCodec::codecForLocale();
        const auto restore = qScopeGuard([former] { QTextCodec::setCodecForLocale(former); });
        for (const auto& [encoding, bytes, readBack] :
             {std::make_tuple("UTF-8", message.toUtf8(), message),
              std::make_tuple("ISO-8859-1", QByteArray("Gr\xf6\xdf\x65 ? 5 \xb5m"), S("Größe ? 5 µm"))}) {
            QTextCodec::setCodecForLocale(QTextCodec::codecForName(encoding));
            QCOMPARE(QByteArray(kdException(message).what()), bytes);
            QCOMPARE(kdException(message).getErrorMessage(), readBack);
            QCOMPARE(QByteArray(cError(message).what()), bytes);
            QCOMPARE(cError(message).message(), readBack);
            QCOMPARE(QByteArray(coIOException(message).what()), bytes);
        }
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

    void collectedMessages()
    {
        Collector collector;
        QCOMPARE(collector.getErrorString(S(", ")), QString());
        for (const QString& message : {QString(), S("A"), S("A")}) // an empty one counts
            collector.addErrorMessage(message);
        Collector copy;
        copy = collector;
        collector.clearErrorMessages();
        QVERIFY(!collector.hasErrors());
        QCOMPARE(copy.getErrorString(S(", ")), S(", A, A"));
        QCOMPARE(copy.errorCount(), 3);
    }
};

KDQ_TEST_MAIN(TestExceptions)
#include "tst_exceptions.moc"
