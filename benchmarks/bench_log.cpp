// A line of the debug log against the same line through glog alone.
//
// glog can be set up once per process, with one prefix, so its bare form runs in a child of this program. The
// two take turns: each round is a batch of lines here and a batch there, and the ratio is the median over the
// rounds of the ratios within a round. Both write to one buffered file in a folder of their own.

#include <kdQCore/kdDebugLog>
#include <kdQCore/kdLog>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <glog/logging.h>

namespace {

constexpr int linesPerRound = 20000;
constexpr int rounds = 31;

/// Nanoseconds of processor time for each line.
template <typename WriteLine>
double measure(WriteLine writeLine)
{
    const std::clock_t start = std::clock();
    for (int i = 0; i < linesPerRound; ++i)
        writeLine(i);
    return double(std::clock() - start) / CLOCKS_PER_SEC * 1e9 / linesPerRound;
}

/// Answers every line on standard input with one measured round.
int runPeer(const char* program, const char* destination)
{
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    google::SetLogDestination(google::GLOG_INFO, destination);
    google::InitGoogleLogging(program);
    while (std::getchar() != EOF) {
        const double time =
            measure([](int) { LOG(INFO) << "Socket           Greeting received from the job monitor"; });
        std::printf("%.3f\n", time);
        std::fflush(stdout);
    }
    return 0;
}

class Peer {
public:
    Peer(const QString& folder, bool withZone)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("TZ"));
        if (withZone)
            environment.insert(QStringLiteral("TZ"), QStringLiteral(":/etc/localtime"));
        m_process.setProcessEnvironment(environment);
        m_process.start(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("peer"),
                         folder + (withZone ? QStringLiteral("/zone-") : QStringLiteral("/bare-"))});
    }
    ~Peer()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    double round()
    {
        m_process.write("\n");
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(-1))
                return 0.0;
        return m_process.readLine().toDouble();
    }

private:
    QProcess m_process;
};

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

struct Series {
    const char* name;
    QVector<double> times;
    QVector<double> toPeer;
};

void report(const Series& series)
{
    std::printf("%-44s %8.0f ns   %5.2fx\n", series.name, median(series.times), median(series.toPeer));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3)
        return runPeer(argv[0], argv[2]);
    QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    qputenv("LOCALAPPDATA", folder.path().toLocal8Bit());
    qunsetenv("TZ");
    kdDebugLog::createInstance(argc, argv, false);

    Peer peer(folder.path(), true);
    Peer peerWithoutZone(folder.path(), false);
    Series bare{"glog, TZ set (1.00x)", {}, {}};
    Series bareWithoutZone{"glog, TZ unset", {}, {}};
    Series ready{"KD_LOG, ready text", {}, {}};
    Series literal{"KD_LOG, QStringLiteral", {}, {}};
    Series built{"KD_LOG, QString::arg", {}, {}};
    Series off{"KD_LOG, below the minimum severity", {}, {}};
    const QString text = QStringLiteral("Greeting received from the job monitor");
    for (int round = 0; round <= rounds; ++round) {
        const double reference = peer.round();
        const auto note = [round, reference](Series& series, double time) {
            if (round == 0 || reference <= 0.0) // warming up
                return;
            series.times.append(time);
            series.toPeer.append(time / reference);
        };
        note(bare, reference);
        note(ready, measure([&text](int) { KD_LOG(kdLog::Trace, kdLog::Socket, text); }));
        note(bareWithoutZone, peerWithoutZone.round());
        note(literal, measure([](int) {
                 KD_LOG(kdLog::Trace, kdLog::Socket,
                        QStringLiteral("Greeting received from the job monitor"));
             }));
        note(built, measure([](int i) {
                 KD_LOG(kdLog::Trace, kdLog::Socket,
                        QStringLiteral("Greeting %1 received from the monitor").arg(i));
             }));
        kdLog::setMinimumSeverity(kdLog::Fault);
        note(off, measure([](int i) {
                 KD_LOG(kdLog::Trace, kdLog::Socket,
                        QStringLiteral("Greeting %1 received from the monitor").arg(i));
             }));
        kdLog::setMinimumSeverity(kdLog::Trace);
    }
    kdDebugLog::removeInstance();
    if (bare.times.isEmpty()) {
        std::fputs("The peer process did not answer.\n", stderr);
        return 1;
    }
    for (const Series* series : {&bare, &ready, &literal, &built, &off, &bareWithoutZone})
        report(*series);
    return 0;
}
