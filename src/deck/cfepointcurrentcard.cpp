#include "cfepointcurrentcard.h"

#include "cardlines.h"

#include <kdQCore/kdLog>

namespace {

bool isMet(bool condition, const QString& text)
{
    if (!condition)
        KD_LOG_FAILED_ASSERT(text);
    return condition;
}

bool isCurrent(const kdUnitSystem& unit)
{
    return unit.dimension() == kdUnitSystem::ElectricCurrent || unit.dimension() == kdUnitSystem::None;
}

} // namespace

bool cFePointCurrentCard::write(CFEDatLineWriter& writer) const
{
    if (!arePreconditionsMet())
        return false;
    CardLines lines(writer);
    lines.keywordLine("point current");
    lines.ints({0, 0}).end();
    lines.ints({1, 0, 0, 0, 0, 0}).field(m_label).end();
    lines.reals({m_current.toSIUnit().value(), 0.0, 0.0}).end();
    lines.ints({m_tableId, 0, 0}).end();
    lines.ints({2}).end();
    return lines.field(m_controlNode).end().ok();
}

cFePointCurrentCard::~cFePointCurrentCard() = default;

void cFePointCurrentCard::setCurrent(const kdUnitValue& current)
{
    m_current = current;
    m_isInitialized = true;
}

void cFePointCurrentCard::setTableId(int id)
{
    m_tableId = id;
    m_isInitialized = true;
}

bool cFePointCurrentCard::arePreconditionsMet() const
{
    bool result = isMet(!m_label.isEmpty(),
                        QStringLiteral("Missing unique label that is referenced by the LOADCASE option."));
    result =
        isMet(m_isInitialized, QStringLiteral("Either current value of table id must be set.")) && result;
    result = isMet(!m_controlNode.isEmpty(), QStringLiteral("Missing control node.")) && result;
    return isMet(isCurrent(m_current.unitSystem()),
                 QStringLiteral("The current is given in '%1', which is not a unit of electric current.")
                     .arg(m_current.unitSystem().symbol()))
        && result;
}
