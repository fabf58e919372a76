// The exported angle and polar functions, and the module's own plan geometry.
#include <gtest/gtest.h>

#include <cmath>

#include "frame/geometry.h"
#include "frame/geometry_exports.h"

namespace {

constexpr double kTwoPi = 6.283185307179586;

TEST(AngleNormalisation, WholeTurnsAreRemoved) {
    EXPECT_EQ(vrn2::normaliseAngle(kTwoPi), 0.0);
    EXPECT_EQ(vrn2::normaliseAngle(0.0), 0.0);
    EXPECT_DOUBLE_EQ(vrn2::normaliseAngle(-0.5), kTwoPi - 0.5);
    EXPECT_DOUBLE_EQ(vrn2::normaliseAngle(-2 * kTwoPi - 1.0), kTwoPi - 1.0);
    EXPECT_DOUBLE_EQ(vrn2::normaliseAngle(3 * kTwoPi + 0.25), 0.25);
}

TEST(ExportedGeometry, AnglesOfDirections) {
    EXPECT_DOUBLE_EQ(arx_angle(AcGePoint2d(1, 1), AcGePoint2d(1, 4)), M_PI / 2);
    EXPECT_DOUBLE_EQ(arx_angle(AcGePoint2d(5, 1.33), AcGePoint2d(2.4, 1.33)), M_PI);
    EXPECT_DOUBLE_EQ(arx_angle(AcGePoint3d(0, 0, 5), AcGePoint3d(0, -2, -7)), 1.5 * M_PI);
    double a = arx_angle(AcGePoint2d(0, 0), AcGePoint2d(1, -1e-12));
    EXPECT_GE(a, 0.0);
    EXPECT_LT(a, kTwoPi);
}

TEST(ExportedGeometry, PolarKeepsZAndAZeroDistanceKeepsTheBase) {
    AcGePoint3d p = arx_polar(AcGePoint3d(1, 1, 3.5), 0.785398163397448, 1.4142135623731);
    EXPECT_NEAR(p.x, 2.0, 1e-12);
    EXPECT_NEAR(p.y, 2.0, 1e-12);
    EXPECT_EQ(p.z, 3.5);
    EXPECT_EQ(arx_polar(AcGePoint2d(3, -4), 1.234, 0.0), AcGePoint2d(3, -4));
    EXPECT_EQ(arx_polar(AcGePoint3d(3, -4, 9), 1.234, 0.0), AcGePoint3d(3, -4, 9));
    AcGePoint2d q = arx_polar(AcGePoint2d(0, 0), M_PI, 2.0);
    EXPECT_NEAR(q.x, -2.0, 1e-12);
    EXPECT_NEAR(q.y, 0.0, 1e-12);
}

using vrn2::Crossing;
using vrn2::Point2;
using vrn2::Point3;

TEST(PointCoincidence, EveryDifferenceMustBeStrictlyBelowTheTolerance) {
    // The duct network's rule: ends 9.99 units apart connect, 10 apart do not.
    EXPECT_TRUE(vrn2::coincide(Point3{0, 0, 0}, Point3{9.99, -9.99, 9.99}, 10.0));
    EXPECT_FALSE(vrn2::coincide(Point3{0, 0, 0}, Point3{10.0, 0, 0}, 10.0));
    EXPECT_FALSE(vrn2::coincide(Point3{0, 0, 0}, Point3{0, 0, -10.0}, 10.0)) << "z counts in space";
    EXPECT_TRUE(vrn2::coincide(Point2{5, 5}, Point2{5.009, 4.991}, 0.01));
    EXPECT_FALSE(vrn2::coincide(Point2{5, 5}, Point2{5.0, 5.011}, 0.01));
    // Each coordinate on its own: a diagonal distance above the tolerance still coincides.
    EXPECT_TRUE(vrn2::coincide(Point2{0, 0}, Point2{0.009, 0.009}, 0.01));
}

TEST(Distances, PlanAndSpace) {
    EXPECT_DOUBLE_EQ(vrn2::distance(Point2{1, 1}, Point2{4, 5}), 5.0);
    EXPECT_DOUBLE_EQ(vrn2::distance(Point3{1, 1, 1}, Point3{2, 3, 3}), 3.0);
    EXPECT_EQ(vrn2::distance(Point3{7, 7, 7}, Point3{7, 7, 7}), 0.0);
    ads_point host = {1.0, 2.0, 3.0};
    Point3 p = Point3::of(host);
    ads_point back;
    p.to(back);
    EXPECT_EQ(back[0] + back[1] + back[2], 6.0);
}

TEST(AnglesAndPolar, DirectionsAndPointsAtADistance) {
    EXPECT_EQ(vrn2::angleOf(Point2{0, 0}, Point2{1, 0}), 0.0);
    EXPECT_DOUBLE_EQ(vrn2::angleOf(Point2{0, 0}, Point2{-1, -1}), 1.25 * M_PI);
    EXPECT_DOUBLE_EQ(vrn2::angleOf(Point2{2, 2}, Point2{2, -5}), 1.5 * M_PI);
    EXPECT_EQ(vrn2::angleOf(Point2{3, 3}, Point2{3, 3}), 0.0);
    // 30° at distance 2: (2·cos 30°, 2·sin 30°) = (√3, 1).
    Point2 q = vrn2::polar(Point2{1, 1}, M_PI / 6, 2.0);
    EXPECT_NEAR(q.x, 1.0 + std::sqrt(3.0), 1e-12);
    EXPECT_NEAR(q.y, 2.0, 1e-12);
    Point3 r = vrn2::polar(Point3{0, 0, 4.5}, 0.78539815, 1.0);
    EXPECT_NEAR(r.x, std::sqrt(0.5), 1e-7);
    EXPECT_NEAR(r.y, std::sqrt(0.5), 1e-7);
    EXPECT_EQ(r.z, 4.5);
}

TEST(SegmentCrossings, PointsEndsAndParallels) {
    auto cross = [](Point2 a1, Point2 a2, Point2 b1, Point2 b2) { return vrn2::crossSegments(a1, a2, b1, b2); };
    // (1,2)-(7,5) against (2,6)-(6,0): 1 + 6t = 2 + 4u and 2 + 3t = 6 − 6u give u = 7/16,
    // so they meet at (3.75, 3.375).
    auto c = cross({1, 2}, {7, 5}, {2, 6}, {6, 0});
    ASSERT_EQ(c.kind, Crossing::Point);
    EXPECT_NEAR(c.at.x, 3.75, 1e-12);
    EXPECT_NEAR(c.at.y, 3.375, 1e-12);
    // End points count: a line ending on another, and two lines sharing an end.
    c = cross({0, 0}, {10, 0}, {10, -5}, {10, 5});
    ASSERT_EQ(c.kind, Crossing::Point);
    EXPECT_NEAR(c.at.x, 10.0, 1e-12);
    EXPECT_NEAR(c.at.y, 0.0, 1e-12);
    EXPECT_EQ(cross({0, 0}, {10, 0}, {10, 0}, {10, 7}).kind, Crossing::Point);
    EXPECT_EQ(cross({0, 0}, {10, 0}, {10.001, -5}, {10.001, 5}).kind, Crossing::None) << "just short of the end";
    EXPECT_EQ(cross({0, 0}, {4, 4}, {0, 4}, {1, 3}).kind, Crossing::None) << "their lines meet beyond B";
    // Parallel, collinear with and without overlap, and a segment without length.
    EXPECT_EQ(cross({0, 0}, {10, 0}, {0, 1}, {10, 1}).kind, Crossing::Parallel);
    c = cross({0, 0}, {10, 0}, {15, 0}, {5, 0});
    ASSERT_EQ(c.kind, Crossing::Collinear);
    EXPECT_TRUE(c.overlap);
    EXPECT_NEAR(c.at.x, 5.0, 1e-12);
    c = cross({0, 0}, {10, 0}, {11, 0}, {15, 0});
    EXPECT_EQ(c.kind, Crossing::Collinear);
    EXPECT_FALSE(c.overlap);
    EXPECT_EQ(cross({2, 2}, {2, 2}, {0, 0}, {4, 4}).kind, Crossing::None);
}

}  // namespace
