// Humid-air property library: turns one accepted pair of known quantities of a humid-air
// state into all of its quantities, at a given atmospheric pressure.
//
// Units: temperatures t in °C (T in kelvin, T = t + 273.15), pressures inside the formulas
// in Pa (the record's B in kPa, P = 1000·B), moisture contents in g per kg dry air, enthalpy
// in kJ per kg dry air, relative humidity in percent (0..100), specific volume in m³ per kg
// dry air.
//
// The relations are the program's simplified engineering ones with fixed constants; they are
// deliberately not replaced by more exact psychrometrics. Every solver writes its outputs even
// when the state turns out impossible, and reports that through its status (RTNORM/RTERROR).
// The library calls no host function: its one alert, of DewPointFromPressure for a pressure
// beyond -60..200 °C, goes to the sink its caller sets (psychro/airstate/alert.h).
#pragma once

#include <limits>

#include "psychro/airstate/relations.h"

// One humid-air state. The field order is fixed: callers exchange the record as eleven doubles.
struct AirState {
    double B = 0.0;   // atmospheric pressure, kPa
    double pq = 0.0;  // water-vapour partial pressure, Pa
    double pb = 0.0;  // saturation vapour pressure at the dry-bulb temperature, Pa
    double t = 0.0;   // dry-bulb temperature, °C
    double ts = 0.0;  // wet-bulb temperature, °C
    double tl = 0.0;  // dew-point temperature, °C
    double d = 0.0;   // moisture content, g/kg dry air
    double fy = 0.0;  // relative humidity, %
    double i = 0.0;   // specific enthalpy, kJ/kg dry air
    double v = 0.0;   // specific volume, m³/kg dry air
    double db = 0.0;  // moisture content of saturated air at the dry-bulb temperature, g/kg
};
static_assert(sizeof(AirState) == 11 * sizeof(double), "AirState is eleven packed doubles");

// ---- Saturation pressure (Hyland–Wexler correlations) ----------------------------------

// Saturation pressure over ice, Pa, at absolute temperature T_K.
double SaturationPressureIce(double T_K);

// Saturation pressure over water, Pa, at absolute temperature T_K.
double SaturationPressureWater(double T_K);

// The saturation pressure the state solvers use, Pa, at t_C °C: ice below 0 °C, water above,
// and the fixed 609.0 Pa for |t_C| <= 0.0001. A NaN temperature picks no formula and returns
// ifUndefined_Pa, so that a solver can leave the value it had in place.
double SaturationPressure(double t_C,
                          double ifUndefined_Pa = std::numeric_limits<double>::quiet_NaN());

// Psychrometer function, Pa: saturation pressure at T_K plus 0.000667·P_Pa·(T_K − 273.15).
double PsychrometerFunctionIce(double T_K, double P_Pa);
double PsychrometerFunctionWater(double T_K, double P_Pa);

// Enthalpy, kJ/kg dry air, of air at T_K and pressure P_Pa with relative humidity fy_percent.
double EnthalpyAtHumidityIce(double T_K, double P_Pa, double fy_percent);
double EnthalpyAtHumidityWater(double T_K, double P_Pa, double fy_percent);

// ---- Inverse functions (bands of -60..200 °C and the secant method) ---------------------

// What DewPointFromPressure returns, and the solvers store, for a temperature out of range.
inline constexpr double kTemperatureOutOfRange_C = -1000.0;

// Temperature, °C, at which the saturation pressure equals p_Pa. Outside -60..200 °C it raises
// the alert "求得温度范围不对." once (airstate::Alert) and returns kTemperatureOutOfRange_C.
double DewPointFromPressure(double p_Pa);

// Wet-bulb temperature, °C, of air at t_C with vapour pressure pq_Pa under pressure P_Pa.
// Exactly 0.0 when the psychrometer target lies in no band.
double WetBulbTemperature(double t_C, double pq_Pa, double P_Pa);

// Dry-bulb temperature, °C, at which air of relative humidity fy_percent under P_Pa has the
// enthalpy i_kJkg. Exactly 0.0 when the enthalpy lies in no band.
double TemperatureFromEnthalpy(double i_kJkg, double P_Pa, double fy_percent);

// ---- State solvers -------------------------------------------------------------------------
// Each reads B and its known fields, overwrites the fields it computes and returns RTNORM, or
// RTERROR when the result is impossible: fy > 100 (or NaN), then pb > 1000·B, then d < 0.
// No solver writes db (the two db solvers read it); callers that show db compute it.

int StateFromEnthalpyMoisture(AirState& state);  // known i, d
int StateFromTempHumidity(AirState& state);      // known t, fy
int StateFromTempWetBulb(AirState& state);       // known t, ts; v at the wet-bulb temperature
int StateFromTempMoisture(AirState& state);      // known t, d
int StateFromTempDewPoint(AirState& state);      // known t, tl; tl kept as given
int StateFromMoistureHumidity(AirState& state);  // known d, fy
int StateFromSaturatedMoistureHumidity(AirState& state);  // known db, fy
int StateFromSaturatedMoistureDewPoint(AirState& state);  // known db, tl; v at the dew point

// Known i: writes only ts, the temperature of saturated air of that enthalpy; always RTNORM.
int SaturationFromEnthalpy(AirState& state);

// Known i, fy: writes t, pb, pq, ts, v and tl, but neither d nor i. The dew point and the
// d < 0 check use the d the caller left in the record.
int StateFromEnthalpyHumidity(AirState& state);

// ---- Variants with the latent-heat constant 2501 -------------------------------------------

// StateFromEnthalpyMoisture with t = (i − 0.001·d·2501) / (0.001·d·1.84 + 1.01); used to
// complete a supply-air state.
int StateFromEnthalpyMoistureSupplyAir(AirState& state);

// StateFromTempWetBulb with i = 1.01·t + 0.001·d·(1.84·t + 2501); used by the surface-cooler
// calculation.
int StateFromTempWetBulbSurfaceCooler(AirState& state);
