// The values the inverse searches take from tables computed once: the ln form of the
// saturation correlations the dew-point search iterates on, and each band's values at its first
// starting temperature, against the pressures of the public functions.

#include <gtest/gtest.h>

#include <cmath>

#include "psychro/airstate/airstate.h"
#include "psychro/airstate/bands.h"
#include "psychro/airstate/saturation_terms.h"

TEST(SearchStart, LnFormIsTheLogOfThePressure) {
    for (double T = 213.15; T <= 473.15; T += 0.37) {
        EXPECT_NEAR(airstate::LnSaturationPressureWater(T), std::log(SaturationPressureWater(T)), 1e-14 * 15);
        EXPECT_NEAR(airstate::LnSaturationPressureIce(T), std::log(SaturationPressureIce(T)), 1e-14 * 15);
    }
}

TEST(SearchStart, BandStartValuesAreThoseOfTheFirstStartingTemperature) {
    const auto& starts = airstate::BandStartSaturations();
    for (std::size_t k = 0; k < airstate::kTemperatureBands.size(); ++k) {
        const auto& band = airstate::kTemperatureBands[k];
        const double T = band.firstStart_C + 273.15;
        const bool ice = band.phase == airstate::Phase::Ice;
        // The same doubles the iteration computed at its start before the table: results must
        // not move.
        EXPECT_EQ(starts[k].own_Pa, ice ? SaturationPressureIce(T) : SaturationPressureWater(T)) << k;
        EXPECT_EQ(starts[k].water_Pa, SaturationPressureWater(T)) << k;
        EXPECT_NEAR(std::exp(starts[k].ln_Pa), starts[k].own_Pa, 1e-13 * starts[k].own_Pa) << k;
    }
}

TEST(SearchStart, SearchesStillLandOnTheirTargets) {
    // Each inverse, fed the forward function's value, gives its temperature back.
    for (double t = -55.0; t <= 195.0; t += 2.5) {
        if (std::fabs(t) < 1e-9) continue;  // 0 °C is the fixed 609 Pa
        const double T = t + 273.15, P = 101325.0;
        EXPECT_NEAR(DewPointFromPressure(SaturationPressure(t)), t, 1e-6) << t;
        if (t <= 0) continue;
        const double pq = 0.5 * SaturationPressure(t);
        const double ts = WetBulbTemperature(t, pq, P);
        if (ts > 0) {
            const double ps = PsychrometerFunctionWater(ts + 273.15, P);
            EXPECT_NEAR(ps, pq + 0.000667 * P * t, 1e-6 * ps) << t;
        }
        if (t < 90) {
            EXPECT_NEAR(TemperatureFromEnthalpy(EnthalpyAtHumidityWater(T, P, 50), P, 50), t, 1e-6) << t;
        }
    }
}
