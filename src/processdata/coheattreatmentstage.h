#pragma once

#include "costageinformation.h"
#include "cotableinput.h"

#include <memory>

/// One stage of a heat treatment: how long it takes, how warm the furnace or the bath is and how well it
/// hands its heat over, when the stage ends early, and what the solver computes in it.
///
/// The temperature is that of the surroundings of the part. A constant holds for the whole stage; a ramp is a
/// table over the time since the stage began. A duration without a unit of time counts as seconds.
///
/// Stages of one kind share their description, which never changes. Stages compare with all their fields and
/// their class. Not thread-safe.
class KDQCORE_EXPORT coHeatTreatmentStage {
public:
    using Information = QSharedPointer<const nHeatTreatment::coStageInformation>;

    /// With the passes, increments and termination relation of its description. Null stands for a description
    /// that was never filled.
    explicit coHeatTreatmentStage(const Information& information = Information());
    coHeatTreatmentStage(const coHeatTreatmentStage&) = default;
    coHeatTreatmentStage& operator=(const coHeatTreatmentStage&) = default;
    virtual ~coHeatTreatmentStage();

    /// A copy with the same class.
    virtual std::unique_ptr<coHeatTreatmentStage> clone() const;

    /// Has the model copy every predefined table that the stage refers to into the project. False where one
    /// of them could not be; the others are copied nevertheless.
    virtual bool ensureTableCopiedToProject(coPredefinedTableListModel* model) const;

    /// Never null.
    const Information& information() const { return m_information; }
    int index() const { return m_information->index(); }
    nHeatTreatment::e_StageType type() const { return m_information->type(); }
    QString name() const { return m_information->displayName(); }
    QString whatsThis() const { return m_information->whatsThis(); }
    QString optimisationIdentifier() const { return m_information->optimisationIdentifier(); }

    bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool isEnabled) { m_isEnabled = isEnabled; }
    kdUnitValue duration() const { return m_duration; }
    void setDuration(const kdUnitValue& duration) { m_duration = duration; }

    /// Whether the stage ends as soon as the part has passed the termination temperature.
    bool useTermination() const { return m_useTermination; }
    void setUseTermination(bool isUsed) { m_useTermination = isUsed; }
    nHeatTreatment::e_TerminationRelation terminationRelation() const { return m_terminationRelation; }
    void setTerminationRelation(nHeatTreatment::e_TerminationRelation relation)
    {
        m_terminationRelation = relation;
    }
    kdUnitValue terminationTemperature() const { return m_terminationTemperature; }
    void setTerminationTemperature(const kdUnitValue& temperature) { m_terminationTemperature = temperature; }

    /// A constant or the stage's own table: files know no other modes of it.
    const coTableInput& temperature() const { return m_temperature; }
    void setTemperature(const coTableInput& temperature) { m_temperature = temperature; }
    /// Heat-transfer coefficient to the environment; as a table, over the temperature of the surface.
    const coTableInput& htcToEnv() const { return m_htcToEnv; }
    void setHtcToEnv(const coTableInput& coefficient) { m_htcToEnv = coefficient; }

    nHeatTreatment::AnalysisPassFlags analysisPasses() const { return m_analysisPasses; }
    void setAnalysisPasses(nHeatTreatment::AnalysisPassFlags passes) { m_analysisPasses = passes; }
    int incrementsBetweenResults() const { return m_incrementsBetweenResults; }
    void setIncrementsBetweenResults(int increments) { m_incrementsBetweenResults = increments; }

    /// Change of the surroundings' temperature over the stage, divided by its duration, in K/s.
    ///
    /// A table runs from its value at the stage's start to that at its end. A constant is reached from the
    /// temperature at which the \a previous stage ended; without one, or where that has no temperature, the
    /// rate is 0. An empty value (a plain 0) where the stage has no temperature (a table that is missing) or
    /// takes no time.
    kdUnitValue getAvgTempRate(const coHeatTreatmentStage* previous = nullptr) const;

    friend KDQCORE_EXPORT bool operator==(const coHeatTreatmentStage& a, const coHeatTreatmentStage& b);
    friend bool operator!=(const coHeatTreatmentStage& a, const coHeatTreatmentStage& b) { return !(a == b); }

protected:
    /// \a other is of this class.
    virtual bool isEqual(const coHeatTreatmentStage& other) const;

private:
    Information m_information;
    bool m_isEnabled = true;
    bool m_useTermination = false;
    kdUnitValue m_duration{0.0, kdUnitSystem::Time};
    nHeatTreatment::e_TerminationRelation m_terminationRelation;
    kdUnitValue m_terminationTemperature{293.15, kdUnitSystem::Temperature};
    coTableInput m_temperature{kdUnitValue(293.15, kdUnitSystem::Temperature)};
    coTableInput m_htcToEnv{kdUnitValue(0.0, kdUnitSystem::HeatTransferCoefficient)};
    nHeatTreatment::AnalysisPassFlags m_analysisPasses;
    int m_incrementsBetweenResults;
};
