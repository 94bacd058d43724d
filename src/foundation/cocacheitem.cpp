#include "cocacheitem.h"

#include "cocache.h"
#include "cocacheclock_p.h"
#include "platform.h"

namespace {

coCacheClock::Clock currentClock = &nPlatform::monotonicMilliseconds;

} // namespace

qint64 coCacheClock::now()
{
    return currentClock();
}

void coCacheClock::setClock(Clock clock)
{
    currentClock = clock ? clock : &nPlatform::monotonicMilliseconds;
}

coCacheItem::coCacheItem(const coCacheQuery* query)
    : m_loaded(coCacheClock::now()), m_lastUsed(m_loaded), m_key(coCache::keyForQuery(query))
{
}

coCacheItem::coCacheItem(const coCacheQuery& query) : coCacheItem(&query) { }

coCacheItem::~coCacheItem() = default;

bool coCacheItem::isInUse() const
{
    return false;
}

QString coCacheItem::key(bool full) const
{
    if (full)
        return m_key;
    const QString separator = coCache::keySeparator();
    const int position = m_key.indexOf(separator);
    return position < 0 ? QString() : m_key.mid(position + separator.size());
}
