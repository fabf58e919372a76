// Saturation pressure of water vapour (Hyland–Wexler) and the functions built directly on it.

#include <cmath>

#include "psychro/airstate/airstate.h"
#include "psychro/airstate/saturation_terms.h"

using airstate::EnthalpyFromSaturation;
using airstate::PsychrometerFromSaturation;

namespace airstate {

double LnSaturationPressureIce(double T_K) {
    constexpr double C1 = -5674.5359, C2 = 6.3925247, C3 = -0.009677843, C4 = 6.2215701e-7,
                     C5 = 2.0747825e-9, C6 = -9.484024e-13, C7 = 4.1635019;
    const double T2 = T_K * T_K;
    return C1 / T_K + C2 + C3 * T_K + C4 * T2 + C5 * T2 * T_K + C6 * T2 * T2 + C7 * std::log(T_K);
}

double LnSaturationPressureWater(double T_K) {
    constexpr double C8 = -5800.2206, C9 = 1.3914993, C10 = -0.04860239, C11 = 4.1764768e-5,
                     C12 = -1.4452093e-8, C13 = 6.5459673;
    const double T2 = T_K * T_K;
    return C8 / T_K + C9 + C10 * T_K + C11 * T2 + C12 * T2 * T_K + C13 * std::log(T_K);
}

}  // namespace airstate

double SaturationPressureIce(double T_K) { return std::exp(airstate::LnSaturationPressureIce(T_K)); }

double SaturationPressureWater(double T_K) { return std::exp(airstate::LnSaturationPressureWater(T_K)); }

double SaturationPressure(double t_C, double ifUndefined_Pa) {
    // The program fixes 0 °C at 609.0 Pa rather than either correlation's value.
    constexpr double kFixedAtZero_Pa = 609.0;
    if (std::fabs(t_C) <= 0.0001) return kFixedAtZero_Pa;
    if (t_C < 0.0) return SaturationPressureIce(t_C + kCelsiusToKelvin);
    if (t_C > 0.0) return SaturationPressureWater(t_C + kCelsiusToKelvin);
    return ifUndefined_Pa;  // NaN: no formula applies
}

double PsychrometerFunctionIce(double T_K, double P_Pa) {
    return PsychrometerFromSaturation(SaturationPressureIce(T_K), T_K, P_Pa);
}

double PsychrometerFunctionWater(double T_K, double P_Pa) {
    return PsychrometerFromSaturation(SaturationPressureWater(T_K), T_K, P_Pa);
}

double EnthalpyAtHumidityIce(double T_K, double P_Pa, double fy_percent) {
    return EnthalpyFromSaturation(SaturationPressureIce(T_K), T_K, P_Pa, fy_percent);
}

double EnthalpyAtHumidityWater(double T_K, double P_Pa, double fy_percent) {
    return EnthalpyFromSaturation(SaturationPressureWater(T_K), T_K, P_Pa, fy_percent);
}
