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

    void sinkSeesEveryPartOfALine()
    {
        LogCapture log;
        KD_LOG(kdLog::Fault, kdLog::Socket, QString::fromUtf8("Größe %1"));
        QVERIFY(log.contains(kdLog::Fault, kdLog::Socket, QString::fromUtf8("Größe %1")));
        QCOMPARE(log.records().constFirst().file, S("tst_kdlog.cpp"));
        QCOMPARE(log.records().constFirst().line, __LINE__ - 3);
    }

    void fileNames()
    {
        LogCapture log;
        QStringList files;
        for (const QByteArray& path :
             {QByteArray("C:\\src\\coPaths.cpp"), QByteArray("/src/"), QByteArray(5000, 'X')}) {
            kdLog::write(kdLog::Trace, kdLog::General, path.constData(), 1, QString());
            files.append(log.records().constLast().file);
        }
        QCOMPARE(files, (QStringList{S("copaths.cpp"), QString(), QString(127, QLatin1Char('x'))}));
    }

    void strangeArgumentsAreTamed()
    {
        QCOMPARE(QByteArray(kdLog::tagText(kdLog::InterProcessCom)), QByteArray("InterProcessCom  "));
        for (const int tag : {int(kdLog::General), 99, -1})
            QCOMPARE(QByteArray(kdLog::tagText(kdLog::Tag(tag))), QByteArray("General          "));
        LogCapture log;
        kdLog::write(kdLog::Severity(1000), kdLog::General, nullptr, -1, QString());
        kdLog::write(kdLog::Severity(-5), kdLog::General, nullptr, 0, QString());
        QCOMPARE(log.records().at(0).severity, kdLog::Critical);
        QCOMPARE(log.records().at(1).severity, kdLog::Trace);
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
        const LogCapture* const doomed = later.get();
        LogCapture last;
        self.reset(new CallbackSink([&] {
            self.reset();
            later.reset();
            fresh.reset(new LogCapture);
        }));
        QCOMPARE(doomed->records().size(), 0);
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
