#include "cocacheclock_p.h"
#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coCache>
#include <kdQCore/coCachedString>

#include <limits>

namespace {

qint64 fakeTime = 0;

class Query : public coCacheQuery {
public:
    explicit Query(const QString& key, bool wildcarded = false) : coCacheQuery(wildcarded), m_key(key) { }
    QString key() const override { return m_key; }
    bool match(const coCacheItem* item) const override { return item->key(false).startsWith(m_key); }

private:
    QString m_key;
};

class Item : public coCacheItem {
public:
    Item(const QString& key, qint64 itemSize, bool isUsed = false)
        : coCacheItem(Query(key)), bytes(itemSize), inUse(isUsed)
    {
        ++alive;
    }
    Item(const Item& other) : coCacheItem(other), bytes(other.bytes) { ++alive; }
    ~Item() override { --alive; }
    Item& operator=(const Item&) = default;
    qint64 size() const override { return bytes; }
    bool isInUse() const override { return inUse; }

    static int alive;
    qint64 bytes = 0;
    bool inUse = false;
};

int Item::alive = 0;

QString name(int number)
{
    return QString::number(number);
}

bool holds(const coCache& cache, const QString& key)
{
    const Query query(key);
    return cache.contains(&query);
}

Item* get(coCache& cache, const QString& key)
{
    const Query query(key);
    return static_cast<Item*>(cache.get(&query));
}

/// What of four items stays; they are loaded in the order a, b, c, d; a is used once more at the end.
QString pruned(int maxSize, coCache::e_PruningModes mode, const QString& inUse)
{
    coCache cache;
    const QString letters = S("abcd");
    for (const QChar letter : letters) {
        ++fakeTime;
        cache.put(new Item(letter, 10, inUse.contains(letter)));
    }
    ++fakeTime;
    const bool isUsed = get(cache, S("a"))->lastUsed() == fakeTime;
    cache.setPruningMode(mode);
    cache.setMaxSize(maxSize);
    QString left;
    for (const QChar letter : letters)
        if (holds(cache, letter))
            left += letter;
    const bool fits = cache.size() == 10 * left.size() && Item::alive == left.size();
    return isUsed && fits ? left : S("wrong sizes or times");
}

} // namespace

class TestCoCache : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        fakeTime = 1000;
        coCacheClock::setClock([] { return fakeTime; });
    }

    void cleanup()
    {
        coCacheClock::setClock(nullptr);
        QCOMPARE(Item::alive, 0); // whatever a cache took over is gone with it
    }

    void keys()
    {
        const Query query(S("a$#$b%1"));
        const Item item(query.key(), 1);
        QCOMPARE(item.key(true), QString::fromLatin1(typeid(Query).name()) + S("$#$a$#$b%1"));
        QCOMPARE(item.key(true), coCache::keyForQuery(&query));
        QCOMPARE(item.key(false), query.key());
    }

    void units()
    {
        QCOMPARE(coCache::findFittingUnit(-2048).toString(), S("-2048 B"));
        QCOMPARE(coCache::findFittingUnit(1024).toString(), S("1 KiB"));
        QCOMPARE(coCache::findFittingUnit(coCache::maxCacheSize).toString(), S("25 MiB"));
        QCOMPARE(coCache::findFittingUnit(qint64(1) << 62).toString(), S("4294967296 GiB"));
    }

    void pruning()
    {
        const auto byUse = coCache::eLeastRecentlyUsed;
        const auto byLoad = coCache::eLeastRecentlyLoaded;
        QCOMPARE(pruned(40, byUse, S("")), S("abcd"));
        QCOMPARE(pruned(39, byLoad, S("")), S("bcd"));
        QCOMPARE(pruned(39, coCache::e_PruningModes(7), S("")), S("acd")); // goes by use
        QCOMPARE(pruned(20, byUse, S("b")), S("ab"));
        QCOMPARE(pruned(5, byUse, S("bd")), S("bd"));
        QCOMPARE(pruned(-1, byLoad, S("c")), S("c"));
    }

    void newItemSurvives()
    {
        coCache cache(0);
        cache.put(new Item(name(1), 10));
        cache.put(new Item(name(2), 10, true));
        cache.put(new Item(name(3), 100));
        QVERIFY(!holds(cache, name(1)) && holds(cache, name(2)) && holds(cache, name(3)));
        cache.put(new Item(name(2), 20)); // replaced although in use
        QVERIFY(!holds(cache, name(3)));
        QCOMPARE(cache.size(), 20);
        cache.release();
        QCOMPARE(cache.count(), 0);
    }

    void sameItemAndNone()
    {
        coCache cache(100);
        auto* item = new Item(name(1), 10);
        cache.put(item);
        cache.put(new Item(name(2), 10));
        ++fakeTime;
        cache.put(item);
        QCOMPARE(cache.count(), 2);
        QCOMPARE(item->lastUsed(), fakeTime);
        item->bytes = 1000; // an item may grow: the sum is taken anew
        QCOMPARE(cache.size(), 1010);
        cache.put(item);
        QCOMPARE(cache.size(), 1000);

        LogCapture log;
        cache.put(nullptr);
        QVERIFY(log.contains(kdLog::Fault, kdLog::FailedAssert, S("coCache::put: there is no item")));
        QVERIFY(!cache.contains(nullptr) && !cache.get(nullptr));
    }

    void impossibleSizes()
    {
        constexpr qint64 most = std::numeric_limits<qint64>::max();
        coCache cache(most);
        for (const qint64 size : {qint64(-5), most, most})
            cache.put(new Item(name(cache.count()), size));
        QCOMPARE(cache.size(), most);
        QCOMPARE(cache.count(), 3);
    }

    void copiesBelongToNoCache()
    {
        coCache cache;
        for (int i : {1, 2})
            cache.put(new Item(name(i), 10));
        coCache second;
        second.put(new Item(*get(cache, name(1))));
        *get(second, name(1)) = *get(cache, name(1));
        QCOMPARE(second.size(), 10);
        QCOMPARE(cache.size(), 20);
    }

    void wildcards()
    {
        coCache cache;
        for (const char* key : {"x/1", "y/1", "y/12"})
            cache.put(new Item(QString::fromLatin1(key), 1));
        ++fakeTime;
        const Query query(S("y/1"), true);
        const coCacheItem* found = cache.get(&query);
        QVERIFY(found);
        QCOMPARE(found->key(false), S("y/1"));
        QCOMPARE(found->lastUsed(), fakeTime);
        QVERIFY(!cache.contains(&query));
        QVERIFY(!get(cache, S("y"))); // without wildcards whole keys only
    }

    void cachedString()
    {
        coCachedString text;
        QVERIFY(!text.initialized());
        text = QString(); // known to be empty
        QVERIFY(text.initialized());
        text = S("path");
        QCOMPARE(QString(text), S("path"));
        text.setNull();
        QVERIFY(!text.initialized() && QString(text).isNull());
    }
};

KDQ_TEST_MAIN(TestCoCache)
#include "tst_cocache.moc"
