#include "crestartcard.h"

#include <kdQCore/coDeckFields>

#include <QBuffer>

bool cRestartCard::write(CFEDatLineWriter& writer) const
{
    bool ok = m_increments > 0; // the card's own check; its lines are written all the same
    ok = writer.writeKeywordLine("restart") && ok;
    ok = writer.writeInt(m_increments) && ok;
    ok = writer.writeDouble(m_startTime) && ok;
    return writer.writeLineBreak() && ok;
}

bool cRestartCard::read(QByteArray lines, CFEDatLineWriter::datExtensionMode widths)
{
    QBuffer buffer(&lines);
    buffer.open(QIODevice::ReadOnly);
    coDeckScanner scanner(buffer);
    if (!scanner.next() || scanner.line().bytes() != "restart" || !scanner.next())
        return false;
    coDeckFields fields(scanner.line(), widths);
    int increments = 0;
    double startTime = 0;
    if (!fields.readInt(increments) || !fields.readReal(startTime) || !fields.atEnd())
        return false;
    m_increments = increments;
    m_startTime = startTime;
    return true;
}
