#include "kdqtest.h"
#include "kdreporterthrottle_p.h"

#include <kdQCore/kdReporter>
#include <kdQCore/kdReporterInterface>
#include <kdQCore/streamReporter>

#include <QProcess>

namespace {

qint64 fakeTime = 0;

class Producer : public kdReporterInterface {
public:
    using kdReporterInterface::kdReporterInterface;
    using kdReporterInterface::messageReceivers;
};

/// Writes every signal of a reporter down, in a list that outlives it.
void record(kdReporter& reporter, QStringList& events)
{
    const auto note = [&events](const QString& what) {
        return [&events, what](const QString& text) { events.append(what + text); };
    };
    const auto noteLevel = [&events](const QString& text, int level) {
        events.append(S("message %1 ").arg(level) + text);
    };
    QObject::connect(&reporter, &kdReporter::signalErrorMessage, note(S("error ")));
    QObject::connect(&reporter, &kdReporter::signalMessage, noteLevel);
    QObject::connect(&reporter, &kdReporter::signalStartOperation, note(S("start ")));
    QObject::connect(&reporter, &kdReporter::signalProgress,
                     [add = note(S("progress "))](double f) { add(QString::number(f)); });
    QObject::connect(&reporter, &kdReporter::signalFinishOperation, note(S("finish ")));
}

/// What two reporters, who share the throttle, emit for a script: "+200" lets time pass, "s:text" starts,
/// "p:0.3" makes progress, "f:text" finishes, "e:text" and "m:text" are messages.
QString seenOf(const char* script)
{
    kdReporterThrottle::instance() = kdReporterThrottle();
    kdReporter first;
    kdReporter second;
    Producer producer(first);
    producer.startReportingTo(second);
    QStringList seen;
    record(first, seen);
    record(second, seen);
    const QStringList steps = QString::fromLatin1(script).split(QLatin1Char(','));
    for (const QString& step : steps) {
        const QString value = step.mid(2);
        const char kind = step.at(0).toLatin1();
        if (kind == '+')
            fakeTime += step.mid(1).toInt();
        else if (kind == 's')
            producer.startOperation(value);
        else if (kind == 'p')
            producer.progress(value.toDouble()); // which knows nan
        else if (kind == 'f')
            producer.finishOperation(value);
        else if (kind == 'e')
            producer.errorMessage(value);
        else
            producer.message(value, 2);
    }
    return seen.join(QLatin1Char(','));
}

/// Which of the receivers a, b, c and d (who is none at first) get a message although b changes something.
QString servedDespite(const QString& change)
{
    QString served;
    QMap<QChar, QPointer<kdReporter>> reporters;
    QScopedPointer<Producer> producer(new Producer);
    for (const QChar name : S("abcd")) {
        reporters[name] = new kdReporter;
        QObject::connect(reporters[name], &kdReporter::signalErrorMessage,
                         [&served, name] { served += name; });
        if (name != QLatin1Char('d'))
            producer->startReportingTo(*reporters[name]);
    }
    QObject::connect(reporters[QLatin1Char('b')], &kdReporter::signalErrorMessage, [&] {
        kdReporter* const operand = reporters.value(change.back());
        if (change.startsWith(S("leave")))
            producer->stopReportingTo(*operand);
        else if (change.startsWith(S("come")))
            producer->startReportingTo(*operand);
        else if (operand)
            delete operand;
        else {
            producer.reset();
            qDeleteAll(reporters.values());
        }
    });
    producer->errorMessage(S("x"));
    qDeleteAll(reporters.values());
    return producer && !producer->messageReceivers().isEmpty() ? S("the dead are still receivers") : served;
}

} // namespace

