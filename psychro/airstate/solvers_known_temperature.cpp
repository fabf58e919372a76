// State solvers whose known pair includes the dry-bulb temperature t.

#include "psychro/airstate/airstate.h"
#include "psychro/airstate/solver_steps.h"

using airstate::DewPointFromMoisture;
using airstate::PressureOf;
using airstate::ValidateState;

int StateFromTempHumidity(AirState& s) {
    const double P = PressureOf(s);
    s.pb = SaturationPressure(s.t, s.pb);
    s.pq = VapourPressureFromHumidity(s.pb, s.fy);
    s.d = MoistureFromVapourPressure(s.pq, P);
    s.i = EnthalpyFromTempMoisture(s.t, s.d);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.v = SpecificVolume(s.t + kCelsiusToKelvin, P, s.pq);
    s.tl = DewPointFromMoisture(s.d, P);
    return ValidateState(s, P);
}

int StateFromTempMoisture(AirState& s) {
    const double P = PressureOf(s);
    s.pb = SaturationPressure(s.t, s.pb);
    s.i = EnthalpyFromTempMoisture(s.t, s.d);
    s.pq = VapourPressureFromMoisture(s.d, P);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.fy = RelativeHumidity(s.pq, s.pb);
    s.v = SpecificVolume(s.t + kCelsiusToKelvin, P, s.pq);
    s.tl = DewPointFromMoisture(s.d, P);
    return ValidateState(s, P);
}

int StateFromTempDewPoint(AirState& s) {
    const double P = PressureOf(s);
    const double pw = SaturationPressure(s.tl, 0.0);
    s.pb = SaturationPressure(s.t, s.pb);
    s.d = MoistureFromVapourPressure(pw, P);
    s.i = EnthalpyFromTempMoisture(s.t, s.d);
    s.pq = VapourPressureFromMoisture(s.d, P);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.fy = RelativeHumidity(s.pq, s.pb);
    s.v = SpecificVolume(s.t + kCelsiusToKelvin, P, s.pq);
    return ValidateState(s, P);  // the given tl stays as it was
}

namespace {

// Known t and ts. The specific volume is taken at the wet-bulb temperature, as the program
// always has; the surface-cooler figures depend on it.
int SolveFromTempWetBulb(AirState& s, double latentHeat_kJkg) {
    const double P = PressureOf(s);
    s.pb = SaturationPressure(s.t, s.pb);
    const double pw = SaturationPressure(s.ts, 0.0);
    s.pq = VapourPressureFromWetBulb(pw, P, s.t, s.ts);
    s.fy = RelativeHumidity(s.pq, s.pb);
    s.d = MoistureFromVapourPressure(s.pq, P);
    s.i = EnthalpyFromTempMoisture(s.t, s.d, latentHeat_kJkg);
    s.v = SpecificVolume(s.ts + kCelsiusToKelvin, P, s.pq);
    s.tl = DewPointFromMoisture(s.d, P);
    return ValidateState(s, P);
}

}  // namespace

int StateFromTempWetBulb(AirState& s) { return SolveFromTempWetBulb(s, kLatentHeat_kJkg); }

int StateFromTempWetBulbSurfaceCooler(AirState& s) {
    return SolveFromTempWetBulb(s, kLatentHeatSupplyCooler_kJkg);
}
