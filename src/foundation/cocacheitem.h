#pragma once

#include <kdqcore_export.h>

#include <QString>

class coCacheQuery;

/// Something that was loaded for a query and is kept in a coCache. Subclasses hold the data and tell its
/// size.
///
/// \code
/// class TableItem : public coCacheItem {
/// public:
///     TableItem(const TableQuery* query, const kdDataTable& table) : coCacheItem(query), m_table(table) { }
///     qint64 size() const override { return qint64(m_table.rows()) * m_table.columns() * 8; }
///     bool isInUse() const override { return m_readers > 0; }
///     ...
/// \endcode
///
/// Times are milliseconds of a steady clock; only differences mean something. A cache owns the items that are
/// put into it; neither delete such an item nor assign to it. Its destructor must not use the cache.
class KDQCORE_EXPORT coCacheItem {
public:
    /// Loaded and last used now. Only the query's key is kept. A null query makes an item with an empty key.
    explicit coCacheItem(const coCacheQuery* query);
    explicit coCacheItem(const coCacheQuery& query);
    /// Copies belong to no cache.
    coCacheItem(const coCacheItem&) = default;
    coCacheItem& operator=(const coCacheItem&) = default;
    virtual ~coCacheItem();
    /// Bytes that the item holds now. The cache asks anew whenever it needs to know and takes a negative size
    /// for 0.
    virtual qint64 size() const = 0;
    /// Whether the item must survive pruning for now. The base never is in use.
    virtual bool isInUse() const;

    qint64 loaded() const { return m_loaded; }
    qint64 lastUsed() const { return m_lastUsed; }
    void setLastUsed(qint64 milliseconds) { m_lastUsed = milliseconds; }
    /// The full key, see coCache::keyForQuery(), or only the query's own part of it.
    QString key(bool full) const;

private:
    friend class coCache;

    qint64 m_loaded;
    qint64 m_lastUsed;
    QString m_key;
    // Neighbours within the cache, in the order of insertion. They stay with their object: copies have none.
    struct Neighbours {
        Neighbours() = default;
        Neighbours(const Neighbours&) { }
        Neighbours& operator=(const Neighbours&) { return *this; } // NOLINT: keeps its own

        coCacheItem* previous = nullptr;
        coCacheItem* next = nullptr;
    };
    Neighbours m_neighbours;
};

/// Orders a heap of items so that the least recently used one is on top.
struct coCacheELRUComparison {
    bool operator()(const coCacheItem* a, const coCacheItem* b) const
    {
        return a->lastUsed() > b->lastUsed();
    }
};

/// Orders a heap of items so that the least recently loaded one is on top.
struct coCacheELRLComparison {
    bool operator()(const coCacheItem* a, const coCacheItem* b) const { return a->loaded() > b->loaded(); }
};
