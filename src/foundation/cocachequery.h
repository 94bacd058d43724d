#pragma once

#include <kdqcore_export.h>

#include <QString>

class coCacheItem;

/// Describes what a caller wants from a coCache.
///
/// \code
/// class TableQuery : public coCacheQuery {
/// public:
///     explicit TableQuery(const QString& path) : m_path(path) { }
///     QString key() const override { return m_path; }
/// private:
///     QString m_path;
/// };
/// \endcode
///
/// Queries of different classes never mean the same item, whatever their keys. A wildcarded query stands for
/// many items and finds them by match(). A value type.
class KDQCORE_EXPORT coCacheQuery {
public:
    explicit coCacheQuery(bool wildcarded = false);
    coCacheQuery(const coCacheQuery&) = default;
    coCacheQuery& operator=(const coCacheQuery&) = default;
    virtual ~coCacheQuery();

    /// Tells the item from all others that queries of this class ask for; see also coCache::keyForQuery().
    virtual QString key() const = 0;
    /// Whether \a item is one that a wildcarded query stands for. The base matches none.
    virtual bool match(const coCacheItem* item) const;

    virtual bool isWildcarded() const;
    void setWildcarded(bool wildcarded);

private:
    bool m_isWildcarded;
};
