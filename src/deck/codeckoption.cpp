#include "codeckoption.h"

QString coDeckOption::text() const
{
    if (kind == Comments)
        return tr("comments");
    if (keyword.isEmpty())
        return tr("lines without keyword");
    const QString known = kind == Other ? keyword : keyword.toLower();
    if (kind == Element || kind == Feature || kind == Nodal)
        return known + QLatin1Char(' ') + QString::number(id);
    return name.isEmpty() ? known : tr("%1 '%2'").arg(known, name);
}
