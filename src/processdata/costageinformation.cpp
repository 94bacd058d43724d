#include "costageinformation.h"

#include <QCoreApplication>

#include <tuple>

namespace nHeatTreatment {

namespace {

QString translated(const QString& text)
{
    return text.isEmpty() ? text : QCoreApplication::translate("nHeatTreatment", text.toUtf8().constData());
}

} // namespace

coStageInformation::coStageInformation(int index, e_StageType type, const QString& displayName)
    : m_index(index), m_type(type), m_displayName(displayName)
{
}

QString coStageInformation::translatedDisplayName() const
{
    return translated(m_displayName);
}

QString coStageInformation::translatedWhatsThis() const
{
    return translated(m_whatsThis);
}

bool operator==(const coStageInformation& a, const coStageInformation& b)
{
    const auto fields = [](const coStageInformation& i) {
        return std::tie(i.m_index, i.m_type, i.m_isTimeStepLengthUsed, i.m_displayName, i.m_whatsThis,
                        i.m_optimisationIdentifier, i.m_defaultAnalysisPasses, i.m_defaultIncrements);
    };
    return fields(a) == fields(b);
}

} // namespace nHeatTreatment
