#pragma once

#include <kdQCore/coHeatTreatmentData>
#include <kdQCore/coHtCaseHardeningStageProp>

#include <QRandomGenerator>

#include <cmath>
#include <cstring>

/// Processes with everything that their files carry, from a seed.
class RandomProcess {
public:
    explicit RandomProcess(quint32 seed) : m_random(seed) { }

    coHeatTreatmentData create()
    {
        coHeatTreatmentData data(nHeatTreatment::e_FieldOfApplication(below(4) - 1));
        QList<coHeatTreatmentData::StagePointer> stages;
        for (int i = below(6), index = -3; i >= 0; --i) {
            nHeatTreatment::coStageInformation information(index += 1 + below(9), type(), text());
            stages.append(createStage(coHeatTreatmentStage::Information::create(information)));
        }
        data.setStages(stages);
        return data;
    }

    /// The same stages with other contents.
    coHeatTreatmentData withOtherContents(const coHeatTreatmentData& data)
    {
        QList<coHeatTreatmentData::StagePointer> stages;
        for (const auto& stage : data.stages()) {
            stages.append(coHeatTreatmentData::StagePointer(stage->clone().release()));
            fill(*stages.last());
        }
        coHeatTreatmentData other(data);
        other.setStages(stages);
        return other;
    }

    int below(int limit) { return int(m_random.bounded(limit)); }

private:
    coHeatTreatmentData::StagePointer createStage(const coHeatTreatmentStage::Information& information)
    {
        coHeatTreatmentData::StagePointer stage;
        if (below(2) == 0)
            stage.reset(new coHeatTreatmentStage(information));
        else
            stage.reset(new coHtCaseHardeningStageProp(information));
        fill(*stage);
        return stage;
    }

    void fill(coHeatTreatmentStage& stage)
    {
        stage.setEnabled(below(2) == 0);
        stage.setDuration(value(kdUnitSystem::Time));
        stage.setUseTermination(below(2) == 0);
        stage.setTerminationRelation(nHeatTreatment::e_TerminationRelation(below(3)));
        stage.setTerminationTemperature(value(kdUnitSystem::Temperature));
        coTableInput temperature = input(kdUnitSystem::Temperature);
        temperature.setTableName(QString());
        temperature.setMode(coTableInput::e_Mode(1 + below(2)));
        stage.setTemperature(temperature);
        stage.setHtcToEnv(input(kdUnitSystem::HeatTransferCoefficient));
        stage.setAnalysisPasses(nHeatTreatment::AnalysisPassFlags(below(8)));
        stage.setIncrementsBetweenResults(int(m_random.generate()));
        if (auto* const caseHardening = dynamic_cast<coHtCaseHardeningStageProp*>(&stage)) {
            caseHardening->setTimeStepLength(value(kdUnitSystem::Time));
            caseHardening->setMassTransferCoefficient(input(kdUnitSystem::MassTransferCoefficient));
            caseHardening->setCarbonPotential(input(kdUnitSystem::MassFraction));
        }
    }

    nHeatTreatment::e_StageType type() { return nHeatTreatment::e_StageType(below(8)); }

    /// A unit of the dimension, now and then none.
    kdUnitSystem unit(kdUnitSystem::Dimension dimension)
    {
        return {dimension, below(kdUnitSystem::unitCount(dimension) + 1) - 1};
    }

    /// Any finite bits.
    double number()
    {
        const quint64 bits = m_random.generate64();
        double result = 0.0;
        std::memcpy(&result, &bits, sizeof result);
        return std::isfinite(result) ? result : 0.0;
    }

    kdUnitValue value(kdUnitSystem::Dimension dimension) { return {number(), unit(dimension)}; }

    QString text()
    {
        const QString letters = QString::fromUtf8("ab <>&\"'\r\n\t;ä°µ𝛼");
        QString result;
        for (int i = below(9); i > 0; --i) {
            const QChar letter = letters.at(below(letters.size()));
            result += letter.isSurrogate() ? QString::fromUtf8("𝛼") : QString(letter);
        }
        return result;
    }

    /// Of numbers that files carry whole, with 15 digits.
    kdDataTable table(kdUnitSystem::Dimension dimension)
    {
        kdDataTable result(kdUnitSystem::Time, dimension);
        result.setUnitX(unit(kdUnitSystem::Time));
        result.setUnitY(unit(dimension));
        result.setName(text());
        result.setComment(text());
        result.setYName(text());
        for (int i = below(5); i > 0; --i)
            result.addPoint(QString::number(number(), 'g', 15).toDouble(), below(1000) / 8.0);
        return result;
    }

    coTableInput input(kdUnitSystem::Dimension dimension)
    {
        coTableInput result(value(dimension));
        result.setMode(coTableInput::e_Mode(1 + below(4)));
        result.setTableName(text());
        if (below(2) == 0)
            result.setDataTable(table(dimension));
        return result;
    }

    QRandomGenerator m_random;
};
