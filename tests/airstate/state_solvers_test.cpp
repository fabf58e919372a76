// Each state solver against states worked out independently, and the failures and rules that
// belong to single solvers.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "adscodes.h"
#include "tests/airstate/worked.h"

using airstate_test::CloseRel;
using airstate_test::kFormulaRel;
using airstate_test::kOutOfRangeAlert;
using airstate_test::kRootAbs_C;
using airstate_test::MarkedRecord;
using airstate_test::Record;

TEST(StateFromTempHumidity, StandardRoomAir) {
    // t = 20 °C, fy = 50 %, B = 101.325 kPa; pb from the water correlation.
    AirState s = Record(101.325);
    s.t = 20.0;
    s.fy = 50.0;
    ASSERT_EQ(StateFromTempHumidity(s), RTNORM);
    EXPECT_TRUE(CloseRel(s.pb, 2364.89824041051, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.pq, 1182.449120205255, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.d, 7.3443640720766116, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.i, 38.831182778043948, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.v, 0.83415896010516652, kFormulaRel));
    EXPECT_NEAR(s.ts, 13.836179019878047, kRootAbs_C);
    EXPECT_NEAR(s.tl, 9.2784142246707392, kRootAbs_C);
    EXPECT_EQ(s.t, 20.0);
    EXPECT_EQ(s.fy, 50.0);
}

TEST(StateFromTempHumidity, FrostyAirAtReducedPressure) {
    AirState s = Record(90.0);
    s.t = -10.0;
    s.fy = 70.0;
    ASSERT_EQ(StateFromTempHumidity(s), RTNORM);
    EXPECT_TRUE(CloseRel(s.pb, 259.90286495218054, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.d, 1.2598991486553316, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.i, -6.9734342726969292, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.v, 0.8398863214433738, kFormulaRel));
    EXPECT_NEAR(s.ts, -10.948128962066339, kRootAbs_C);
    EXPECT_NEAR(s.tl, -13.956801379673052, kRootAbs_C);
}

TEST(StateFromTempHumidity, ZeroCelsiusUses609Pa) {
    AirState s = Record(101.325);
    s.t = 0.0;
    s.fy = 100.0;
    ASSERT_EQ(StateFromTempHumidity(s), RTNORM);
    EXPECT_EQ(s.pb, 609.0);
    EXPECT_EQ(s.pq, 609.0);
    EXPECT_DOUBLE_EQ(s.d, 622.0 * 609.0 / (101325.0 - 609.0));
}

TEST(StateFromTempMoisture, OverSaturatedFailsWithAllFieldsWritten) {
    AirState s = MarkedRecord(101.325, 12345.0);
    s.t = 20.0;
    s.d = 30.0;
    EXPECT_EQ(StateFromTempMoisture(s), RTERROR);
    EXPECT_TRUE(CloseRel(s.pb, 2364.89824041051, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.pq, 4662.1932515337423, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.fy, 197.14138950538765, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.i, 96.304, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.v, 0.8453755466415448, kFormulaRel));
    EXPECT_NEAR(s.ts, 28.998516983226248, kRootAbs_C);
    EXPECT_NEAR(s.tl, 31.435668914315452, kRootAbs_C);
    EXPECT_EQ(s.db, 12345.0);  // no solver of a temperature pair computes db
}

TEST(StateValidation, EachImpossibleStateFails) {
    airstate::AlertCapture capture;  // the negative moisture has no dew point
    AirState humid = Record(101.325);  // fy over 100 %
    humid.t = 25.0;
    humid.fy = 100.5;
    EXPECT_EQ(StateFromTempHumidity(humid), RTERROR);

    AirState undefined = Record(101.325);  // fy NaN
    undefined.t = 25.0;
    undefined.fy = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(StateFromTempHumidity(undefined), RTERROR);

    AirState boiling = Record(101.325);  // pb(120 °C) of about 198 kPa above P, fy small
    boiling.t = 120.0;
    boiling.d = 1.0;
    EXPECT_EQ(StateFromTempMoisture(boiling), RTERROR);
    EXPECT_LT(boiling.fy, 100.0);
    EXPECT_GT(boiling.pb, 101325.0);

    AirState negative = Record(101.325);  // d < 0 with fy and pb in order
    negative.t = 20.0;
    negative.d = -1.0;
    EXPECT_EQ(StateFromTempMoisture(negative), RTERROR);
    EXPECT_LT(negative.fy, 0.0);

    AirState saturated = Record(101.325);  // exactly 100 % passes
    saturated.t = 25.0;
    saturated.fy = 100.0;
    EXPECT_EQ(StateFromTempHumidity(saturated), RTNORM);
}

TEST(StateFromEnthalpyMoisture, UndefinedTemperatureKeepsPreviousSaturationPressure) {
    AirState s = Record(101.325);
    s.pb = 777.0;
    s.i = std::numeric_limits<double>::quiet_NaN();
    s.d = 8.0;
    airstate::AlertCapture capture;
    StateFromEnthalpyMoisture(s);
    EXPECT_TRUE(std::isnan(s.t));
    EXPECT_EQ(s.pb, 777.0);
}

