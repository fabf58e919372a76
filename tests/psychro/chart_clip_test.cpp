// Clipping of chart lines and curves to the plotting area.
#include <gtest/gtest.h>

#include <cmath>

#include "psychro/chart_clip.h"

namespace {

using namespace vrn2;

const ChartFrame kFrame{0.0, 0.0, 10.0, 5.0};

TEST(ChartClip, Segments) {
    auto through = clipSegment(kFrame, {-5.0, 2.5}, {15.0, 2.5});
    ASSERT_TRUE(through);
    EXPECT_DOUBLE_EQ(through->a.x, 0.0);
    EXPECT_DOUBLE_EQ(through->b.x, 10.0);
    // Both ends outside, the middle inside: cut at the top and the right edge.
    auto corner = clipSegment(kFrame, {6.0, 7.0}, {12.0, 1.0});
    ASSERT_TRUE(corner);
    EXPECT_DOUBLE_EQ(corner->a.x, 8.0);
    EXPECT_DOUBLE_EQ(corner->a.y, 5.0);
    EXPECT_DOUBLE_EQ(corner->b.x, 10.0);
    EXPECT_DOUBLE_EQ(corner->b.y, 3.0);
    EXPECT_FALSE(clipSegment(kFrame, {11.0, 0.0}, {20.0, 3.0}));
    EXPECT_FALSE(clipSegment(kFrame, {8.0, 8.0}, {14.0, 2.0}));  // passes the corner outside
    auto inside = clipSegment(kFrame, {1.0, 1.0}, {2.0, 2.0});
    ASSERT_TRUE(inside);
    EXPECT_DOUBLE_EQ(inside->a.x, 1.0);
    EXPECT_DOUBLE_EQ(inside->b.y, 2.0);
}

TEST(ChartClip, CurveLeavingAndReturningGivesTwoPiecesEndingOnTheEdge) {
    // y = 2.5 + 4 sin(s): above the top twice over s in [0, 2π], below the bottom once.
    auto curve = [](double s) { return ChartPoint{s, 2.5 + 4.0 * std::sin(s)}; };
    auto pieces = clipCurve(kFrame, curve, 0.0, 6.0, 60);
    ASSERT_EQ(pieces.size(), 3u);
    for (const auto& piece : pieces)
        for (ChartPoint p : piece) {
            EXPECT_NEAR(p.y, 2.5 + 4.0 * std::sin(p.x), 1e-12) << "every vertex on the curve";
            EXPECT_TRUE(kFrame.contains(p, 1e-9));
        }
    // First piece: from s = 0 up to the top edge at sin s = 5/8.
    EXPECT_DOUBLE_EQ(pieces[0].front().x, 0.0);
    EXPECT_NEAR(pieces[0].back().x, std::asin(0.625), 1e-9);
    EXPECT_NEAR(pieces[1].front().x, std::acos(-1.0) - std::asin(0.625), 1e-9);
    EXPECT_NEAR(pieces[1].back().y, 0.0, 1e-9);
}

TEST(ChartClip, CurveOutsideOrUndefined) {
    auto away = [](double s) { return ChartPoint{s, 100.0}; };
    EXPECT_TRUE(clipCurve(kFrame, away, 0.0, 10.0, 10).empty());
    // Undefined beyond s = 4: the piece ends at the last defined point.
    auto partial = [](double s) { return ChartPoint{s, s > 4.0 ? std::nan("") : 1.0}; };
    auto pieces = clipCurve(kFrame, partial, 0.0, 8.0, 8);
    ASSERT_EQ(pieces.size(), 1u);
    EXPECT_NEAR(pieces[0].back().x, 4.0, 1e-9);
}

}  // namespace
