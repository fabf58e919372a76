// State solvers whose known pair does not include the dry-bulb temperature: it is found from
// the enthalpy or from the saturation pressure.

#include "psychro/airstate/airstate.h"
#include "psychro/airstate/solver_steps.h"

using airstate::DewPointFromMoisture;
using airstate::PressureOf;
using airstate::ValidateState;

namespace {

int SolveFromEnthalpyMoisture(AirState& s, double latentHeat_kJkg) {
    const double P = PressureOf(s);
    s.t = TempFromEnthalpyMoisture(s.i, s.d, latentHeat_kJkg);
    s.pb = SaturationPressure(s.t, s.pb);
    s.pq = VapourPressureFromMoisture(s.d, P);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.fy = RelativeHumidity(s.pq, s.pb);
    s.v = SpecificVolume(s.t + kCelsiusToKelvin, P, s.pq);
    s.tl = DewPointFromMoisture(s.d, P);
    return ValidateState(s, P);
}

}  // namespace

int StateFromEnthalpyMoisture(AirState& s) {
    return SolveFromEnthalpyMoisture(s, kLatentHeat_kJkg);
}

int StateFromEnthalpyMoistureSupplyAir(AirState& s) {
    return SolveFromEnthalpyMoisture(s, kLatentHeatSupplyCooler_kJkg);
}

int StateFromMoistureHumidity(AirState& s) {
    const double P = PressureOf(s);
    s.pq = VapourPressureFromMoisture(s.d, P);
    s.pb = 100.0 * s.pq / s.fy;  // fy = 0 gives an infinity, which the check then rejects
    s.t = DewPointFromPressure(s.pb);
    s.i = EnthalpyFromTempMoisture(s.t, s.d);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.v = SpecificVolume(s.t + kCelsiusToKelvin, P, s.pq);
    s.tl = DewPointFromMoisture(s.d, P);
    return ValidateState(s, P);
}

int StateFromSaturatedMoistureHumidity(AirState& s) {
    const double P = PressureOf(s);
    s.pb = VapourPressureFromMoisture(s.db, P);
    s.pq = VapourPressureFromHumidity(s.pb, s.fy);
    s.t = DewPointFromPressure(s.pb);
    s.d = MoistureFromVapourPressure(s.pq, P);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.i = EnthalpyFromTempMoisture(s.t, s.d);
    s.v = SpecificVolume(s.t + kCelsiusToKelvin, P, s.pq);
    s.tl = DewPointFromMoisture(s.d, P);
    return ValidateState(s, P);
}

int StateFromSaturatedMoistureDewPoint(AirState& s) {
    const double P = PressureOf(s);
    s.pb = VapourPressureFromMoisture(s.db, P);
    const double pw = SaturationPressure(s.tl, 0.0);
    s.d = MoistureFromVapourPressure(pw, P);
    s.fy = RelativeHumidity(VapourPressureFromMoisture(s.d, P), s.pb);
    s.pq = VapourPressureFromHumidity(s.pb, s.fy);
    s.t = DewPointFromPressure(s.pb);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.i = EnthalpyFromTempMoisture(s.t, s.d);
    // The program takes the specific volume at the dew point here; the given tl stays.
    s.v = SpecificVolume(s.tl + kCelsiusToKelvin, P, s.pq);
    return ValidateState(s, P);
}

int SaturationFromEnthalpy(AirState& s) {
    s.ts = TemperatureFromEnthalpy(s.i, PressureOf(s), 100.0);
    return RTNORM;
}

int StateFromEnthalpyHumidity(AirState& s) {
    const double P = PressureOf(s);
    s.t = TemperatureFromEnthalpy(s.i, P, s.fy);
    s.pb = SaturationPressure(s.t, s.pb);
    s.pq = VapourPressureFromHumidity(s.pb, s.fy);
    s.ts = WetBulbTemperature(s.t, s.pq, P);
    s.v = SpecificVolume(s.t + kCelsiusToKelvin, P, s.pq);
    s.tl = DewPointFromMoisture(s.d, P);  // d is the caller's; this solver does not write it
    return ValidateState(s, P);
}
