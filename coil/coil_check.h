// Check of a chilled-water surface cooler: from the inlet air state, the air and water flows
// and the inlet water temperature, the outlet air state, the outlet water temperature and the
// cooling load of a catalogued coil, by iterating the outlet dry bulb until the heat-exchange
// efficiency the coil needs equals the one it has.
#pragma once

#include "coil/cooler_model.h"
#include "psychro/airstate/airstate.h"

namespace vrn2 {

inline constexpr long kMaxCoilIterations = 100000;
inline constexpr double kEfficiencyTolerance = 0.0005;
inline constexpr double kSmallestContactCoefficient = 1e-7;

struct CoilCheckInput {
    double B = 101.325;  // atmospheric pressure, kPa
    double t1 = 0.0;     // inlet dry bulb, °C
    double ts1 = 0.0;    // inlet wet bulb, °C
    double G = 0.0;      // air mass flow, kg/h
    double tw1 = 0.0;    // inlet water temperature, °C
    double W = 0.0;      // water mass flow, kg/h
    int rows = 0;        // rows N
    int units = 1;       // number of units n_u
    bool series = false;  // units in series (each takes all the air and water) or in parallel
};

enum class CoilCheckStatus {
    Done,
    NoContactCoefficient,  // E2 ≤ 1e-7 at the face velocity
    ImpossibleInlet,       // the inlet air state does not exist at this pressure
    NotConverged,          // the iteration cap was reached
    ImpossibleOutlet,      // the outlet state the iteration ended at does not exist
};

struct CoilCheckResult {
    double Vy = 0.0;   // face velocity, m/s
    double w = 0.0;    // water velocity in the tubes, m/s
    double E2 = 0.0;   // contact coefficient at Vy
    double xi = 0.0;   // wet-coil factor ξ of the last pass
    double K = 0.0;    // heat-transfer coefficient of the last pass, W/(m²·K)
    double Eg = 0.0;   // efficiency the coil gives in the last pass
    double Ec = 0.0;   // efficiency the outlet temperature stands for in the last pass
    long iterations = 0;
    AirState inlet;    // the inlet state (surface-cooler variant)
    AirState outlet;   // the outlet state (surface-cooler variant)
    double Q = 0.0;    // cooling load, kW
    double tw2 = 0.0;  // outlet water temperature, °C
};

// Runs the check. ALERT receives the contact coefficient's out-of-range alert. OUT holds what
// was computed up to the point of failure. MAXITERATIONS is the iteration cap; the check fails
// when the counter reaches it, also if the last pass met the tolerance.
CoilCheckStatus checkCoil(const CoilCheckInput& in, const CoolerModel& model, CoilCheckResult& out,
                          const AlertSink& alert, long maxIterations = kMaxCoilIterations);

// The message a failed check shows in the dialog; empty for Done.
const wchar_t* coilCheckMessage(CoilCheckStatus status);

}  // namespace vrn2
