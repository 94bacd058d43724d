#pragma once

#include "cocacheitem.h"
#include "cocachequery.h"

#include <kdQCore/kdUnitValue>

#include <QHash>
#include <QStringList>

#include <vector>

/// Keeps loaded objects (results, tables, images) under a text key, so that they need not be loaded again,
/// and evicts the least valuable ones where the sum of their sizes passes a limit.
///
/// \code
/// const TableQuery query(path);
/// auto* item = static_cast<TableItem*>(cache.get(&query));
/// if (!item) {
///     item = new TableItem(&query, load(path));
///     cache.put(item);
/// }
/// \endcode
///
/// The cache owns its items and deletes them when they are evicted, replaced or released; a pointer to one is
/// good until the next operation that may do so, unless the item reports itself in use. Items in use survive
/// pruning, even where the cache then stays above its maximum, but neither a replacement nor release().
///
/// The sizes of all items are asked whenever the whole is needed, as they may change, so put() and prune()
/// take time linear in the number of items; get() by a key takes none of that.
///
/// Has no lock: one thread uses a cache at a time.
class KDQCORE_EXPORT coCache {
public:
    enum e_PruningModes : int {
        eLeastRecentlyUsed = 0,  ///< evict by last use
        eLeastRecentlyLoaded = 1 ///< evict by the time of loading
    };

    /// The default maximum: 25 MiB.
    static constexpr double maxCacheSize = 26214400.0;

    coCache();
    /// \a maxSize in bytes.
    explicit coCache(qint64 maxSize);
    ~coCache();
    Q_DISABLE_COPY(coCache)

    /// "$#$"
    static QString keySeparator();
    /// The full key: the run-time type name of the query's class, the separator and the query's own key. The
    /// type name is the compiler's, so full keys are not for files. Empty for null.
    static QString keyForQuery(const coCacheQuery* query);
    /// The byte count in the largest of B, KiB, MiB and GiB in which it is 1 or more, else in bytes.
    static kdUnitValue findFittingUnit(qint64 bytes);

    /// False for a wildcarded query and for null.
    bool contains(const coCacheQuery* query) const;
    /// Sum of the sizes that the items report now.
    qint64 size() const;
    qint64 maxSize() const { return m_maxSize; }
    e_PruningModes pruningMode() const { return m_pruningMode; }
    /// How many items there are.
    int count() const { return m_items.size(); }
    /// Does nothing; a place to look at a cache in a debugger.
    void dbgPrintUsage() const;

    /// Prunes at once. A maximum of 0 keeps only items without size, items in use, and the latest put.
    void setMaxSize(qint64 maxSize);
    /// Takes effect at the next pruning. Items of equal age go in any order.
    void setPruningMode(e_PruningModes mode);

    /// Takes the item over, as used now, deletes a former item of the same key, in use or not, and prunes.
    /// The new item survives that. The item that is already there is only renewed; null is logged and
    /// ignored.
    void put(coCacheItem* item);
    /// The item of the query's key or, for a wildcarded query, the one longest in the cache that it matches,
    /// as used now; null where there is none.
    coCacheItem* get(const coCacheQuery* query);
    /// Evicts until the size is within the maximum, or only items in use are left.
    void prune();
    /// Deletes every item, in use or not.
    void release();

private:
    enum e_ReleasedPruned { eNotFound, eReleased };

    coCacheItem* find(const coCacheQuery* query) const;
    bool tryToFree(const QString& key);
    e_ReleasedPruned releaseOne(const QString& key);
    void insertOne(const QString& key, coCacheItem* item);
    void link(coCacheItem* item);
    void unlink(coCacheItem* item);

    void prune(const QStringList& keep);
    void createNewEvictionPriorityQueue();
    void insertIntoEvictionPriorityQueue(coCacheItem* item);
    void insertExistingItemsIntoEvictionPriorityQueue();
    coCacheItem* getNextItemForEviction();
    template <typename HeapOperation>
    void withEvictionOrder(HeapOperation operation);

    qint64 m_maxSize = static_cast<qint64>(maxCacheSize);
    e_PruningModes m_pruningMode = eLeastRecentlyUsed;
    QHash<QString, coCacheItem*> m_items; // by full key
    coCacheItem* m_first = nullptr;       // in the order of insertion
    coCacheItem* m_last = nullptr;
    std::vector<coCacheItem*> m_evictionQueue; // a heap; empty between prunings
};
