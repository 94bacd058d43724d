// The cache: results that are kept for as long as there is room.
#include <kdQCore/coCache>

#include <QTextStream>

class ResultQuery : public coCacheQuery {
public:
    explicit ResultQuery(int step) : m_step(step) { }
    QString key() const override { return QString::number(m_step); }

private:
    int m_step;
};

class ResultItem : public coCacheItem {
public:
    ResultItem(const ResultQuery& query, const QByteArray& values) : coCacheItem(query), m_values(values) { }
    qint64 size() const override { return m_values.size(); }
    const QByteArray& values() const { return m_values; }

private:
    QByteArray m_values;
};

/// The item belongs to the cache and is good until the next put().
const QByteArray& resultOf(int step, coCache& cache, QTextStream& out)
{
    const ResultQuery query(step);
    auto* item = static_cast<ResultItem*>(cache.get(&query));
    if (!item) {
        out << "loading " << step << "\n";
        item = new ResultItem(query, QByteArray(1000, 'x'));
        cache.put(item);
    }
    return item->values();
}

int main()
{
    QTextStream out(stdout);
    coCache cache(2500); // bytes: room for two
    for (int step : {1, 2, 1, 3, 1, 2})
        resultOf(step, cache, out);
    out << cache.count() << " items, " << cache.size() << " bytes\n";
    return 0;
}
