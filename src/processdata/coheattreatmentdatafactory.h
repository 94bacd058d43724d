#pragma once

#include "coheattreatmentdata.h"

namespace nHeatTreatment {

/// Makes the stages of a field of application, with values that a heat treater can start from.
///
/// - Quench temper: 42CrMo4, hardened from 850 °C in oil and tempered at 600 °C, within the ranges of EN
///   10083-3 (hardening 820 to 860 °C after 30 min at least, tempering 540 to 680 °C for an hour at least).
/// - Stress relief: unalloyed steel after welding, an hour at 580 °C, within the 550 to 600 °C of EN 13445-4,
///   heated with 200 K/h (ASME BPVC VIII-1, UCS-56, has 222 K/h at most) and cooled with 100 K/h to 300 °C.
/// - Case hardening: 16MnCr5, carburised and diffused at 930 °C, hardened directly from 820 °C in oil of 60
///   °C and tempered at 180 °C, within the ranges of EN 10084 (880 to 980 °C, 780 to 820 °C, 150 to 200 °C).
///
/// Durations suit a section of some 30 mm. Further values and their sources:
///
/// - Heat transfer, W/(m²·K): oil 1500 and still air 30, from the usual comparison of quenching media (still
///   oil 1000 to 1500); furnace with circulation 100 above and 50 below 300 °C, of which 4·ε·σ·T³ with
///   ε = 0.8 makes up 60 at 700 K.
/// - Mass transfer of endothermic gas 2e-7 m/s, of the usual 1e-7 to 3e-7; carbon potential 1.05 % and then
///   0.75 %, which leaves the surface of the finished part with some 0.75 % C.
///
/// A stage of one temperature has it as a constant, a ramp as a table. No stage ends early, but the
/// termination temperature is set 10 K within the stage's last temperature, ready to be used.
class KDQCORE_EXPORT coHeatTreatmentDataFactory {
public:
    /// Replaces all stages of the data by those of its field of application; by none for an invalid field.
    static void setup(coHeatTreatmentData& data);
};

} // namespace nHeatTreatment
