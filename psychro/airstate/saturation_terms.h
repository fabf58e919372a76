// The parts of the psychrometer and enthalpy functions that follow the saturation pressure.
// Split out so that the band search can apply them to saturation pressures it computed once.
#pragma once

#include "psychro/airstate/relations.h"

namespace airstate {

// ln of the saturation pressure (Pa) at T_K: the correlations' own form. The dew-point search
// iterates on it directly rather than on the log of the pressure.
double LnSaturationPressureIce(double T_K);
double LnSaturationPressureWater(double T_K);

// Psychrometer function, Pa, given the saturation pressure ps_Pa at T_K.
inline double PsychrometerFromSaturation(double ps_Pa, double T_K, double P_Pa) {
    return ps_Pa + 0.000667 * P_Pa * (T_K - kCelsiusToKelvin);
}

// Enthalpy, kJ/kg dry air, at T_K and fy_percent given the saturation pressure ps_Pa at T_K.
// The moisture content here is in kg/kg, hence 0.622 and no factor 0.001.
inline double EnthalpyFromSaturation(double ps_Pa, double T_K, double P_Pa, double fy_percent) {
    const double t_C = T_K - kCelsiusToKelvin;
    const double pv_Pa = ps_Pa * fy_percent / 100.0;
    return (0.622 * pv_Pa / (P_Pa - pv_Pa)) * (1.84 * t_C + kLatentHeat_kJkg) + 1.01 * t_C;
}

}  // namespace airstate