TEST(StateFromTempWetBulb, SpecificVolumeAtTheWetBulb) {
    AirState s = Record(101.325);
    s.t = 25.0;
    s.ts = 18.0;
    ASSERT_EQ(StateFromTempWetBulb(s), RTNORM);
    EXPECT_TRUE(CloseRel(s.pq, 1614.07896342, 1e-10));
    EXPECT_TRUE(CloseRel(s.fy, 50.358408806721395, 1e-10));
    EXPECT_TRUE(CloseRel(s.d, 10.068677581254392, 1e-10));
    EXPECT_TRUE(CloseRel(s.i, 50.884853121873682, 1e-10));
    EXPECT_TRUE(CloseRel(s.v, 0.82983369016461489, 1e-10));  // at 18 °C; at 25 °C: 0.8498
    EXPECT_NEAR(s.tl, 13.980365008416255, kRootAbs_C);
    EXPECT_EQ(s.ts, 18.0);
}

TEST(StateFromTempWetBulb, EqualTemperaturesAreSaturated) {
    AirState s = Record(101.325);
    s.t = 22.0;
    s.ts = 22.0;
    ASSERT_EQ(StateFromTempWetBulb(s), RTNORM);
    EXPECT_NEAR(s.fy, 100.0, 1e-12);
    EXPECT_DOUBLE_EQ(s.v, 1.0 / (0.003484 * 101325.0 / 295.15 - 0.00134 * s.pq / 295.15));
}

TEST(StateFromTempDewPoint, GivenDewPointIsKept) {
    // tl within the 0 °C window: the vapour pressure is the fixed 609 Pa, whose own dew point
    // is -0.043 °C; the record keeps the given value.
    AirState s = Record(101.325);
    s.t = 20.0;
    s.tl = 0.00005;
    ASSERT_EQ(StateFromTempDewPoint(s), RTNORM);
    EXPECT_EQ(s.tl, 0.00005);
    EXPECT_TRUE(CloseRel(s.pq, 609.0, 1e-12));
    EXPECT_TRUE(CloseRel(s.d, 622.0 * 609.0 / (101325.0 - 609.0), 1e-12));
}

TEST(StateFromTempDewPoint, UndefinedDewPointMeansDryAir) {
    AirState s = Record(101.325);
    s.t = 20.0;
    s.tl = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(StateFromTempDewPoint(s), RTNORM);
    EXPECT_EQ(s.d, 0.0);
    EXPECT_EQ(s.pq, 0.0);
    EXPECT_EQ(s.fy, 0.0);
    EXPECT_TRUE(CloseRel(s.i, 1.01 * 20.0, 1e-15));
}

TEST(StateFromMoistureHumidity, TemperatureFromTheSaturationPressure) {
    AirState s = Record(101.325);
    s.d = 10.0;
    s.fy = 60.0;
    ASSERT_EQ(StateFromMoistureHumidity(s), RTNORM);
    EXPECT_TRUE(CloseRel(s.pq, 1603.2436708860759, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.pb, 2672.0727848101266, kFormulaRel));
    EXPECT_NEAR(s.t, 21.985347234392395, kRootAbs_C);
    EXPECT_TRUE(CloseRel(s.i, 47.609731095849139, 1e-9));
    EXPECT_NEAR(s.ts, 16.899885025399655, kRootAbs_C);
    EXPECT_TRUE(CloseRel(s.v, 0.84115788947469022, 1e-9));
    EXPECT_NEAR(s.tl, 13.876716119505739, kRootAbs_C);
}

TEST(StateFromMoistureHumidity, ZeroHumidityFails) {
    AirState s = Record(101.325);
    s.d = 10.0;
    s.fy = 0.0;
    airstate::AlertCapture capture;
    EXPECT_EQ(StateFromMoistureHumidity(s), RTERROR);
    EXPECT_TRUE(std::isinf(s.pb));
    EXPECT_EQ(s.t, -1000.0);  // no dew point for an infinite pressure
    ASSERT_EQ(capture.alerts().size(), 1u);
}

TEST(StateFromMoistureHumidity, BothTemperaturesOutOfRangeAlertTwice) {
    AirState s = Record(101.325);
    s.d = 0.0001;  // vapour pressure 0.016 Pa, far below the ice curve at -60 °C
    s.fy = 50.0;
    airstate::AlertCapture capture;
    StateFromMoistureHumidity(s);
    EXPECT_EQ(s.t, -1000.0);
    EXPECT_EQ(s.tl, -1000.0);
    ASSERT_EQ(capture.alerts().size(), 2u);
    EXPECT_EQ(capture.alerts()[0], kOutOfRangeAlert);
    EXPECT_EQ(capture.alerts()[1], kOutOfRangeAlert);
}

