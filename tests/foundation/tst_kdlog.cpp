#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/kdLog>

class TestKdLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sinkSeesEveryPartOfALine()
    {
        LogCapture log;
        KD_LOG(kdLog::Fault, kdLog::Socket, QStringLiteral("Größe %1"));
        QVERIFY(log.contains(kdLog::Fault, kdLog::Socket, QStringLiteral("Größe %1")));
        QCOMPARE(log.records().constFirst().file, QStringLiteral("tst_kdlog.cpp"));
    }
};

KDQ_TEST_MAIN(TestKdLog)
#include "tst_kdlog.moc"
