// A put into a full cache, which asks all sizes afresh, per item that the cache holds; and a lookup. Beside
// QCache, which is told every size once.

#include "duel.h"

#include <kdQCore/coCache>

#include <QCache>

#include <random>

namespace {

class Query : public coCacheQuery {
public:
    explicit Query(const QString& key) : m_key(key) { }
    QString key() const override { return m_key; }

private:
    QString m_key;
};

class Item : public coCacheItem {
public:
    using coCacheItem::coCacheItem;
    qint64 size() const override { return 1; }
};

bool measure(int held)
{
    const int puts = 4000000 / held;
    constexpr int lookups = 100000;
    volatile qint64 sink = 0; // keeps the work
    QVector<QString> keys;
    for (int i = 0; i < held + puts; ++i)
        keys.append(QStringLiteral("results/step/%1").arg(i));
    std::mt19937 random(5);

    // Neither the filling nor the emptying is measured; every run puts keys that the cache does not hold.
    coCache cache(held);
    QCache<QString, int> peer(held);
    int next = 0;
    for (; next < held; ++next) {
        cache.put(new Item(Query(keys.at(next))));
        peer.insert(keys.at(next), new int(next));
    }
    // Ages in no order, as lookups leave them.
    for (int i = 0; i < held; ++i) {
        const Query query(keys.at(int(random() % unsigned(held))));
        cache.get(&query)->setLastUsed(qint64(random()));
    }

    const int size = keys.size();
    const auto title = std::to_string(held) + " items";
    Duel putting("A put into a full cache of " + title, double(puts));
    putting.add("QCache", [&, peerNext = next]() mutable {
        for (int i = 0; i < puts; ++i, ++peerNext)
            peer.insert(keys.at(peerNext % size), new int(i));
    });
    double nanoseconds = 1e9;
    putting.add("coCache", [&, ourNext = next]() mutable {
        const std::clock_t start = std::clock();
        for (int i = 0; i < puts; ++i, ++ourNext)
            cache.put(new Item(Query(keys.at(ourNext % size))));
        nanoseconds =
            std::min(nanoseconds, double(std::clock() - start) / CLOCKS_PER_SEC / puts / held * 1e9);
    });
    putting.run(5);
    constexpr double most = 25.0;
    std::printf("  %s a put into %d items costs %.2f ns per item (to hold: %.2f)\n",
                nanoseconds <= most ? "ok  " : "LOW ", held, nanoseconds, most);

    Duel finding("A lookup that renews, among " + title, lookups);
    finding.add("QCache", [&] {
        for (int i = 0; i < lookups; ++i)
            sink = peer.object(keys.at(i % size)) ? 1 : 0;
    });
    finding.add("coCache", [&] {
        for (int i = 0; i < lookups; ++i) {
            const Query query(keys.at(i % size));
            sink = cache.get(&query) ? 1 : 0;
        }
    });
    finding.run(5);
    return nanoseconds <= most;
}

} // namespace

int main()
{
    const bool small = measure(1000);
    return measure(10000) && small ? 0 : 1;
}
