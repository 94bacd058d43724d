#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

class coHtCaseHardeningStageProp;

/// The commands "heat ...": heat-treatment processes of the session, their stages, files and curves.
class HeatCommands {
    Q_DECLARE_TR_FUNCTIONS(HeatCommands)

public:
    static const ShellCommandGroup& group();

    /// Reports and returns null where the session has no such process.
    static ShellProcesses::Process find(const ShellCall& call, const QString& name);

private:
    static bool create(ShellCall& call);
    static bool list(ShellCall& call);
    static bool show(ShellCall& call);
    static bool enable(ShellCall& call);
    static bool disable(ShellCall& call);
    static bool set(ShellCall& call);
    static bool remove(ShellCall& call);
    static bool curve(ShellCall& call);
    static bool extract(ShellCall& call);

    static bool save(ShellCall& call);
    static bool load(ShellCall& call);
    static bool compare(ShellCall& call);
    static bool predefined(ShellCall& call);
    static bool collect(ShellCall& call);

    using Stage = coHeatTreatmentData::StagePointer;

    /// Reports and returns null where there is none.
    static Stage findStage(const ShellCall& call, const coHeatTreatmentData& process, const QString& index);

    static bool listProcesses(ShellCall& call);
    static bool enableStages(ShellCall& call, bool isEnabled);
    static bool isAs(const ShellCall& call, int index);
    static const coTableInput* inputOf(const ShellCall& call, const coHeatTreatmentStage& stage,
                                       const QString& what);
    static QString text(const coTableInput& input);
    static void showCarbon(const ShellCall& call, const coHtCaseHardeningStageProp& stage);

    static bool changeStage(const ShellCall& call, coHeatTreatmentStage& stage);
    static bool readQuantity(const ShellCall& call, int index, kdUnitValue& value);
    static bool readInput(const ShellCall& call, int index, coTableInput& input);
    static bool readTable(const ShellCall& call, const QString& name, coTableInput& input);
    static bool readPasses(const ShellCall& call, int index, coHeatTreatmentStage& stage);
    static bool readTermination(const ShellCall& call, int index, coHeatTreatmentStage& stage);
};
