// Air properties, the friction factor and the loss of one segment, against values worked by
// hand and by an independent bisection of the Colebrook–White equation in λ.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "duct/friction_factor.h"
#include "duct/interpolation.h"
#include "duct/duct_segment.h"
#include "duct/segment_loss.h"

namespace vrn2::duct {
namespace {

// 1/√λ = −2·log10(K/(3.7·D) + 2.51/(Re·√λ)), solved for λ by bisection on [1e-4, 1].
double colebrookByBisection(double kMm, double Re, double De) {
    auto g = [&](double lambda) {
        double s = std::sqrt(lambda);
        return 1.0 / s + 2.0 * std::log10(kMm / 1000.0 / (3.7 * De) + 2.51 / (Re * s));
    };
    double lo = 1e-4, hi = 1.0;  // g(lo) > 0 > g(hi) for every duct below
    for (int i = 0; i < 200; ++i) {
        double mid = 0.5 * (lo + hi);
        (g(mid) > 0.0 ? lo : hi) = mid;
    }
    return 0.5 * (lo + hi);
}

TEST(Interpolation, LinearInsideExtendedOutsideExactOnKnots) {
    const std::vector<double> table{0, 10, 30, 1, 3, 4};
    EXPECT_DOUBLE_EQ(interpolateTable(table, 0), 1);
    EXPECT_DOUBLE_EQ(interpolateTable(table, 5), 2);
    EXPECT_DOUBLE_EQ(interpolateTable(table, 10), 3);
    EXPECT_DOUBLE_EQ(interpolateTable(table, 20), 3.5);
    EXPECT_DOUBLE_EQ(interpolateTable(table, 30), 4);
    EXPECT_DOUBLE_EQ(interpolateTable(table, 50), 5);    // slope 1/20 continued
    EXPECT_DOUBLE_EQ(interpolateTable(table, -10), -1);  // slope 1/5 continued
}

TEST(AirProperties, DensityAndViscosityTable) {
    EXPECT_NEAR(airDensity(101.325, 20), 1.2028347262493604, 1e-14);
    EXPECT_DOUBLE_EQ(airViscosity(20), 1.506e-5);
    EXPECT_DOUBLE_EQ(airViscosity(25), (1.506e-5 + 1.6e-5) / 2);
    EXPECT_NEAR(airViscosity(-20), 1.243e-5 - (1.328e-5 - 1.243e-5), 1e-18);
    EXPECT_NEAR(airViscosity(90), 2.109e-5 + (2.109e-5 - 2.002e-5), 1e-18);
}

TEST(FrictionFactor, AgreesWithBisectionOverReynoldsAndRoughness) {
    for (double Re : {4e3, 2e4, 1e5, 5e5, 2e6, 1e7}) {
        for (double relative : {0.0, 1e-5, 1e-4, 1e-3, 5e-3, 2e-2}) {
            double De = 0.5;
            double K = relative * De * 1000.0;
            FrictionFactor f = frictionFactor(K, Re, De);
            ASSERT_TRUE(f.found);
            EXPECT_NEAR(f.lambda, colebrookByBisection(K, Re, De), 1e-9 * f.lambda) << Re << " " << relative;
        }
    }
}

TEST(FrictionFactor, SecantEndPointIsKeptWhenItIsARoot) {
    // Ø200 mm, 1 000 m³/h, K = 0.15 mm, 20 °C: the secant settles on the root.
    double Re = 8.841941282883074 * 0.2 / 1.506e-5;
    FrictionFactor f = frictionFactor(0.15, Re, 0.2);
    EXPECT_FALSE(f.bracketed);
    EXPECT_GT(f.secantSteps, 100);
    EXPECT_NEAR(f.lambda, colebrookByBisection(0.15, Re, 0.2), 1e-12);
}

TEST(FrictionFactor, SecantStuckOffTheRootIsReplacedByBisection) {
    // Ø630 mm, 12 000 m³/h, K = 0.9 mm, 40 °C: the secant stops near λ = 0.0100.
    double v = 12000.0 / 3600.0 / (kQuarterPi * 0.63 * 0.63);
    double Re = v * 0.63 / 1.696e-5;
    FrictionFactor f = frictionFactor(0.9, Re, 0.63);
    EXPECT_TRUE(f.bracketed);
    EXPECT_NEAR(f.lambda, 0.022040732, 5e-10);
    EXPECT_NEAR(f.lambda, colebrookByBisection(0.9, Re, 0.63), 1e-12);
}

TEST(FrictionFactor, NoRootIsReportedNotInvented) {
    EXPECT_FALSE(frictionFactor(0.15, 0.0, 0.2).found);
    EXPECT_FALSE(frictionFactor(800.0, 1e5, 0.2).found);  // K/(3.7·De) above 1
}

SegmentLossInput circular(int d, double flow, double length, double xi) {
    SegmentLossInput in;
    in.section = {kShapeCircular, d, 0, flow};
    in.length = length;
    in.xi = xi;
    return in;
}

TEST(SegmentLoss, WorkedDuctIsFrictionOnly) {
    SegmentLossInput in = circular(200, 1000, 10, 0);
    in.endKind = 2;
    SegmentLoss r = segmentLoss(in, AirInputs{0.15, 101.325, 20});
    ASSERT_TRUE(r.computed);
    EXPECT_NEAR(r.density, 1.20283, 1e-5);
    EXPECT_NEAR(r.velocity, 8.84194, 1e-5);
    double Re = 8.841941282883074 * 0.2 / 1.506e-5;
    double lambda = colebrookByBisection(0.15, Re, 0.2);
    // ΔPl = l·λ·ρ·v²/(8·De/4) = l·λ/De·ρv²/2
    double expected = 10 * lambda / 0.2 * 1.2028347262493604 * 8.841941282883074 * 8.841941282883074 / 2;
    EXPECT_NEAR(r.frictionLoss, expected, 1e-9);
    EXPECT_EQ(r.localLoss, 0.0);
    EXPECT_DOUBLE_EQ(r.total, r.frictionLoss);
}

TEST(SegmentLoss, RectangularDuctUsesItsHydraulicDiameter) {
    SegmentLossInput in;
    in.section = {kShapeRectangular, 500, 250, 3600};
    in.length = 5;
    in.endKind = 2;
    SegmentLoss r = segmentLoss(in, AirInputs{0.15, 101.325, 20});
    EXPECT_NEAR(r.De, 2.0 * 500 * 250 / 750 / 1000.0, 1e-15);
    EXPECT_NEAR(r.area, 0.125, 1e-15);
    EXPECT_NEAR(r.velocity, 8.0, 1e-12);
}

TEST(SegmentLoss, ContractionUsesTheDownstreamFlowOverTheSegmentsOwnArea) {
    AirInputs air{0.15, 101.325, 20};
    // Ø400 → Ø300, ξ = 0.5, downstream 1 800 m³/h: v_D = 0.5 m³/s / 0.125664 m² = 3.97887 m/s,
    // ΔPj = 0.5 · 0.5 · 1.20283 · 3.97887² = 4.76065 Pa (19.0426 Pa without the rule).
    SegmentLossInput in = circular(400, 3600, 8, 0.5);
    in.firstBranch = DuctSection{kShapeCircular, 300, 0, 1800};
    EXPECT_NEAR(segmentLoss(in, air).localLoss, 4.760649929284864, 1e-9);
    in.hasSecondBranch = true;
    EXPECT_NEAR(segmentLoss(in, air).localLoss, 19.042599717139456, 1e-9);
    in.hasSecondBranch = false;
    in.endKind = 2;
    EXPECT_NEAR(segmentLoss(in, air).localLoss, 19.042599717139456, 1e-9);
    // Same diameter downstream: areas equal, no correction.
    in = circular(400, 3600, 8, 0.5);
    in.firstBranch = DuctSection{kShapeCircular, 400, 0, 1800};
    EXPECT_NEAR(segmentLoss(in, air).localLoss, 19.042599717139456, 1e-9);
}

TEST(SegmentLoss, ContractionAreaFollowsTheSegmentsShapeNotTheBranchs) {
    AirInputs air{0.15, 101.325, 20};
    // A rectangular duct below a circular one: its area is not taken (0), so the correction
    // applies even though 800×800 is larger than Ø400.
    SegmentLossInput in = circular(400, 3600, 8, 0.5);
    in.firstBranch = DuctSection{kShapeRectangular, 800, 800, 1800};
    EXPECT_NEAR(segmentLoss(in, air).localLoss, 4.760649929284864, 1e-9);
    // 500×400 → Ø300: circular area 0.0707 m² < 0.2 m², v_D = 0.5/0.2 = 2.5 m/s,
    // ΔPj = 0.25 · 1.20283 · 6.25 = 1.87943 Pa.
    SegmentLossInput rect;
    rect.section = {kShapeRectangular, 500, 400, 3600};
    rect.length = 8;
    rect.xi = 0.5;
    rect.firstBranch = DuctSection{kShapeCircular, 300, 0, 1800};
    EXPECT_NEAR(segmentLoss(rect, air).localLoss, 1.8794292597646256, 1e-9);
    rect.firstBranch = DuctSection{kShapeRectangular, 500, 400, 1800};  // same area: no rule
    EXPECT_NEAR(segmentLoss(rect, air).localLoss, 7.517717039058502, 1e-9);
}

TEST(SegmentLoss, DuctWithoutSizeOrFlowIsNotCalculated) {
    AirInputs air;
    EXPECT_FALSE(segmentLoss(circular(0, 1000, 1, 0), air).computed);
    EXPECT_FALSE(segmentLoss(circular(200, -1, 1, 0), air).computed);
    SegmentLossInput flat;
    flat.section = {kShapeRectangular, 500, 0, 1000};
    EXPECT_FALSE(segmentLoss(flat, air).computed);
}

}  // namespace
}  // namespace vrn2::duct
