// The algebraic relations between the quantities of one humid-air state, shared by all state
// solvers. Inline because every solver evaluates several of them per call.
#pragma once

// Latent heat of vaporisation in the enthalpy relations, kJ/kg. The state-point, mixing and
// process calculations use 2500; the supply-air and surface-cooler calculations use 2501. Both
// stay: each reproduces the figures of its own calculation.
inline constexpr double kLatentHeat_kJkg = 2500.0;
inline constexpr double kLatentHeatSupplyCooler_kJkg = 2501.0;

// Offset between the Celsius and Kelvin scales.
inline constexpr double kCelsiusToKelvin = 273.15;

// Moisture content, g/kg dry air, of air with vapour pressure pq_Pa under total pressure P_Pa.
inline double MoistureFromVapourPressure(double pq_Pa, double P_Pa) {
    return 622.0 * pq_Pa / (P_Pa - pq_Pa);
}

// Vapour pressure, Pa, of air with moisture content d_gkg under total pressure P_Pa.
inline double VapourPressureFromMoisture(double d_gkg, double P_Pa) {
    return P_Pa * d_gkg / (622.0 + d_gkg);
}

// Specific enthalpy, kJ/kg dry air, of air at t_C with moisture content d_gkg.
inline double EnthalpyFromTempMoisture(double t_C, double d_gkg,
                                       double latentHeat_kJkg = kLatentHeat_kJkg) {
    return 1.01 * t_C + 0.001 * d_gkg * (1.84 * t_C + latentHeat_kJkg);
}

// Dry-bulb temperature, °C, of air with enthalpy i_kJkg and moisture content d_gkg.
inline double TempFromEnthalpyMoisture(double i_kJkg, double d_gkg,
                                       double latentHeat_kJkg = kLatentHeat_kJkg) {
    return (i_kJkg - 0.001 * d_gkg * latentHeat_kJkg) / (0.001 * d_gkg * 1.84 + 1.01);
}

// Relative humidity, %, from the vapour pressure and the saturation pressure (both Pa).
inline double RelativeHumidity(double pq_Pa, double pb_Pa) { return 100.0 * pq_Pa / pb_Pa; }

// Vapour pressure, Pa, at relative humidity fy_percent and saturation pressure pb_Pa.
inline double VapourPressureFromHumidity(double pb_Pa, double fy_percent) {
    return pb_Pa * fy_percent / 100.0;
}

// Vapour pressure, Pa, from the psychrometer equation: pw_Pa is the saturation pressure at the
// wet-bulb temperature ts_C, t_C the dry-bulb temperature.
inline double VapourPressureFromWetBulb(double pw_Pa, double P_Pa, double t_C, double ts_C) {
    return pw_Pa - 0.000667 * P_Pa * (t_C - ts_C);
}

// Specific volume, m³/kg dry air: the inverse of the humid-air density at T_K.
inline double SpecificVolume(double T_K, double P_Pa, double pq_Pa) {
    return 1.0 / (0.003484 * P_Pa / T_K - 0.00134 * pq_Pa / T_K);
}
