// The supply-air calculation against figures worked independently: by hand where the formula is
// short, otherwise by tests/psychro/supply_air_worked.py (40-digit arithmetic, roots by
// bisection), and against the heat and moisture balances the result must satisfy.
#include <gtest/gtest.h>

#include <cmath>

#include "adscodes.h"
#include "host/output.h"
#include "psychro/supply_air.h"

namespace {

using vrn2::computeSupplyAir;
using vrn2::SupplyAirInput;
using vrn2::SupplyAirResult;

// Closed formulas agree to rounding; wet bulb and dew point come from secant steps that stop
// once a step is below 1e-5 K.
constexpr double kRel = 1e-9;
constexpr double kRootAbs = 1e-6;

::testing::AssertionResult closeRel(double actual, double expected) {
    if (std::fabs(actual - expected) <= kRel * std::fabs(expected)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << actual << " is not " << expected;
}

SupplyAirInput input(double B, double tn, double rhn, double load, double w, double dt, bool total, bool moisture) {
    SupplyAirInput in;
    in.B = B, in.tn = tn, in.rhn = rhn, in.load = load, in.w = w, in.dt = dt;
    in.totalLoad = total;
    in.moistureGiven = moisture;
    return in;
}

struct Worked {
    double G, d, i, fy, ts, tl;
};

void expectSupply(const SupplyAirResult& r, double to, const Worked& w) {
    EXPECT_TRUE(r.complete);
    EXPECT_TRUE(closeRel(r.G, w.G));
    EXPECT_EQ(r.supply.t, to) << "the dry bulb is the supply temperature exactly";
    EXPECT_TRUE(closeRel(r.supply.d, w.d));
    EXPECT_TRUE(closeRel(r.supply.i, w.i));
    EXPECT_TRUE(closeRel(r.supply.fy, w.fy));
    EXPECT_NEAR(r.supply.ts, w.ts, kRootAbs);
    EXPECT_NEAR(r.supply.tl, w.tl, kRootAbs);
}

TEST(SupplyAir, TotalLoadAtTheDefaultsMatchesTheWorkedFigures) {
    SupplyAirResult r;
    ASSERT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 5, 6, true, true), r), RTNORM);
    expectSupply(r, 16.0,
                 {4718.061459542256, 8.9493345507452512, 38.796804786037068, 78.217362821208923,
                  13.741674450460124, 12.205874487063432});
    EXPECT_EQ(r.supply.B, 101.325);
    EXPECT_EQ(r.indoor.t, 22.0);
    EXPECT_EQ(r.indoor.fy, 60.0);
}

TEST(SupplyAir, TotalLoadAtAnotherPressureAndRoom) {
    SupplyAirResult r;
    ASSERT_EQ(computeSupplyAir(input(90, 26, 55, 20, 8, 8, true, true), r), RTNORM);
    expectSupply(r, 18.0,
                 {6252.4537194559878, 11.924165878528452, 48.385343070217993, 81.169386008734197,
                  15.852187825050276, 14.716542381835313});
}

TEST(SupplyAir, SensibleAndMoistureLoadMatchTheWorkedFigures) {
    SupplyAirResult r;
    ASSERT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 5, 6, false, true), r), RTNORM);
    // G by hand: 11.6 · 3600 / (1.01 · 6) = 41760 / 6.06.
    expectSupply(r, 16.0,
                 {41760.0 / 6.06, 9.2835171225022509, 39.642099550342094, 81.096833225831195,
                  14.049109911338758, 12.755566748588611});

    ASSERT_EQ(computeSupplyAir(input(90, 26, 55, 15, 4, 8, false, true), r), RTNORM);
    expectSupply(r, 18.0,
                 {6683.1683168316832, 12.605145035475505, 50.110344992263711, 85.716307758134655,
                  16.383257954224671, 15.562652672718043});
}

TEST(SupplyAir, TheSupplyStateCarriesTheLoadsAwayExactly) {
    // Total load: the flow takes up q as enthalpy and w as moisture from N down to O.
    SupplyAirResult r;
    ASSERT_EQ(computeSupplyAir(input(101.325, 24, 50, 30, 12, 7, true, true), r), RTNORM);
    EXPECT_TRUE(closeRel(r.G * (r.indoor.i - r.supply.i) / 3600.0, 30.0));
    EXPECT_TRUE(closeRel(r.G * (r.indoor.d - r.supply.d) / 1000.0, 12.0));
    // Sensible load: 1.01·dt per kg carries qx, and the moisture balance holds as well.
    ASSERT_EQ(computeSupplyAir(input(101.325, 24, 50, 30, 12, 7, false, true), r), RTNORM);
    EXPECT_TRUE(closeRel(r.G * 1.01 * 7.0 / 3600.0, 30.0));
    EXPECT_TRUE(closeRel(r.G * (r.indoor.d - r.supply.d) / 1000.0, 12.0));
}

TEST(SupplyAir, SensibleLoadOnlyGivesTheFlowAndTheSupplyTemperature) {
    SupplyAirResult r;
    ASSERT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 5, 6, false, false), r), RTNORM);
    EXPECT_FALSE(r.complete);
    EXPECT_TRUE(closeRel(r.G, 41760.0 / 6.06));  // 6891.0891...
    EXPECT_EQ(r.supply.t, 16.0);
    EXPECT_EQ(r.supply.B, 101.325);
    EXPECT_EQ(r.supply.d, 0.0);
    EXPECT_EQ(r.supply.i, 0.0);
    EXPECT_EQ(r.supply.fy, 0.0);
}

TEST(SupplyAir, ThePointOnTheProcessLine) {
    // By hand: the line i = 50 + 2.5·(d − 10) meets i = 1.01·20 + 0.001·d·(1.84·20 + 2500)
    // where 50 − 25 − 20.2 = (2.5368 − 2.5)·d, so d = 4.8 / 0.0368.
    EXPECT_TRUE(closeRel(vrn2::moistureOnProcessLine(50.0, 10.0, 2.5, 20.0), 4.8 / 0.0368));
}

TEST(SupplyAir, ImpossibleCasesFail) {
    host::OutputCapture quiet;  // out-of-range dew points alert; not the subject here
    SupplyAirResult r;
    // A total load needs the moisture load to fix the process line.
    EXPECT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 5, 6, true, false), r), RTERROR);
    // No moisture load at all: an infinite heat-moisture ratio, no point on the line.
    EXPECT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 0, 6, true, true), r), RTERROR);
    // No temperature difference: no finite flow.
    EXPECT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 5, 0, false, false), r), RTERROR);
    EXPECT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 5, 0, false, true), r), RTERROR);
    // A heating supply (negative difference) gives a negative flow for a cooling load.
    EXPECT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 5, -6, false, false), r), RTERROR);
    // So much moisture taken out that the supply air would need negative moisture.
    EXPECT_EQ(computeSupplyAir(input(101.325, 22, 60, 11.6, 500, 6, false, true), r), RTERROR);
    EXPECT_LT(r.supply.d, 0.0);
    // A humid room with a large moisture gain: supply air above saturation at 16 °C.
    EXPECT_EQ(computeSupplyAir(input(101.325, 22, 95, 2, 20, 6, true, true), r), RTERROR);
    EXPECT_GT(r.supply.fy, 100.0);
}

}  // namespace
