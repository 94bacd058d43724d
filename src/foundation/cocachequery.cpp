#include "cocachequery.h"

coCacheQuery::coCacheQuery(bool wildcarded) : m_isWildcarded(wildcarded) { }

coCacheQuery::~coCacheQuery() = default;

bool coCacheQuery::match(const coCacheItem*) const
{
    return false;
}

bool coCacheQuery::isWildcarded() const
{
    return m_isWildcarded;
}

void coCacheQuery::setWildcarded(bool wildcarded)
{
    m_isWildcarded = wildcarded;
}
