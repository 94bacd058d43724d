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
    void joinsItsMessages_data()
    {
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QString>("joined");
        QTest::newRow("none") << QStringList() << QString();
        QTest::newRow("one") << QStringList{QStringLiteral("A")} << "A";
        QTest::newRow("two") << QStringList{QStringLiteral("A"), QStringLiteral("B")} << "A, B";
        QTest::newRow("an empty one counts") << QStringList{QString(), QStringLiteral("B")} << ", B";
    }

    void joinsItsMessages()
    {
        QFETCH(QStringList, messages);
        QFETCH(QString, joined);
        Collector collector(messages);
        QCOMPARE(collector.getErrorString(QStringLiteral(", ")), joined);
        QCOMPARE(collector.getErrorMessages(), messages);
        QCOMPARE(collector.errorCount(), messages.size());
        QCOMPARE(collector.hasErrors(), !messages.isEmpty());
        collector.clearErrorMessages();
        QVERIFY(!collector.hasErrors());
        collector.addErrorMessage(QStringLiteral("new"));
        QCOMPARE(collector.getErrorString(QString()), QStringLiteral("new"));
    }
};

KDQ_TEST_MAIN(TestKdErrorMessageHandler)
#include "tst_kderrormessagehandler.moc"
