// The coil check against an independent solution: the outlet dry bulb at which the
// efficiency the coil gives equals the efficiency the outlet stands for, found by bisection
// with the relations written out here, for one unit, two in parallel and two in series; the
// iteration cap; and the refusals.
#include <gtest/gtest.h>

#include <cmath>

#include "coil/coil_check.h"
#include "tests/coil/coil_test_support.h"

namespace {

using coil_test::Alerts;
using vrn2::CoilCheckInput;
using vrn2::CoilCheckResult;
using vrn2::CoilCheckStatus;
using vrn2::CoolerModel;

// Enthalpy, kJ/kg, of air at dry bulb t and wet bulb ts (both above 0 °C), with the latent
// heat 2501 of the cooler's variant: vapour pressure by the psychrometer relation.
double enthalpy(double B, double t, double ts) {
    const double P = 1000.0 * B;
    const double pq = SaturationPressureWater(ts + 273.15) - 0.000667 * P * (t - ts);
    const double d = 622.0 * pq / (P - pq);
    return 1.01 * t + 0.001 * d * (1.84 * t + 2501.0);
}

struct Independent {
    double Vy, w, E2;
    double t2, ts2, Q, tw2;
};

// The difference Eg − Ec at outlet dry bulb t2: Eg from the number of transfer units and the
// capacity ratio of a counterflow exchanger, Ec from the temperatures.
double efficiencyGap(const CoilCheckInput& in, const CoolerModel& m, const Independent& s, double t2) {
    const double ts2 = t2 - (1 - s.E2) * (in.t1 - in.ts1);
    const double airCapacity_kW = [&] {
        const double xi = (enthalpy(in.B, in.t1, in.ts1) - enthalpy(in.B, t2, ts2)) / (1.01 * (in.t1 - t2));
        return xi * 1.01 * in.G / 3600.0;
    }();
    const double xi = airCapacity_kW / (1.01 * in.G / 3600.0);
    const double airSide = m.A * std::pow(s.Vy, m.m) * std::pow(xi, m.p);
    const double waterSide = m.B * std::pow(s.w, m.n);
    const double K = airSide * waterSide / (airSide + waterSide);
    const double ntu = in.units * in.rows * m.Fd * K / 1000.0 / airCapacity_kW;
    const double ratio = airCapacity_kW / (in.W / 3600.0 * 4.186);
    const double x = std::exp(-ntu * (1 - ratio));
    const double Eg = (1 - x) / (1 - ratio * x);
    return Eg - (in.t1 - t2) / (in.t1 - in.tw1);
}

Independent solve(const CoilCheckInput& in, const CoolerModel& m, double E2) {
    Independent s{};
    const double share = in.series ? 1.0 : in.units;
    s.Vy = in.G / 3600.0 / 1.2 / m.Fy / share;
    s.w = in.W / 3600.0 / 1000.0 / m.fw / share;
    s.E2 = E2;
    // Ec rises from 0 at t2 = t1 to 1 at t2 = tw1; the gap changes sign once in between.
    double lo = in.tw1 + 1e-6, hi = in.t1 - 1e-6;
    const double gapAtLo = efficiencyGap(in, m, s, lo);
    for (int k = 0; k < 200; ++k) {
        const double mid = (lo + hi) / 2;
        if ((efficiencyGap(in, m, s, mid) > 0) == (gapAtLo > 0)) lo = mid; else hi = mid;
    }
    s.t2 = (lo + hi) / 2;
    s.ts2 = s.t2 - (1 - E2) * (in.t1 - in.ts1);
    s.Q = (enthalpy(in.B, in.t1, in.ts1) - enthalpy(in.B, s.t2, s.ts2)) * in.G / 3600.0;
    s.tw2 = in.tw1 + s.Q / (in.W / 3600.0 * 4.186);
    return s;
}

CoilCheckInput summerInlet(int units, bool series) {
    CoilCheckInput in;
    in.B = 101.325;
    in.t1 = 27.0;
    in.ts1 = 19.5;
    in.G = 20000.0 * units;
    in.W = 18000.0 * units;
    in.tw1 = 7.0;
    in.rows = 4;
    in.units = units;
    in.series = series;
    return in;
}

// The iteration stops once |Eg − Ec| ≤ 0.0005 and then averages the two: its outlet dry bulb
// lies within 0.0005·(t1 − tw1) of the root, and the load within the same share of itself.
void expectAgreement(const CoilCheckInput& in, const CoolerModel& m, const CoilCheckResult& r) {
    const Independent s = solve(in, m, r.E2);
    const double range = in.t1 - in.tw1;
    EXPECT_NEAR(r.Vy, s.Vy, 1e-12);
    EXPECT_NEAR(r.w, s.w, 1e-12);
    EXPECT_NEAR(r.outlet.t, s.t2, 0.0005 * range);
    EXPECT_NEAR(r.outlet.ts, s.ts2, 0.0005 * range * 2);
    EXPECT_NEAR(r.Q, s.Q, 0.002 * s.Q);
    EXPECT_NEAR(r.tw2, s.tw2, 0.002 * (s.tw2 - in.tw1));
    EXPECT_LE(std::fabs(r.Eg - r.Ec), 0.0005);
    // What the file prints is a state: the outlet dry bulb sits below the inlet, above the water.
    EXPECT_GT(r.outlet.t, in.tw1);
    EXPECT_LT(r.outlet.t, in.t1);
    EXPECT_LE(r.outlet.fy, 100.0);
    EXPECT_GT(r.tw2, in.tw1);
}

TEST(CoilCheck, OneUnitAgreesWithBisection) {
    const CoolerModel m = coil_test::jw20FourRows();
    const CoilCheckInput in = summerInlet(1, false);
    Alerts alerts;
    CoilCheckResult r;
    ASSERT_EQ(vrn2::checkCoil(in, m, r, alerts.sink()), CoilCheckStatus::Done);
    EXPECT_TRUE(alerts.seen.empty());
    // 20000 kg/h over 1.87 m² at 1.2 kg/m³: 2.4757 m/s, E2 on the line 0.797 .. 0.768.
    EXPECT_NEAR(r.Vy, 2.47573, 1e-5);
    EXPECT_NEAR(r.E2, 0.797 + (0.768 - 0.797) * (r.Vy - 2.0) / 0.5, 1e-12);
    expectAgreement(in, m, r);
    // The outlet state continues the inlet's wet bulb difference by the contact coefficient.
    EXPECT_NEAR(r.outlet.t - r.outlet.ts, (1 - r.E2) * (in.t1 - in.ts1), 0.0005 * 20 * 2);
}

TEST(CoilCheck, SeriesAndParallelDifferByTheFlowEachUnitTakes) {
    const CoolerModel m = coil_test::jw20FourRows();
    CoilCheckResult parallel, series;
    Alerts alerts;
    const CoilCheckInput inParallel = summerInlet(2, false);
    const CoilCheckInput inSeries = summerInlet(2, true);
    ASSERT_EQ(vrn2::checkCoil(inParallel, m, parallel, alerts.sink()), CoilCheckStatus::Done);
    ASSERT_EQ(vrn2::checkCoil(inSeries, m, series, alerts.sink()), CoilCheckStatus::Done);

    // In parallel each unit takes half of 40000 kg/h: the one-unit velocities again.
    EXPECT_NEAR(parallel.Vy, 2.47573, 1e-5);
    EXPECT_NEAR(series.Vy, 2 * parallel.Vy, 1e-12);
    EXPECT_NEAR(series.w, 2 * parallel.w, 1e-12);
    expectAgreement(inParallel, m, parallel);
    expectAgreement(inSeries, m, series);
    // Series doubles the velocities beyond the table: extrapolated E2, told once.
    EXPECT_EQ(alerts.seen.size(), 1u);
    EXPECT_GT(std::fabs(series.outlet.t - parallel.outlet.t), 0.1);
}

TEST(CoilCheck, CapFailsEvenWhenTheLastPassConverged) {
    const CoolerModel m = coil_test::jw20FourRows();
    const CoilCheckInput in = summerInlet(1, false);
    CoilCheckResult free, capped, roomy;
    ASSERT_EQ(vrn2::checkCoil(in, m, free, nullptr), CoilCheckStatus::Done);
    ASSERT_GT(free.iterations, 1);
    // With the cap at the pass that converges, the check still fails.
    EXPECT_EQ(vrn2::checkCoil(in, m, capped, nullptr, free.iterations), CoilCheckStatus::NotConverged);
    EXPECT_LE(std::fabs(capped.Eg - capped.Ec), 0.0005);
    ASSERT_EQ(vrn2::checkCoil(in, m, roomy, nullptr, free.iterations + 1), CoilCheckStatus::Done);
    EXPECT_EQ(roomy.outlet.t, free.outlet.t);
}

TEST(CoilCheck, WaterAsWarmAsTheAirNeverConverges) {
    CoilCheckInput in = summerInlet(1, false);
    in.tw1 = in.t1;  // no temperature difference: the current efficiency is no number
    CoilCheckResult r;
    EXPECT_EQ(vrn2::checkCoil(in, coil_test::jw20FourRows(), r, nullptr), CoilCheckStatus::NotConverged);
    EXPECT_EQ(r.iterations, vrn2::kMaxCoilIterations);
    EXPECT_STREQ(vrn2::coilCheckMessage(CoilCheckStatus::NotConverged), L"迭代100000次仍不收敛,校核失败.");
}

TEST(CoilCheck, NoContactCoefficientOrImpossibleInletIsRefused) {
    CoolerModel m = coil_test::jw20FourRows();
    CoilCheckResult r;
    CoolerModel empty = m;
    empty.E2 = vrn2::ContactTable{};
    EXPECT_EQ(vrn2::checkCoil(summerInlet(1, false), empty, r, nullptr), CoilCheckStatus::NoContactCoefficient);
    EXPECT_EQ(r.iterations, 0);
    CoolerModel tiny = m;
    tiny.E2 = vrn2::ContactTable{};
    tiny.E2[0] = {2.0, 1e-7};
    EXPECT_EQ(vrn2::checkCoil(summerInlet(1, false), tiny, r, nullptr), CoilCheckStatus::NoContactCoefficient);

    CoilCheckInput wetter = summerInlet(1, false);
    wetter.ts1 = 30.0;  // wet bulb above the dry bulb
    EXPECT_EQ(vrn2::checkCoil(wetter, m, r, nullptr), CoilCheckStatus::ImpossibleInlet);
}

}  // namespace
