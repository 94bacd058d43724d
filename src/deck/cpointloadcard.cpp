#include "cpointloadcard.h"

#include "cardlines.h"

bool cPointLoadCard::write(CFEDatLineWriter& writer) const
{
    CardLines lines(writer);
    lines.add(writeComments(writer));
    const bool isListMissing = m_listOfNodesName.isEmpty();
    const bool isBodyInvalid = m_componentBodyId < 0;
    if (isListMissing)
        writeFailure(writer, QStringLiteral("Name for list of nodes is empty."));
    if (isBodyInvalid)
        writeFailure(writer, QStringLiteral("Not valid body id %1.").arg(m_componentBodyId));
    if (isListMissing || isBodyInvalid)
        return false;
    lines.keywordLine("point load");
    lines.ints({1, 0, 0}).end();
    lines.ints({1, 0, 0, 0, 0, 0}).text(QStringLiteral("ptld_%1").arg(uniqueLabel())).end();
    lines.add(writeForces(writer));
    lines.ints({2}).end();
    return lines.text(m_listOfNodesName).end().ok();
}

cPointLoadCard::~cPointLoadCard() = default;

QString cPointLoadCard::uniqueLabel() const
{
    return QString::number(m_componentBodyId) + QLatin1Char('_') + m_listOfNodesName;
}

bool cPointLoadCard::writeComments(CFEDatLineWriter& writer) const
{
    CardLines lines(writer);
    if (!m_componentName.isEmpty())
        lines.comment(QStringLiteral("Point load for component '%0'.").arg(m_componentName));
    if (!m_commentText.isEmpty())
        lines.comment(m_commentText);
    return lines.ok();
}

bool cPointLoadCard::writeFailure(CFEDatLineWriter& writer, const QString& reason) const
{
    if (m_componentName.isEmpty())
        return writer.writeCommentLine(QStringLiteral("Cannot write point load card: %1").arg(reason));
    return writer.writeCommentLine(
        QStringLiteral("Cannot write point load card for component '%0': %1").arg(m_componentName, reason));
}

bool cPointLoadCard::writeForces(CFEDatLineWriter& writer) const
{
    CardLines lines(writer);
    if (m_is3DProcess)
        return lines.reals({m_forceX, m_forceY, m_forceZ}).end().ints({0, 0, 0}).end().ok();
    return lines.reals({m_forceZ, m_forceX}).end().ints({0, 0}).end().ok();
}
