#include "codeckoption.h"

QString coDeckOption::text() const
{
    if (kind == Comments)
        return tr("comments");
    if (keyword.isEmpty())
        return tr("lines without keyword");
    if (kind == Element || kind == Feature || kind == Nodal)
        return keyword + QLatin1Char(' ') + QString::number(id);
    return name.isEmpty() ? keyword : tr("%1 '%2'").arg(keyword, name);
}
