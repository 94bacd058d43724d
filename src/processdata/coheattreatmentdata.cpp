#include "coheattreatmentdata.h"

#include <QSet>

#include <algorithm>

coHeatTreatmentData::coHeatTreatmentData(nHeatTreatment::e_FieldOfApplication field) : m_field(field) { }

coHeatTreatmentData::coHeatTreatmentData(const coHeatTreatmentData& other) : m_field(other.m_field)
{
    QList<StagePointer> stages;
    for (const StagePointer& stage : other.m_stages)
        stages.append(StagePointer(stage->clone().release()));
    setStages(stages);
}

coHeatTreatmentData::coHeatTreatmentData(coHeatTreatmentData&& other) noexcept = default;

coHeatTreatmentData& coHeatTreatmentData::operator=(const coHeatTreatmentData& other)
{
    if (this != &other)
        *this = coHeatTreatmentData(other);
    return *this;
}

coHeatTreatmentData& coHeatTreatmentData::operator=(coHeatTreatmentData&& other) noexcept = default;

coHeatTreatmentData::~coHeatTreatmentData() = default;

coEnum coHeatTreatmentData::fieldOfApplication() const
{
    return {nHeatTreatment::FieldOfApplicationEnumData, m_field, nHeatTreatment::InvalidField};
}

void coHeatTreatmentData::setStages(const QList<StagePointer>& stages)
{
    m_stages.clear();
    m_stagesByIndex.clear();
    for (const StagePointer& stage : stages) {
        if (stage.isNull())
            continue;
        m_stages.append(stage);
        if (!m_stagesByIndex.contains(stage->index()))
            m_stagesByIndex.insert(stage->index(), stage);
    }
}

QList<int> coHeatTreatmentData::getStageIndices() const
{
    QList<int> indices;
    QSet<int> seen;
    for (const StagePointer& stage : m_stages) {
        if (!seen.contains(stage->index()))
            indices.append(stage->index());
        seen.insert(stage->index());
    }
    return indices;
}

coHeatTreatmentStage::Information coHeatTreatmentData::getStageInfo(int index) const
{
    const StagePointer stage = getStage(index);
    return stage.isNull() ? coHeatTreatmentStage::Information() : stage->information();
}

QMap<int, bool> coHeatTreatmentData::stagesEnableStatus() const
{
    QMap<int, bool> status;
    for (auto it = m_stagesByIndex.begin(); it != m_stagesByIndex.end(); ++it)
        status.insert(it.key(), it.value()->isEnabled());
    return status;
}

bool coHeatTreatmentData::isValid() const
{
    return fieldOfApplication().isValid() && !m_stages.isEmpty() && m_stages.size() == m_stagesByIndex.size();
}

bool coHeatTreatmentData::ensureTableCopiedToProject(coPredefinedTableListModel* model) const
{
    bool areCopied = true;
    for (const StagePointer& stage : m_stages)
        areCopied = stage->ensureTableCopiedToProject(model) && areCopied;
    return areCopied;
}

bool operator==(const coHeatTreatmentData& a, const coHeatTreatmentData& b)
{
    const auto areEqual = [](const coHeatTreatmentData::StagePointer& first,
                             const coHeatTreatmentData::StagePointer& second) { return *first == *second; };
    return a.m_field == b.m_field
        && std::equal(a.m_stages.begin(), a.m_stages.end(), b.m_stages.begin(), b.m_stages.end(), areEqual);
}
