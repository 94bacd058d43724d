#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/kdLog>

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>

namespace {

void say(const char* text)
{
    KD_LOG(kdLog::Trace, kdLog::General, QString::fromLatin1(text));
}

class CallbackSink : public kdLog::Sink {
public:
    explicit CallbackSink(std::function<void()> callback) : m_callback(std::move(callback)) { attach(); }
    ~CallbackSink() override { detach(); }

    void received(const kdLog::Record&) override
    {
        ++m_count;
        const std::function<void()> callback = m_callback; // outlives this object
        callback();
    }
    int count() const { return m_count; }

private:
    std::function<void()> m_callback;
    int m_count = 0;
};

} // namespace

class TestKdLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { kdLog::setMinimumSeverity(kdLog::Trace); }

    void aSinkSeesEveryPartOfALine()
    {
        LogCapture log;
        KD_LOG(kdLog::Fault, kdLog::Socket, S("Größe %1"));
        const int line = __LINE__ - 1;
        kdLog::write(kdLog::Trace, kdLog::InterProcessCom, "C:\\src\\coPaths.cpp", 1, S("a"));
        kdLog::write(kdLog::Severity(1000), kdLog::Tag(99), "/src/", -1, S("b")); // out of range
        kdLog::write(kdLog::Severity(-5), kdLog::Tag(-1), nullptr, 0, S("c"));
        kdLog::write(kdLog::Notice, kdLog::General, QByteArray(5000, 'X').constData(), 7, S("d"));
        QStringList seen;
        for (const kdLog::Record& record : log.records())
            seen.append(S("%1 %2|%3:%4 %5")
                            .arg(QString::number(record.severity), QLatin1String(kdLog::tagText(record.tag)),
                                 record.file, QString::number(record.line), record.text));
        QCOMPARE(seen,
                 (QStringList{
                     S("4 Socket           |tst_kdlog.cpp:%1 Größe %2").arg(QString::number(line), S("%1")),
                     S("0 InterProcessCom  |copaths.cpp:1 a"), S("6 General          |:-1 b"),
                     S("0 General          |:0 c"),
                     S("3 General          |%1:7 d").arg(QString(127, QLatin1Char('x')))}));
    }

    void textIsBuiltOnlyForThoseWhoWantIt()
    {
        int built = 0;
        const auto text = [&built] {
            ++built;
            return S("text");
        };
        kdLog::setMinimumSeverity(kdLog::Fault);
        KD_LOG(kdLog::Notice, kdLog::General, text());
        QCOMPARE(built, 0);
        KD_LOG(kdLog::Fault, kdLog::General, text());
        QCOMPARE(built, 1);
        LogCapture log;
        KD_LOG(kdLog::Trace, kdLog::General, text());
        QCOMPARE(built, 2);
        QCOMPARE(log.records().size(), 1);
    }

    void aSinkThatLogsGetsNoEcho()
    {
        LogCapture other;
        CallbackSink sink([] { say("from the sink"); });
        say("from outside");
        QCOMPARE(sink.count(), 1);
        QCOMPARE(other.texts(), QStringList{S("from outside")});
    }

    void aSinkThatThrowsHurtsNobody()
    {
        CallbackSink sink([] { throw std::runtime_error("sink"); });
        LogCapture next;
        say("first");
        say("second");
        QCOMPARE(next.records().size(), 2);
    }

    void sinksComeAndGoDuringADelivery()
    {
        std::unique_ptr<LogCapture> later(new LogCapture);
        std::unique_ptr<LogCapture> fresh;
        std::unique_ptr<CallbackSink> self;
        LogCapture last;
        self.reset(new CallbackSink([&] {
            self.reset();
            later.reset();
            fresh.reset(new LogCapture);
        }));
        say("first");
        say("second");
        QVERIFY(!self && !later);
        QCOMPARE(last.records().size(), 2);
        QCOMPARE(fresh->texts(), QStringList{S("second")});
    }

    void threadsWriteWhileSinksComeAndGo()
    {
        LogCapture whole;
        std::atomic<int> seen{0};
        kdqInThreads(3, [&seen](int thread) {
            for (int i = 0; i < 200; ++i) {
                if (thread < 2) {
                    say("line");
                    continue;
                }
                LogCapture passing;
                say("own");
                seen += passing.texts().contains(S("own"));
            }
        });
        QCOMPARE(seen.load(), 200);
        QCOMPARE(whole.records().size(), 600);
    }
};

KDQ_TEST_MAIN(TestKdLog)
#include "tst_kdlog.moc"
