#include "codeckfinding.h"

QString coDeckFinding::toString() const
{
    QString result;
    if (line > 0 && column > 0)
        result = tr("line %1, column %2: ").arg(QString::number(line), QString::number(column));
    else if (line > 0)
        result = tr("line %1: ").arg(line);
    result += severity == Error ? tr("error: ") : tr("warning: ");
    if (!option.isEmpty())
        result += option + QLatin1String(": ");
    return result + text;
}
