// Collision marks between line pipes: level pipes in plan, rising pipes by their nearest
// distance in space.
#include <gtest/gtest.h>

#include <cmath>

#include "drawing/collision_marks.h"

namespace {

using namespace vrn2::drawing;

PipeSegment pipe(double x1, double y1, double z1, double x2, double y2, double z2) {
    return {{x1, y1, z1}, {x2, y2, z2}};
}

TEST(CollisionMarks, LevelPipesMeetOnlyWithinTheToleranceOfEachOther) {
    const PipeSegment a = pipe(-10, 0, 3, 10, 0, 3);
    EXPECT_TRUE(pipeCollision(a, pipe(0, -10, 3.4, 0, 10, 3.4), 0.5)) << "0.4 apart, tolerance 0.5";
    EXPECT_FALSE(pipeCollision(a, pipe(0, -10, 3.5, 0, 10, 3.5), 0.5)) << "exactly the tolerance apart";
    EXPECT_FALSE(pipeCollision(a, pipe(20, -10, 3, 20, 10, 3), 0.5)) << "apart in plan";
}

TEST(CollisionMarks, RisingPipeMeetsWhenItsNearestDistanceIsBelowTheTolerance) {
    // Along x at z = 0, and a pipe rising 1:1 in y passing height 1 above the x axis: the
    // nearest distance of (0, t, 1 + t) to the x axis is min sqrt(t² + (1 + t)²) = 1/√2.
    const PipeSegment level = pipe(-10, 0, 0, 10, 0, 0);
    const PipeSegment rising = pipe(0, -10, -9, 0, 10, 11);
    const double nearest = 1.0 / std::sqrt(2.0);
    const auto inside = pipeCollision(level, rising, nearest + 1e-6);
    ASSERT_TRUE(inside);
    EXPECT_NEAR(inside->x, 0.0, 1e-12);
    EXPECT_NEAR(inside->y, 0.0, 1e-12);
    EXPECT_FALSE(pipeCollision(level, rising, nearest - 1e-6));
    EXPECT_FALSE(pipeCollision(rising, level, nearest - 1e-6)) << "order does not matter";
}

TEST(CollisionMarks, RisingPipesCloseInSpaceMustStillCrossInPlan) {
    // The lines come within 0 of each other, but beyond the end of the short level pipe.
    const PipeSegment shortLevel = pipe(-10, 0, 0, -1, 0, 0);
    const PipeSegment rising = pipe(0, -10, -10, 0, 10, 10);
    EXPECT_FALSE(pipeCollision(shortLevel, rising, 0.5));
}

TEST(CollisionMarks, ParallelRisingPipesFallBackToThePlanTest) {
    EXPECT_FALSE(pipeCollision(pipe(0, 0, 0, 10, 0, 5), pipe(0, 0.01, 0, 10, 0.01, 5), 1.0));
}

TEST(CollisionMarks, JointsAndRisersAreNotMarked) {
    const std::vector<PipeSegment> tee{pipe(0, 0, 0, 10, 0, 0), pipe(5, 0, 0, 5, 8, 0)};
    EXPECT_TRUE(pipeCollision(tee[0], tee[1], 0.1)) << "they meet";
    EXPECT_TRUE(collisionMarks(tee, 0.1).empty()) << "but at an end point: a joint";
    // A riser has no plan length and never meets anything.
    EXPECT_FALSE(pipeCollision(pipe(-5, 0, 0, 5, 0, 0), pipe(0, 0, -1, 0, 0, 1), 0.5));
}

TEST(CollisionMarks, EveryCrossingPairIsMarkedOnce) {
    // Two level mains and three branches crossing both, all at one height: six marks.
    std::vector<PipeSegment> pipes{pipe(0, 0, 2, 100, 0, 2), pipe(0, 50, 2, 100, 50, 2)};
    for (double x : {20.0, 40.0, 60.0}) pipes.push_back(pipe(x, -10, 2, x, 60, 2));
    const auto marks = collisionMarks(pipes, 0.1);
    ASSERT_EQ(marks.size(), 6u);
    EXPECT_DOUBLE_EQ(marks[0].x, 20.0);
    EXPECT_DOUBLE_EQ(marks[0].y, 0.0);
    EXPECT_DOUBLE_EQ(marks[5].x, 60.0);
    EXPECT_DOUBLE_EQ(marks[5].y, 50.0);
}

}  // namespace
