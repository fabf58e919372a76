// The exported angle and polar functions.
#include <gtest/gtest.h>

#include <cmath>

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

}  // namespace
