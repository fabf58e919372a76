// How a pipe lies against a span p1–p2, the fence around the span and the cut points.
#include <gtest/gtest.h>

#include <cmath>

#include "drawing/span_classes.h"

namespace {

using namespace vrn2::drawing;

TEST(SpanClasses, HeronAreaAgreesWithTheCrossProduct) {
    const SpacePoint a{1, 2, 3}, b{4, -1, 5}, c{0, 7, -2};
    // |AB × AC| / 2 squared.
    const double ux = 3, uy = -3, uz = 2, vx = -1, vy = 5, vz = -5;
    const double nx = uy * vz - uz * vy, ny = uz * vx - ux * vz, nz = ux * vy - uy * vx;
    const double expected = (nx * nx + ny * ny + nz * nz) / 4.0;
    EXPECT_NEAR(squaredHeronArea(a, b, c), expected, 1e-9 * expected);
}

TEST(SpanClasses, EachClassOfAPipeAlongTheSpan) {
    const SpacePoint p1{10, 0, 0}, p2{20, 0, 0};
    EXPECT_EQ(classifyAgainstSpan(p1, p2, {12, 0, 0}, {18, 0, 0}), SpanClass::Inside);
    EXPECT_EQ(classifyAgainstSpan(p1, p2, {10, 0, 0}, {20, 0, 0}), SpanClass::Inside) << "ends on the span's ends";
    EXPECT_EQ(classifyAgainstSpan(p1, p2, {0, 0, 0}, {30, 0, 0}), SpanClass::SecondEnd) << "both inside: p2 tested first";
    EXPECT_EQ(classifyAgainstSpan(p1, p2, {15, 0, 0}, {30, 0, 0}), SpanClass::SecondEnd);
    EXPECT_EQ(classifyAgainstSpan(p1, p2, {0, 0, 0}, {15, 0, 0}), SpanClass::FirstEnd);
    EXPECT_EQ(classifyAgainstSpan(p1, p2, {30, 0, 0}, {40, 0, 0}), SpanClass::Untouched) << "beyond the span";
    EXPECT_EQ(classifyAgainstSpan(p1, p2, {15, -5, 0}, {15, 5, 0}), SpanClass::Untouched) << "across it";
}

TEST(SpanClasses, TheAngleWindowEndsAtTheLiteralFourRadians) {
    const SpacePoint c{0, 0, 0}, d{100, 0, 0};  // pipe at angle 0
    const auto spanAt = [](double angle) {
        return std::pair<SpacePoint, SpacePoint>{{50, 10, 0}, {50 + 10 * std::cos(angle), 10 + 10 * std::sin(angle), 0}};
    };
    for (double angle : {0.0, 0.3, 2.8, 3.1415926, 3.9}) {
        const auto [p1, p2] = spanAt(angle);
        EXPECT_TRUE(parallelToSpan(p1, p2, c, d)) << angle;
    }
    for (double angle : {0.36, 1.5, 2.78, 4.05, 6.2}) {
        const auto [p1, p2] = spanAt(angle);
        EXPECT_FALSE(parallelToSpan(p1, p2, c, d)) << angle;
    }
    // A span at 6.2 rad is 4.8° off the pipe, but the difference is taken as it comes.
}

TEST(SpanClasses, CollinearPointsPassWhateverTheAngles) {
    // Span at angle 0, pipe at π: the difference −π is outside both windows, but the squared
    // areas are zero.
    EXPECT_TRUE(parallelToSpan({0, 0, 0}, {10, 0, 0}, {30, 0, 0}, {20, 0, 0}));
    EXPECT_FALSE(parallelToSpan({0, 1, 0}, {10, 1, 0}, {30, 0, 0}, {20, 0, 0})) << "one unit off the line";
}

TEST(SpanClasses, BetweenSwitchesToYWhenXHardlyChanges) {
    const SpacePoint a{0, 0, 0}, e{0.05, 10, 0};
    EXPECT_TRUE(liesBetween({0.02, 5, 0}, a, e, false));
    EXPECT_FALSE(liesBetween({0.02, 12, 0}, a, e, false));
    // x differences 0 and 10: the switch goes to y, where both differences are 0.
    EXPECT_TRUE(liesBetween({0, 0, 0}, a, {10, 0, 0}, true));
    EXPECT_FALSE(liesBetween({0, 0, 0}, a, {10, 0, 0}, false));
    EXPECT_TRUE(liesBetween({5, 0, 0}, a, {10, 0, 0}, false));
    EXPECT_FALSE(liesBetween({10.5, 0, 0}, a, {10, 0, 0}, true));
}

TEST(SpanClasses, FenceCrossesTheSpanAtBothEndsAndDiagonally) {
    const auto fence = spanFence({0, 0}, {10, 0});
    const PlanPoint expected[4] = {{0, -1}, {0, 1}, {10, -1}, {10, 1}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_NEAR(fence[i].x, expected[i].x, 1e-12) << i;
        EXPECT_NEAR(fence[i].y, expected[i].y, 1e-12) << i;
    }
    const auto turned = spanFence({0, 0}, {0, 20});
    EXPECT_NEAR(turned[0].x, 2.0, 1e-12);
    EXPECT_NEAR(turned[3].x, -2.0, 1e-12);
    EXPECT_NEAR(turned[3].y, 20.0, 1e-12);
}

TEST(SpanClasses, CutPointsAreTheSpanEndsOnThePipeKeptWithinIt) {
    const SpacePoint c{0, 0, 0}, d{30, 0, 6};
    const CutPoints inner = spanCutPoints({10, 0.5, 0}, {20, -0.5, 0}, c, d);
    EXPECT_NEAR(inner.first.x, 10.0, 1e-9) << "projected in plan";
    EXPECT_NEAR(inner.first.y, 0.0, 1e-9);
    EXPECT_NEAR(inner.first.z, 2.0, 1e-9) << "at the pipe's height there";
    EXPECT_NEAR(inner.second.x, 20.0, 1e-9);
    const CutPoints overEnd = spanCutPoints({-5, 0, 0}, {15, 0, 3}, c, d);
    EXPECT_DOUBLE_EQ(overEnd.first.x, 0.0) << "kept at the pipe's start";
    EXPECT_NEAR(overEnd.second.x, 15.0, 1e-9);
    EXPECT_NEAR(overEnd.second.z, 3.0, 1e-9);
}

}  // namespace
