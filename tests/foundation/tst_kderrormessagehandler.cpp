#include "kdqtest.h"

#include <kdQCore/kdErrorMessageHandler>

namespace {

class Collector : public kdErrorMessageHandler {
public:
    explicit Collector(const QStringList& messages = {})
    {
        for (const QString& message : messages)
            addErrorMessage(message);
    }
    using kdErrorMessageHandler::addErrorMessage;
    using kdErrorMessageHandler::clearErrorMessages;
};

} // namespace

class TestKdErrorMessageHandler : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void joinsItsMessages()
    {
        const QString a = QStringLiteral("A");
        QCOMPARE(Collector().getErrorString(a), QString());
        QCOMPARE(Collector({a}).getErrorString(QStringLiteral(", ")), a);
        Collector collector({QString(), a, a});
        QCOMPARE(collector.getErrorString(QStringLiteral(", ")), QStringLiteral(", A, A"));
        QCOMPARE(collector.errorCount(), 3); // an empty one counts
        collector.clearErrorMessages();
        QVERIFY(!collector.hasErrors());
        collector.addErrorMessage(a);
        QCOMPARE(collector.getErrorMessages(), QStringList{a});
    }
};

KDQ_TEST_MAIN(TestKdErrorMessageHandler)
#include "tst_kderrormessagehandler.moc"