TEST(StateFromTempHumidity, DewPointBelowRangeAlertsOnce) {
    AirState s = Record(101.325);
    s.t = -50.0;
    s.fy = 10.0;  // 0.39 Pa of vapour, dew point below -60 °C
    airstate::AlertCapture capture;
    EXPECT_EQ(StateFromTempHumidity(s), RTNORM);
    EXPECT_EQ(s.tl, -1000.0);
    ASSERT_EQ(capture.alerts().size(), 1u);
    EXPECT_EQ(capture.alerts()[0], kOutOfRangeAlert);
}

TEST(StateFromSaturatedMoistureHumidity, WorkedState) {
    AirState s = Record(101.325);
    s.db = 20.0;
    s.fy = 40.0;
    ASSERT_EQ(StateFromSaturatedMoistureHumidity(s), RTNORM);
    EXPECT_TRUE(CloseRel(s.pb, 3156.5420560747664, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.pq, 1262.6168224299065, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.d, 7.8485804416403785, kFormulaRel));
    EXPECT_NEAR(s.t, 24.743898622333897, kRootAbs_C);
    EXPECT_NEAR(s.ts, 16.081513312046747, kRootAbs_C);
    EXPECT_TRUE(CloseRel(s.i, 44.970124953608197, 1e-9));
    EXPECT_TRUE(CloseRel(s.v, 0.84791692284809695, 1e-9));
    EXPECT_NEAR(s.tl, 10.255141007204064, kRootAbs_C);
    EXPECT_EQ(s.db, 20.0);
}

TEST(StateFromSaturatedMoistureDewPoint, VolumeAtTheDewPointAndDewPointKept) {
    AirState s = Record(101.325);
    s.db = 25.0;
    s.tl = 10.0;
    ASSERT_EQ(StateFromSaturatedMoistureDewPoint(s), RTNORM);
    EXPECT_TRUE(CloseRel(s.pb, 3915.1854714064915, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.d, 7.7139659691569132, kFormulaRel));
    EXPECT_TRUE(CloseRel(s.fy, 31.702876237551806, kFormulaRel));
    EXPECT_NEAR(s.t, 28.397709219928261, kRootAbs_C);
    EXPECT_NEAR(s.ts, 17.270595939519717, kRootAbs_C);
    EXPECT_TRUE(CloseRel(s.v, 0.80588455021707791, kFormulaRel));  // taken at 10 °C
    EXPECT_EQ(s.tl, 10.0);

    AirState window = Record(101.325);  // 609 Pa would give a dew point of -0.043 °C
    window.db = 25.0;
    window.tl = -0.00008;
    ASSERT_EQ(StateFromSaturatedMoistureDewPoint(window), RTNORM);
    EXPECT_EQ(window.tl, -0.00008);
}

TEST(SaturationFromEnthalpy, WritesOnlyTheWetBulb) {
    AirState s = MarkedRecord(90.0, 4321.0);
    s.i = 100.0;
    EXPECT_EQ(SaturationFromEnthalpy(s), RTNORM);
    EXPECT_NEAR(s.ts, 28.235265288441298, kRootAbs_C);
    const AirState untouched = MarkedRecord(90.0, 4321.0);
    for (double AirState::*field : {&AirState::pq, &AirState::pb, &AirState::t, &AirState::tl,
                                    &AirState::d, &AirState::fy, &AirState::v, &AirState::db})
        EXPECT_EQ(s.*field, untouched.*field);
    EXPECT_EQ(s.i, 100.0);
}

TEST(SaturationFromEnthalpy, AlwaysNormal) {
    AirState s = Record(101.325);
    s.i = 1.0e6;  // no band: ts exactly 0
    EXPECT_EQ(SaturationFromEnthalpy(s), RTNORM);
    EXPECT_EQ(s.ts, 0.0);
}

TEST(StateFromEnthalpyHumidity, LeavesMoistureAndEnthalpyAlone) {
    AirState s = MarkedRecord(101.325, 0.0);
    s.i = 50.0;
    s.fy = 50.0;
    s.d = 8.0;  // the caller's, not the state's own 9.83 g/kg
    s.db = 3.0;
    ASSERT_EQ(StateFromEnthalpyHumidity(s), RTNORM);
    EXPECT_EQ(s.i, 50.0);
    EXPECT_EQ(s.d, 8.0);
    EXPECT_EQ(s.db, 3.0);
    EXPECT_NEAR(s.t, 24.726691239477684, kRootAbs_C);
    EXPECT_TRUE(CloseRel(s.pq, s.pb * 0.5, 1e-15));
    EXPECT_NEAR(s.tl, 10.537494371195536, kRootAbs_C);  // dew point of d = 8, not of pq

    s.d = -1.0;  // the d < 0 check reads the caller's d
    airstate::AlertCapture capture;
    EXPECT_EQ(StateFromEnthalpyHumidity(s), RTERROR);
    EXPECT_EQ(s.d, -1.0);
}
