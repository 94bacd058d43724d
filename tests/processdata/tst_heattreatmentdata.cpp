#include "kdqtest.h"

#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/coHtCaseHardeningStageProp>
#include <kdQCore/coPredefTableOrConstant>

#include <limits>

using namespace nHeatTreatment;

namespace {

constexpr double unlimited = std::numeric_limits<double>::infinity();

coHeatTreatmentData factoryMade(e_FieldOfApplication field)
{
    coHeatTreatmentData data(field);
    coHeatTreatmentDataFactory::setup(data);
    return data;
}

coHeatTreatmentData::StagePointer stage(int index, const kdUnitValue& duration, double kelvin)
{
    const auto information =
        coHeatTreatmentStage::Information::create(coStageInformation(index, Holding, QString()));
    const auto result = coHeatTreatmentData::StagePointer::create(information);
    result->setDuration(duration);
    result->setTemperature(coTableInput(kdUnitValue(kelvin, kdUnitSystem::Temperature)));
    return result;
}

/// Minutes and °C.
coTableInput temperatureTable(const QVector<QPointF>& points)
{
    kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Temperature);
    table.setXYData(points, 2, 1);
    return coTableInput(table);
}

/// 300 K for a minute, a disabled hour, half an hour from 100 °C to 700 °C, no time, an hour without a
/// temperature, 2 s at 973.15 K.
coHeatTreatmentData oddProcess()
{
    coHeatTreatmentData data(StressRelief);
    QList<coHeatTreatmentData::StagePointer> stages{
        stage(4, kdUnitValue(1.0, kdUnitSystem(kdUnitSystem::Time, 2)), 300.0),
        stage(3, kdUnitValue(1.0, kdUnitSystem(kdUnitSystem::Time, 3)), 400.0),
        stage(9, kdUnitValue(0.5, kdUnitSystem(kdUnitSystem::Time, 3)), 0.0),
        stage(1, kdUnitValue(-5.0, kdUnitSystem::Time), 500.0),
        stage(2, kdUnitValue(3600000.0, kdUnitSystem(kdUnitSystem::Time, 1)), 0.0),
        stage(5, kdUnitValue(2.0), 973.15)};
    stages.at(1)->setEnabled(false);
    stages.at(2)->setTemperature(temperatureTable({{-1, 0}, {0, 100}, {15, 500}, {30, 700}, {90, 900}}));
    stages.at(4)->setTemperature(coTableInput(kdDataTable()));
    data.setStages(stages);
    return data;
}

} // namespace

