#include "nmarc.h"

#include <QString>

#include <algorithm>

namespace nMarc {

int packedNumber(const QList<int>& digits)
{
    QString text;
    for (int digit : digits)
        if (digit >= 0 && digit <= 9)
            text.append(QLatin1Char(static_cast<char>('0' + digit)));
    std::sort(text.begin(), text.end());
    return text.toInt();
}

} // namespace nMarc
