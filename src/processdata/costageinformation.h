#pragma once

#include "nheattreatment.h"

#include <QString>

namespace nHeatTreatment {

/// What is known of a stage before a user has touched it. Stages share it and do not change it.
///
/// Texts are English here and in files; the translated ones are for showing. A value type.
class KDQCORE_EXPORT coStageInformation {
public:
    /// Index -1, type Heating, no texts.
    coStageInformation() = default;
    coStageInformation(int index, e_StageType type, const QString& displayName);

    /// Identifies the stage in its process and in files.
    int index() const { return m_index; }
    e_StageType type() const { return m_type; }

    QString displayName() const { return m_displayName; }
    /// What a user is told who asks what the stage is for.
    QString whatsThis() const { return m_whatsThis; }
    void setWhatsThis(const QString& text) { m_whatsThis = text; }
    /// In the language of the application, where it has a translation in the context "nHeatTreatment".
    QString translatedDisplayName() const;
    QString translatedWhatsThis() const;

    /// By which an optimisation names the stage's parameters; unique among all fields of application.
    QString optimisationIdentifier() const { return m_optimisationIdentifier; }
    void setOptimisationIdentifier(const QString& identifier) { m_optimisationIdentifier = identifier; }

    /// Whether the solver takes the time-step length of the stage.
    bool isTimeStepLengthUsed() const { return m_isTimeStepLengthUsed; }
    void setTimeStepLengthUsed(bool isUsed) { m_isTimeStepLengthUsed = isUsed; }
    AnalysisPassFlags defaultAnalysisPasses() const { return m_defaultAnalysisPasses; }
    void setDefaultAnalysisPasses(AnalysisPassFlags passes) { m_defaultAnalysisPasses = passes; }
    /// Number of increments from one result to the next.
    int defaultIncrementsBetweenResults() const { return m_defaultIncrements; }
    void setDefaultIncrementsBetweenResults(int increments) { m_defaultIncrements = increments; }

    /// Whether it was never filled.
    bool isDefaultContructed() const { return *this == coStageInformation(); }

    /// Whether \a a has the smaller index; for sorting.
    static bool compareId(const coStageInformation& a, const coStageInformation& b)
    {
        return a.m_index < b.m_index;
    }

    friend KDQCORE_EXPORT bool operator==(const coStageInformation& a, const coStageInformation& b);
    friend bool operator!=(const coStageInformation& a, const coStageInformation& b) { return !(a == b); }

private:
    int m_index = -1;
    e_StageType m_type = Heating;
    bool m_isTimeStepLengthUsed = false;
    QString m_displayName;
    QString m_whatsThis;
    QString m_optimisationIdentifier;
    AnalysisPassFlags m_defaultAnalysisPasses = NoPass;
    int m_defaultIncrements = 1;
};

} // namespace nHeatTreatment