class TestHeatTreatmentData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersOfOtherNumbers()
    {
        const int relations[] = {2, 0, 0, 1, 1, 1, 0, 1, 1, 2};
        const int processes[] = {0, 1, 2, 3, 2, 2, 0, 0, 0, 0};
        for (int type = -1; type <= 8; ++type) {
            QCOMPARE(int(getTerminationRelationFromStage(e_StageType(type))), relations[type + 1]);
            QCOMPARE(int(processId(e_StageType(type))), processes[type + 1]);
        }
        const int toHeatTreatment[] = {3, 0, 2, 1, 3, 3};
        const int toInput[] = {4, 1, 3, 2, 4, 4};
        for (int mode = 0; mode < 6; ++mode) {
            QCOMPARE(int(coHeatTreatmentData::Xml::Writer::htMode(coTableInput::e_Mode(mode))),
                     toHeatTreatment[mode]);
            QCOMPARE(int(coHeatTreatmentData::Xml::Reader::tableInputMode(e_Mode(mode - 1))), toInput[mode]);
            QCOMPARE(coPredefTableOrConstant::getPredefinedTableName(mode, S("oil")),
                     mode == 2 ? S("<user-defined>") : S("oil"));
        }
    }

    void enumerations()
    {
        // Of every value: itself, what its name stands for, whether it has one and is valid, and its names.
        const auto shown = [](const coEnumData& rows, const QList<int>& values) {
            QStringList result;
            for (const int value : values) {
                const coEnum known(rows, value);
                coEnum byName(rows, 99);
                const bool isNamed = byName.setName(known.name());
                result.append(S("%1 %2 %3 %4: %5|%6")
                                  .arg(value)
                                  .arg(byName.value())
                                  .arg(isNamed)
                                  .arg(known.isValid())
                                  .arg(known.name(), known.displayName()));
            }
            return result;
        };
        QCOMPARE(shown(FieldOfApplicationEnumData, {-1, 0, 1, 2, 3}),
                 (QStringList{S("-1 -1 1 0: Invalid|Invalid"), S("0 0 1 1: QuenchTemper|Quench temper"),
                              S("1 1 1 1: WlStressRelief|Stress relief"),
                              S("2 2 1 1: CaseHardening|Case hardening"), S("3 99 0 0: |")}));
        QCOMPARE(shown(AnalysisPassFlagEnumData, {0, 1, 2, 4, 8}),
                 (QStringList{S("0 0 1 1: none|No pass"), S("1 1 1 1: diffusion|Diffusion pass"),
                              S("2 2 1 1: thermal|Thermal pass"), S("4 4 1 1: structural|Structural pass"),
                              S("8 99 0 0: |")}));
    }

    // Every stage of every field can run at once: it takes time, computes something, and the kinds fit.
    void factory()
    {
        QSet<QString> identifiers;
        int stages = 0;
        for (const coEnumData::Row& row : FieldOfApplicationEnumData) {
            const coHeatTreatmentData data = factoryMade(e_FieldOfApplication(row.value));
            QCOMPARE(data.isValid(), row.value != InvalidField);
            for (const int index : data.getStageIndices()) {
                const auto stage = data.getStage(index);
                const bool isCaseHardening = !stage.dynamicCast<coHtCaseHardeningStageProp>().isNull();
                QCOMPARE(isCaseHardening, row.value == CaseHardening);
                QVERIFY(stage->duration() > kdUnitValue(60.0, kdUnitSystem::Time));
                QVERIFY(stage->htcToEnv().constant().value() > 0.0);
                QVERIFY((stage->analysisPasses() & ThermalPass) != 0);
                QVERIFY(!stage->whatsThis().isEmpty() && stage->incrementsBetweenResults() > 0);
                const double rate = data.avgTempRateOfStage(index).value();
                QCOMPARE(rate < 0.0, stage->type() == Cooling || stage->type() == Quenching);
                identifiers.insert(stage->optimisationIdentifier());
                ++stages;
            }
        }
        QCOMPARE(identifiers.size(), stages);
    }

    void copiesOwnTheirStages()
    {
        const coHeatTreatmentData data = factoryMade(CaseHardening);
        coHeatTreatmentData copy = data;
        QVERIFY(copy == data);
        const auto stage = copy.getStage(1).dynamicCast<coHtCaseHardeningStageProp>();
        QVERIFY(!stage.isNull());
        coTableInput potential = stage->carbonPotential();
        potential.setTableName(S("boost"));
        stage->setCarbonPotential(potential);
        QVERIFY(copy != data);
        copy = data;
        QVERIFY(copy == data);
        QVERIFY(*data.getStage(1) != coHeatTreatmentStage(*data.getStage(1))); // sliced: another class
    }

    void stagesByIndex()
    {
        const kdUnitValue second(1.0, kdUnitSystem::Time);
        coHeatTreatmentData data(QuenchTemper);
        QVERIFY(!data.isValid());
        const auto first = stage(5, second, 300.0);
        data.setStages({first, nullptr, stage(-2, second, 300.0)});
        QVERIFY(data.isValid());
        QCOMPARE(data.getStageIndices(), (QList<int>{5, -2}));
        QVERIFY(data.getStage(0).isNull() && data.getStageInfo(0).isNull());
        QCOMPARE(data.getStageInfo(-2)->index(), -2);
        first->setEnabled(false);
        QCOMPARE(data.stagesEnableStatus(), (QMap<int, bool>{{-2, true}, {5, false}}));
        data.setStages({first, stage(5, second, 400.0), first});
        QVERIFY(!data.isValid());
        QCOMPARE(data.getStage(5), first);
        QCOMPARE(data.getStageIndices(), QList<int>{5});
    }

    void times()
    {
        const coHeatTreatmentData data = oddProcess();
        QCOMPARE(data.totalStageDuration().value(), 60.0 + 3600.0 + 1800.0 + 3600.0 + 2.0);
        QCOMPARE(data.durationSumOfEnabledStages().value(), 60.0 + 1800.0 + 3600.0 + 2.0);
        QCOMPARE(data.durationSumOfEnabledStages().unitSystem(), kdUnitSystem(kdUnitSystem::Time));
        const QMap<int, double> starts{{4, 0}, {3, 60}, {9, 60}, {1, 1860}, {2, 1860}, {5, 5460}};
        for (auto start = starts.begin(); start != starts.end(); ++start)
            QCOMPARE(data.startTimeOfStage(start.key()), kdUnitValue(start.value(), kdUnitSystem::Time));
        QCOMPARE(data.startTimeOfStage(77).unitSystem(), kdUnitSystem());
        data.getStage(4)->setDuration(kdUnitValue(unlimited, kdUnitSystem::Time));
        QCOMPARE(data.startTimeOfStage(9).value(), 0.0);
    }

    void temperatureRates()
    {
        const coHeatTreatmentData data = oddProcess();
        const auto rate = [&data](int index) { return data.avgTempRateOfStage(index); };
        const kdUnitSystem kelvinPerSecond(kdUnitSystem::TemperatureRate);
        QCOMPARE(rate(4), kdUnitValue(0.0, kelvinPerSecond)); // nothing before it
        QCOMPARE(rate(3), kdUnitValue(100.0 / 3600.0, kelvinPerSecond));
        QCOMPARE(rate(9), kdUnitValue(600.0 / 1800.0, kelvinPerSecond)); // its own start counts
        for (const int index : {1, 2, 77})                               // no time, no temperature, no stage
            QCOMPARE(rate(index).unitSystem(), kdUnitSystem());
        QCOMPARE(rate(5), kdUnitValue(0.0, kelvinPerSecond)); // nothing known of the one before
    }

    void temperatureOverTime()
    {
        const kdDataTable table = oddProcess().temperatureOverTime();
        const QVector<QPointF> expected{{0, 300},       {60, 300},          {60.001, 373.15}, {960, 773.15},
                                        {1860, 973.15}, {5460.001, 973.15}, {5462, 973.15}};
        QCOMPARE(table.size(), expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(table.pointAt(i).x(), expected.at(i).x());
            QCOMPARE(table.pointAt(i).y(), expected.at(i).y());
        }
        for (const e_FieldOfApplication field : {QuenchTemper, StressRelief, CaseHardening}) {
            const coHeatTreatmentData data = factoryMade(field);
            const kdDataTable curve = data.temperatureOverTime();
            QVERIFY(curve.canSumOrSubtract());
            QCOMPARE(curve.maxXValue(), data.totalStageDuration());
        }
    }
};

KDQ_TEST_MAIN(TestHeatTreatmentData)
#include "tst_heattreatmentdata.moc"
