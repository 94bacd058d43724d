#pragma once

#include "coenumdata.h"

#include <QFlags>

/// The vocabulary of heat treatment: fields of application, kinds of stages, passes, modes of inputs.
///
/// The numbers are stored in files and handed to the solver. Every function takes any number for its
/// enumeration, cast from outside or not, and has an answer for it. Thread-safe.
namespace nHeatTreatment {

enum e_FieldOfApplication : int {
    InvalidField = -1,
    QuenchTemper = 0,
    StressRelief = 1, ///< of welded parts
    CaseHardening = 2
};

/// The analyses that the solver runs in a stage.
enum e_AnalysisPassFlag : int { NoPass = 0, DiffusionPass = 1, ThermalPass = 2, StructuralPass = 4 };
Q_DECLARE_FLAGS(AnalysisPassFlags, e_AnalysisPassFlag)

/// How an input is given that is a constant or a table. coTableInput::e_Mode counts in another order:
/// coPredefTableOrConstant converts.
enum e_Mode : int {
    ConstantMode = 0,
    PredefinedTableMode = 1,
    UserDefinedTableMode = 2,
    ProjectTableMode = 3
};

/// The kinds of stages, by the terms of ISO 4885; beside them those of its German edition.
enum e_StageType : int {
    Heating = 0,               ///< Erwärmen
    Holding = 1,               ///< Halten (also: soaking)
    Quenching = 2,             ///< Abschrecken
    Tempering = 3,             ///< Anlassen
    StressReliefAnnealing = 4, ///< Spannungsarmglühen
    Carburising = 5,           ///< Aufkohlen
    Diffusion = 6,             ///< Diffundieren: carbon moves inwards at a lower potential
    Cooling = 7                ///< Abkühlen
};

/// On which side of the termination temperature a stage ends.
enum e_TerminationRelation : int { RisesAbove = 0, FallsBelow = 1, NoRelation = 2 };

/// The process that the solver is told.
enum e_HtProcessId : int { OtherProcess = 0, HeatingProcess = 1, HoldingProcess = 2, QuenchingProcess = 3 };

/// Names in files and for users.
KDQCORE_EXPORT extern const coEnumData FieldOfApplicationEnumData;
KDQCORE_EXPORT extern const coEnumData AnalysisPassFlagEnumData;
KDQCORE_EXPORT extern const coEnumData StageTypeEnumData;

/// The relation by which a stage of this type commonly ends; NoRelation for any other number.
KDQCORE_EXPORT e_TerminationRelation getTerminationRelationFromStage(e_StageType type);
/// OtherProcess for any other number.
KDQCORE_EXPORT e_HtProcessId processId(e_StageType type);

/// "<user-defined>", what stands for a name where the user typed the table in. Only the untranslated text may
/// go to a file.
KDQCORE_EXPORT QString getUserDefinedTableName(bool translated);

} // namespace nHeatTreatment

Q_DECLARE_OPERATORS_FOR_FLAGS(nHeatTreatment::AnalysisPassFlags)