class TestKdReporter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        fakeTime = 1000000;
        kdReporterThrottle::instance() = kdReporterThrottle();
        kdReporterThrottle::setClock([] { return fakeTime; });
    }
    void cleanupTestCase() { kdReporterThrottle::setClock(nullptr); }

    void throttle()
    {
        QCOMPARE(seenOf("s:a,+5000,s:b,f:c"), S("start a,finish c,finish c"));
        // a signal starts the interval anew
        QCOMPARE(seenOf("s:a,+1000,p:0.3,+999,p:0.4,+1,p:0.5"), S("start a,progress 0.3,progress 0.5"));
        // a dropped call does not
        QCOMPARE(seenOf("s:a,+600,p:0.3,+400,p:0.4"), S("start a,progress 0.4"));
        QCOMPARE(seenOf("s:a,p:1,p:1"), S("start a,progress 1"));
        QCOMPARE(seenOf("p:1"), S(""));
        QCOMPARE(seenOf("s:a,p:1,+1000,p:0.4,p:1"), S("start a,progress 1,start a,progress 0.4,progress 1"));
        QCOMPARE(seenOf("s:a,f:b,+1000,p:0.4"), S("start a,finish b,finish b,start a,progress 0.4"));
        // finish starts the interval anew
        QCOMPARE(seenOf("s:a,+900,f:b,+999,p:0.4"), S("start a,finish b,finish b"));
        QCOMPARE(seenOf("s:a,+600,m:x,e:y,+400,p:0.5"),
                 S("start a,message 2 x,message 2 x,error y,error y,progress 0.5"));
        QCOMPARE(seenOf("s:a,+5000,p:nan,p:0.1"), S("start a,progress 0.1"));
    }

    void receiversKeepTheirOrderAndOccurOnce()
    {
        kdReporter a;
        kdReporter b;
        kdReporter c;
        Producer first(a);
        first.startReportingTo(b);
        first.startReportingTo(a);
        Producer second(c);
        second.startReportingTo(b);
        second.startReportingTo(first);
        second.startReportingTo(second);
        QCOMPARE(second.messageReceivers(), QList<kdReporter*>({&c, &b, &a}));

        second.stopReportingTo(first);
        QCOMPARE(second.messageReceivers(), QList<kdReporter*>{&c});
        QCOMPARE(first.messageReceivers(), QList<kdReporter*>({&a, &b}));
        first.stopReportingTo(first);
        QVERIFY(first.messageReceivers().isEmpty());
    }

    void theLinkCanBeMadeFromEitherEnd()
    {
        kdReporter reporter;
        QStringList seen;
        record(reporter, seen);
        Producer survivor;
        {
            Producer producer;
            reporter.startReceivingFrom(producer);
            reporter.startReceivingFrom(producer);
            producer.errorMessage(S("a"));
            reporter.stopReceivingFrom(producer);
            producer.errorMessage(S("b"));
            reporter.startReceivingFrom(producer);
            kdReporter passing;
            passing.startReceivingFrom(survivor);
        }
        QVERIFY(survivor.messageReceivers().isEmpty());
        QCOMPARE(seen, QStringList{S("error a")});
    }

    void changesDuringADelivery()
    {
        QCOMPARE(servedDespite(S("delete b")), S("abc")); // in its own slot
        QCOMPARE(servedDespite(S("delete c")), S("ab"));
        QCOMPARE(servedDespite(S("delete all")), S("ab"));
        QCOMPARE(servedDespite(S("leave c")), S("ab"));
        QCOMPARE(servedDespite(S("come d")), S("abc"));
    }

    /// The one slot that has work left after its first signal.
    void aReporterMayDieWhenProgressAnnouncesAnew()
    {
        auto* reporter = new kdReporter;
        const QPointer<kdReporter> guard(reporter);
        const Producer producer(*reporter);
        connect(reporter, &kdReporter::signalStartOperation, [&] { delete reporter; });
        producer.progress(0.5);
        QVERIFY(!guard);
        QVERIFY(producer.messageReceivers().isEmpty());
    }

    void streamReporterPrints()
    {
        QProcess process;
        process.start(QCoreApplication::applicationDirPath() + S("/loghelper"),
                      {S("application"), S("report")});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(kdqWithPlainLineEnds(process.readAllStandardOutput()),
                 QString::fromUtf8("Start: Erwärmen\nStart: again\n").toLocal8Bit()
                     + "Progress: 0.5 %\n\nProgress: 0.333333 %\n\nProgress: 1 %\n\nProgress: 1e-07 %\n\n"
                       "level 0\nlevel 1\nFinished: done\n");
        QCOMPARE(kdqWithPlainLineEnds(process.readAllStandardError()),
                 QString::fromUtf8("Error: zu heiß\n").toLocal8Bit());
    }
};

KDQ_TEST_MAIN(TestKdReporter)
#include "tst_kdreporter.moc"
