// Round trips: a state solved from dry bulb and humidity is found again by every other solver
// from its own pair of that state's quantities.

#include <gtest/gtest.h>

#include "adscodes.h"
#include "tests/airstate/worked.h"

using airstate_test::Record;

namespace {

struct Condition {
    double B_kPa, t, fy;
};

// Realistic conditions across the ice and water ranges and the pressures of sites.
constexpr Condition kConditions[] = {
    {101.325, 20.0, 50.0}, {101.325, 35.0, 80.0}, {95.0, 5.0, 30.0},  {110.0, -15.0, 60.0},
    {85.0, 45.0, 15.0},    {101.325, -30.0, 90.0}, {101.325, 60.0, 10.0}, {80.0, 12.5, 99.5},
};

AirState Reference(const Condition& c) {
    AirState s = Record(c.B_kPa);
    s.t = c.t;
    s.fy = c.fy;
    EXPECT_EQ(StateFromTempHumidity(s), RTNORM);
    return s;
}

// Saturated moisture content at the dry bulb, from the saturation pressure (own arithmetic).
double SaturatedMoisture(const AirState& s) { return 622.0 * s.pb / (1000.0 * s.B - s.pb); }

void ExpectSameState(const AirState& got, const AirState& want, const char* solver) {
    SCOPED_TRACE(solver);
    EXPECT_NEAR(got.t, want.t, 1e-7);
    EXPECT_NEAR(got.fy, want.fy, 1e-7);
    EXPECT_NEAR(got.d, want.d, 1e-8);
    EXPECT_NEAR(got.pq, want.pq, 1e-6);
    EXPECT_NEAR(got.ts, want.ts, 1e-7);
    EXPECT_NEAR(got.tl, want.tl, 1e-7);
}

}  // namespace

TEST(RoundTrip, EverySolverFindsTheSameState) {
    for (const Condition& c : kConditions) {
        SCOPED_TRACE(::testing::Message() << "B=" << c.B_kPa << " t=" << c.t << " fy=" << c.fy);
        const AirState ref = Reference(c);

        AirState s = Record(c.B_kPa);
        s.t = ref.t, s.ts = ref.ts;
        EXPECT_EQ(StateFromTempWetBulb(s), RTNORM);
        ExpectSameState(s, ref, "t,ts");

        s = Record(c.B_kPa), s.t = ref.t, s.d = ref.d;
        EXPECT_EQ(StateFromTempMoisture(s), RTNORM);
        ExpectSameState(s, ref, "t,d");
        EXPECT_NEAR(s.i, ref.i, 1e-9);
        EXPECT_EQ(s.v, ref.v);

        s = Record(c.B_kPa), s.t = ref.t, s.tl = ref.tl;
        EXPECT_EQ(StateFromTempDewPoint(s), RTNORM);
        ExpectSameState(s, ref, "t,tl");

        s = Record(c.B_kPa), s.i = ref.i, s.d = ref.d;
        EXPECT_EQ(StateFromEnthalpyMoisture(s), RTNORM);
        ExpectSameState(s, ref, "i,d");

        s = Record(c.B_kPa), s.d = ref.d, s.fy = ref.fy;
        EXPECT_EQ(StateFromMoistureHumidity(s), RTNORM);
        ExpectSameState(s, ref, "d,fy");

        s = Record(c.B_kPa), s.db = SaturatedMoisture(ref), s.fy = ref.fy;
        EXPECT_EQ(StateFromSaturatedMoistureHumidity(s), RTNORM);
        ExpectSameState(s, ref, "db,fy");

        s = Record(c.B_kPa), s.db = SaturatedMoisture(ref), s.tl = ref.tl;
        EXPECT_EQ(StateFromSaturatedMoistureDewPoint(s), RTNORM);
        ExpectSameState(s, ref, "db,tl");

        s = Record(c.B_kPa), s.i = ref.i, s.fy = ref.fy, s.d = ref.d;
        EXPECT_EQ(StateFromEnthalpyHumidity(s), RTNORM);
        EXPECT_NEAR(s.tl, ref.tl, 1e-7);  // from the d given
        if (ref.t > 0.0) {
            EXPECT_NEAR(s.t, ref.t, 1e-7);
            EXPECT_NEAR(s.ts, ref.ts, 1e-7);
            EXPECT_NEAR(s.v, ref.v, 1e-10);
        } else {
            // Below 0 °C the enthalpy is matched on the water curve, which holds more vapour
            // than the ice curve: the same enthalpy is reached at a lower temperature.
            EXPECT_LT(s.t, ref.t - 0.1);
        }
    }
}

TEST(RoundTrip, SaturatedAirHasItsOwnDewPointAndWetBulb) {
    for (const double t : {-40.0, -5.0, 3.0, 26.0, 58.0}) {
        AirState s = Record(101.325);
        s.t = t;
        s.fy = 100.0;
        ASSERT_EQ(StateFromTempHumidity(s), RTNORM);
        EXPECT_NEAR(s.tl, t, 1e-7) << "t=" << t;
        EXPECT_NEAR(s.ts, t, 1e-7) << "t=" << t;

        AirState sat = Record(101.325);  // the saturated air of the same enthalpy
        sat.i = s.i;
        SaturationFromEnthalpy(sat);
        if (t > 0) {
            EXPECT_NEAR(sat.ts, t, 1e-7) << "t=" << t;
        } else {
            EXPECT_LT(sat.ts, t) << "t=" << t;  // matched on the water curve
        }
    }
}
