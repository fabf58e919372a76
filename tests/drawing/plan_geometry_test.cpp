// Plan intersection of two segments, end points included.
#include <gtest/gtest.h>

#include "drawing/plan_geometry.h"

namespace {

using vrn2::drawing::PlanPoint;
using vrn2::drawing::planSegmentIntersection;

TEST(PlanIntersection, CrossingSegmentsMeetAtTheWorkedPoint) {
    // y = x and y = 6 − 2x meet at x = 2.
    const auto p = planSegmentIntersection({0, 0}, {4, 4}, {0, 6}, {3, 0});
    ASSERT_TRUE(p);
    EXPECT_NEAR(p->x, 2.0, 1e-12);
    EXPECT_NEAR(p->y, 2.0, 1e-12);
}

TEST(PlanIntersection, EndPointsCountAsMeeting) {
    const auto tee = planSegmentIntersection({0, 0}, {10, 0}, {5, 0}, {5, 7});
    ASSERT_TRUE(tee) << "a segment ending on another";
    EXPECT_DOUBLE_EQ(tee->x, 5.0);
    const auto corner = planSegmentIntersection({0, 0}, {10, 0}, {10, 0}, {10, 7});
    ASSERT_TRUE(corner) << "two segments sharing an end";
    EXPECT_DOUBLE_EQ(corner->x, 10.0);
    EXPECT_DOUBLE_EQ(corner->y, 0.0);
}

TEST(PlanIntersection, MissesParallelAndCollinearGiveNothing) {
    EXPECT_FALSE(planSegmentIntersection({0, 0}, {10, 0}, {5, 0.001}, {5, 7})) << "stops just short";
    EXPECT_FALSE(planSegmentIntersection({0, 0}, {10, 0}, {10.001, -1}, {10.001, 1})) << "passes beyond the end";
    EXPECT_FALSE(planSegmentIntersection({0, 0}, {10, 0}, {0, 1}, {10, 1})) << "parallel";
    EXPECT_FALSE(planSegmentIntersection({0, 0}, {10, 0}, {5, 0}, {15, 0})) << "collinear overlap";
    EXPECT_FALSE(planSegmentIntersection({0, 0}, {0, 0}, {-1, -1}, {1, 1})) << "a point is no segment";
}

TEST(PlanIntersection, FarFromTheOriginWithLargeCoordinates) {
    const double x0 = 512345.0, y0 = 3401234.0;
    const auto p = planSegmentIntersection({x0, y0}, {x0 + 3000, y0 + 1000}, {x0 + 1500, y0 - 500}, {x0 + 1500, y0 + 2500});
    ASSERT_TRUE(p);
    EXPECT_NEAR(p->x, x0 + 1500, 1e-6);
    EXPECT_NEAR(p->y, y0 + 500, 1e-6);
}

}  // namespace
