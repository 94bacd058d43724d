#include "kdqtest.h"
#include "realcheck.h"

#include <future>

class TestDatRealSoak : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hundredMillionValues()
    {
        constexpr unsigned seed = 41;
        constexpr int count = 50000000;
        qInfo("Twice %d values from seeds %u and %u", count, seed, seed + 1);
        const auto run = [](unsigned ownSeed) {
            std::mt19937_64 random(ownSeed);
            const RealCheck check;
            std::string difference;
            for (int i = 0; i < count && difference.empty(); ++i)
                difference = check.difference(RealCheck::next(random));
            return difference;
        };
        std::future<std::string> other = std::async(std::launch::async, run, seed + 1);
        const std::string difference = run(seed) + other.get();
        QVERIFY2(difference.empty(), difference.c_str());
    }
};

KDQ_TEST_MAIN(TestDatRealSoak)
#include "tst_datreal_soak.moc"
