#pragma once

#include "cohtcasehardeningstageprop.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

/// Reads one element "stage" into a copy of a stage, which replaces the stage only as a whole.
class StageXmlReader {
    Q_DECLARE_TR_FUNCTIONS(coHeatTreatmentData)

public:
    StageXmlReader(QXmlStreamReader& reader, const coHeatTreatmentStage& stage);

    /// From the start of the element to its end; false with an error on the stream reader.
    bool read();
    void applyTo(coHeatTreatmentStage& stage) const;

private:
    // These are false where the element's value cannot be read. Those with elements below raise the error for
    // them and are true.
    bool readElement(const QString& element);
    bool readCaseHardeningElement(const QString& element);
    bool readBool(void (coHeatTreatmentStage::*set)(bool));
    bool readUnitValue(const QString& element, void (coHeatTreatmentStage::*set)(const kdUnitValue&));
    bool readTemperatureKind();
    bool readTerminationRelation();
    bool readIncrements();
    bool readTimeStepLength(const QString& element);
    bool readPasses();
    bool readPass(nHeatTreatment::AnalysisPassFlags& passes);
    bool readMassTransfer();
    bool readPotential();

    void readBlock(coTableInput& input);
    void raiseStageError(const QString& element);

    QXmlStreamReader& m_reader;
    std::unique_ptr<coHeatTreatmentStage> m_stage;
    coHtCaseHardeningStageProp* m_caseHardening; ///< the same, or null
    coTableInput m_temperature;
    coTableInput m_htcToEnv;
    coTableInput m_massTransferCoefficient;
    coTableInput m_carbonPotential;
};
