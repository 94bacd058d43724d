#include "xmltext_p.h"

namespace {

bool isAllowedInXml(ushort c)
{
    return c >= 0x20 ? c < 0xfffe : (c == '\t' || c == '\n' || c == '\r');
}

} // namespace

QString textAllowedInXml(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || !isAllowedInXml(c.unicode()))
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}
