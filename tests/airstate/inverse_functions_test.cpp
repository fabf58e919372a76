// The three band-search inverse functions: their roots against independent bisection, their
// band rules at the edges of the range, and what each does when no band holds.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/airstate/worked.h"

using airstate_test::kOutOfRangeAlert;
using airstate_test::kRootAbs_C;

TEST(DewPointFromPressure, MatchesBisectionOnBothCurves) {
    airstate::AlertCapture capture;
    EXPECT_NEAR(DewPointFromPressure(1000.0), 6.8172002749139796, kRootAbs_C);
    EXPECT_NEAR(DewPointFromPressure(100.0), -20.333871321485331, kRootAbs_C);
    EXPECT_NEAR(DewPointFromPressure(20000.0), 59.788729943846351, kRootAbs_C);
    EXPECT_TRUE(capture.alerts().empty());
}

TEST(DewPointFromPressure, ZeroCelsiusBandStartsOnTheIceCurve) {
    // Between the ice curve (611.15 Pa) and the water curve (617.56 Pa) at 0 °C the lowest
    // water band holds, and the water curve's root lies a little below 0 °C.
    airstate::AlertCapture capture;
    EXPECT_NEAR(DewPointFromPressure(611.18), -0.1428959877338709, kRootAbs_C);
    EXPECT_NEAR(DewPointFromPressure(609.0), -0.042860778336760439, kRootAbs_C);
    EXPECT_TRUE(capture.alerts().empty());
}

TEST(DewPointFromPressure, TopOfTheRangeIsInside) {
    airstate::AlertCapture capture;
    EXPECT_NEAR(DewPointFromPressure(SaturationPressureWater(473.15)), 200.0, 1e-7);
    EXPECT_NEAR(DewPointFromPressure(SaturationPressureIce(213.15)), -60.0, 1e-7);
    EXPECT_TRUE(capture.alerts().empty());
}

TEST(DewPointFromPressure, OutOfRangeAlertsOnceAndReturnsSentinel) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // Below -60 °C (1.08 Pa), above 200 °C (1.58 MPa), and pressures with no logarithm.
    for (const double p : {0.5, 2.0e6, 0.0, -5.0, nan}) {
        airstate::AlertCapture capture;
        EXPECT_EQ(DewPointFromPressure(p), -1000.0) << "p = " << p;
        ASSERT_EQ(capture.alerts().size(), 1u) << "p = " << p;
        EXPECT_EQ(capture.alerts()[0], kOutOfRangeAlert);
    }
}

TEST(WetBulbTemperature, MatchesBisectionOfThePsychrometerEquation) {
    airstate::AlertCapture capture;
    EXPECT_NEAR(WetBulbTemperature(30.0, 1500.0, 101325.0), 19.102465610124049, kRootAbs_C);
    EXPECT_NEAR(WetBulbTemperature(-10.0, 150.0, 101325.0), -11.22738282498296, kRootAbs_C);
    EXPECT_NEAR(WetBulbTemperature(40.0, 2000.0, 85000.0), 23.526229153213775, kRootAbs_C);
    EXPECT_TRUE(capture.alerts().empty());
}

TEST(WetBulbTemperature, NoBandGivesExactlyZeroWithoutAlert) {
    airstate::AlertCapture capture;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // Target between the two curves at 0 °C (611.15 .. 617.56 Pa), above the top band's
    // 1.597 MPa, and NaN.
    for (const auto& [t, pq] : {std::pair{0.0, 614.0}, std::pair{250.0, 1.7e6},
                                std::pair{nan, 1000.0}, std::pair{20.0, nan}}) {
        const double ts = WetBulbTemperature(t, pq, 101325.0);
        EXPECT_EQ(ts, 0.0) << "t = " << t << ", pq = " << pq;
        EXPECT_FALSE(std::signbit(ts));
    }
    EXPECT_TRUE(capture.alerts().empty());
}

TEST(TemperatureFromEnthalpy, MatchesBisectionOfTheWaterForm) {
    EXPECT_NEAR(TemperatureFromEnthalpy(50.0, 101325.0, 50.0), 24.726691239477684, kRootAbs_C);
    EXPECT_NEAR(TemperatureFromEnthalpy(100.0, 90000.0, 100.0), 28.235265288441298,
                kRootAbs_C);
}

TEST(TemperatureFromEnthalpy, IceBandIteratesTheWaterForm) {
    // The enthalpy of saturated air at -10 °C on the ice curve selects an ice band, but the
    // iteration solves the water form, whose root is -10.33 °C rather than -10 °C.
    const double i = EnthalpyAtHumidityIce(263.15, 101325.0, 100.0);
    EXPECT_NEAR(i, -6.1305344766475773, 1e-12);
    EXPECT_NEAR(TemperatureFromEnthalpy(i, 101325.0, 100.0), -10.332696314408822, kRootAbs_C);
}

TEST(TemperatureFromEnthalpy, NoBandGivesExactlyZero) {
    // Saturated air at 0 °C: 9.436 kJ/kg on the ice curve, 9.536 on the water curve.
    EXPECT_EQ(TemperatureFromEnthalpy(9.5, 101325.0, 100.0), 0.0);
    EXPECT_EQ(TemperatureFromEnthalpy(1.0e6, 101325.0, 100.0), 0.0);
    EXPECT_EQ(TemperatureFromEnthalpy(-500.0, 101325.0, 100.0), 0.0);
}
