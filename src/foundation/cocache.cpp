#include "cocache.h"

#include "cocacheclock_p.h"
#include "kdlog.h"

#include <QStringBuilder>

#include <algorithm>
#include <iterator>
#include <limits>
#include <typeinfo>
#include <utility>

namespace {

qint64 sizeOf(const coCacheItem* item)
{
    return qMax<qint64>(0, item->size());
}

qint64 saturatedSum(qint64 a, qint64 b)
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    return a > most - b ? most : a + b;
}

} // namespace

coCache::coCache() = default;

coCache::coCache(qint64 maxSize) : m_maxSize(maxSize) { }

coCache::~coCache()
{
    release();
}

QString coCache::keySeparator()
{
    return QStringLiteral("$#$");
}

QString coCache::keyForQuery(const coCacheQuery* query)
{
    if (!query)
        return {};
    return QLatin1String(typeid(*query).name()) % keySeparator() % query->key();
}

kdUnitValue coCache::findFittingUnit(qint64 bytes)
{
    constexpr qint64 unitSizes[] = {1, 1024, 1048576, 1073741824};
    int unit = int(std::size(unitSizes)) - 1;
    while (unit > 0 && bytes < unitSizes[unit])
        --unit;
    return {double(bytes) / double(unitSizes[unit]), kdUnitSystem(kdUnitSystem::Information, unit)};
}

bool coCache::contains(const coCacheQuery* query) const
{
    return query && !query->isWildcarded() && m_items.contains(keyForQuery(query));
}

qint64 coCache::size() const
{
    qint64 total = 0;
    for (const coCacheItem* item = m_first; item; item = item->m_neighbours.next)
        total = saturatedSum(total, sizeOf(item));
    return total;
}

void coCache::dbgPrintUsage() const { }

void coCache::setMaxSize(qint64 maxSize)
{
    m_maxSize = maxSize;
    prune();
}

void coCache::setPruningMode(e_PruningModes mode)
{
    m_pruningMode = mode;
}

void coCache::put(coCacheItem* item)
{
    if (!item) {
        KD_LOG_FAILED_ASSERT(QStringLiteral("coCache::put: there is no item"));
        return;
    }
    const QString key = item->key(true);
    if (m_items.value(key) == item)
        unlink(item);
    else
        releaseOne(key);
    insertOne(key, item);
}

coCacheItem* coCache::get(const coCacheQuery* query)
{
    coCacheItem* item = find(query);
    if (item)
        item->setLastUsed(coCacheClock::now());
    return item;
}

coCacheItem* coCache::find(const coCacheQuery* query) const
{
    if (!query)
        return nullptr;
    if (!query->isWildcarded())
        return m_items.value(keyForQuery(query));
    coCacheItem* item = m_first;
    while (item && !query->match(item))
        item = item->m_neighbours.next;
    return item;
}

void coCache::prune()
{
    prune(QStringList());
}

void coCache::release()
{
    m_items.clear();
    m_last = nullptr;
    for (coCacheItem* item = std::exchange(m_first, nullptr); item;)
        delete std::exchange(item, item->m_neighbours.next);
}

bool coCache::tryToFree(const QString& key)
{
    const coCacheItem* item = m_items.value(key);
    return item && !item->isInUse() && releaseOne(key) == eReleased;
}

coCache::e_ReleasedPruned coCache::releaseOne(const QString& key)
{
    coCacheItem* item = m_items.take(key);
    if (!item)
        return eNotFound;
    unlink(item);
    delete item;
    return eReleased;
}

void coCache::insertOne(const QString& key, coCacheItem* item)
{
    item->setLastUsed(coCacheClock::now());
    m_items.insert(key, item);
    link(item);
    prune({key});
}

void coCache::link(coCacheItem* item)
{
    item->m_neighbours.previous = m_last;
    item->m_neighbours.next = nullptr;
    (m_last ? m_last->m_neighbours.next : m_first) = item;
    m_last = item;
}

void coCache::unlink(coCacheItem* item)
{
    (item->m_neighbours.previous ? item->m_neighbours.previous->m_neighbours.next : m_first) =
        item->m_neighbours.next;
    (item->m_neighbours.next ? item->m_neighbours.next->m_neighbours.previous : m_last) =
        item->m_neighbours.previous;
}

void coCache::prune(const QStringList& keep)
{
    qint64 total = size();
    if (total <= m_maxSize)
        return;
    createNewEvictionPriorityQueue();
    insertExistingItemsIntoEvictionPriorityQueue();
    while (total > m_maxSize && !m_evictionQueue.empty()) {
        const coCacheItem* item = getNextItemForEviction();
        const QString key = item->key(true);
        if (keep.contains(key) || m_items.value(key) != item)
            continue;
        const qint64 itemSize = sizeOf(item);
        if (tryToFree(key))
            total -= itemSize;
    }
    m_evictionQueue.clear();
}

void coCache::createNewEvictionPriorityQueue()
{
    m_evictionQueue.clear();
    m_evictionQueue.reserve(std::size_t(m_items.size()));
}

// Only collects: the heap is made of all at once.
void coCache::insertIntoEvictionPriorityQueue(coCacheItem* item)
{
    m_evictionQueue.push_back(item);
}

void coCache::insertExistingItemsIntoEvictionPriorityQueue()
{
    for (coCacheItem* item = m_first; item; item = item->m_neighbours.next)
        insertIntoEvictionPriorityQueue(item);
    withEvictionOrder(
        [this](auto order) { std::make_heap(m_evictionQueue.begin(), m_evictionQueue.end(), order); });
}

coCacheItem* coCache::getNextItemForEviction()
{
    withEvictionOrder(
        [this](auto order) { std::pop_heap(m_evictionQueue.begin(), m_evictionQueue.end(), order); });
    coCacheItem* item = m_evictionQueue.back();
    m_evictionQueue.pop_back();
    return item;
}

template <typename HeapOperation>
void coCache::withEvictionOrder(HeapOperation operation)
{
    if (m_pruningMode == eLeastRecentlyLoaded)
        operation(coCacheELRLComparison());
    else
        operation(coCacheELRUComparison());
}
