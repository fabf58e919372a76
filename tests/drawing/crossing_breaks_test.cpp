// Which crossing pipe is cut and the gap cut into it.
#include <gtest/gtest.h>

#include <cmath>

#include "drawing/crossing_breaks.h"

namespace {

using namespace vrn2::drawing;

PipeSegment pipe(double x1, double y1, double z1, double x2, double y2, double z2) {
    return {{x1, y1, z1}, {x2, y2, z2}};
}

double planDistance(const SpacePoint& p, PlanPoint c) { return std::hypot(p.x - c.x, p.y - c.y); }

TEST(CrossingBreak, TheLowerLevelPipeIsCutAndEqualLevelsNever) {
    const PipeSegment low = pipe(0, 5, 1, 10, 5, 1), high = pipe(5, 0, 2, 5, 10, 2);
    auto decision = crossingBreak(low, high);
    ASSERT_TRUE(decision);
    EXPECT_EQ(decision->broken, BrokenPipe::First);
    EXPECT_DOUBLE_EQ(decision->crossing.x, 5.0);
    EXPECT_DOUBLE_EQ(decision->crossing.y, 5.0);
    decision = crossingBreak(high, low);
    ASSERT_TRUE(decision);
    EXPECT_EQ(decision->broken, BrokenPipe::Second);
    EXPECT_FALSE(crossingBreak(low, pipe(5, 0, 1, 5, 10, 1))) << "same elevation";
    EXPECT_FALSE(crossingBreak(low, pipe(50, 0, 0, 50, 10, 0))) << "no crossing in plan";
}

TEST(CrossingBreak, SlopingPipesCompareTheirHeightsAtTheCrossing) {
    // First rises 0→10 over x 0..10: 3.0 at x = 3. Second rises along y, 2.0 at y = 5.
    const PipeSegment first = pipe(0, 5, 0, 10, 5, 10);
    const PipeSegment below = pipe(3, 0, 1.5, 3, 10, 2.5);
    auto decision = crossingBreak(first, below);
    ASSERT_TRUE(decision);
    EXPECT_EQ(decision->broken, BrokenPipe::Second);
    EXPECT_NEAR(elevationAt(below, decision->crossing), 2.0, 1e-12) << "interpolated by y";
    const PipeSegment above = pipe(3, 0, 5.5, 3, 10, 6.5);
    decision = crossingBreak(first, above);
    ASSERT_TRUE(decision);
    EXPECT_EQ(decision->broken, BrokenPipe::First);
    // Both 3.0 at the crossing: the later pipe is cut, whichever order they come in.
    const PipeSegment tie = pipe(3, 0, 2.5, 3, 10, 3.5);
    EXPECT_EQ(crossingBreak(first, tie)->broken, BrokenPipe::Second);
    EXPECT_EQ(crossingBreak(tie, first)->broken, BrokenPipe::Second);
}

TEST(CrossingBreak, ObliqueGapEndsLieAtTheRadiusOnThePipe) {
    const PipeSegment oblique = pipe(0, 0, 0, 30, 40, 10);  // 50 long in plan
    const PlanPoint c{15, 20};
    const Gap gap = breakGap(oblique, c, 5.0);
    EXPECT_NEAR(planDistance(gap.first, c), 5.0, 1e-9);
    EXPECT_NEAR(planDistance(gap.second, c), 5.0, 1e-9);
    // 5 along a 3-4-5 direction, elevations at a tenth of the pipe either side of 5.
    EXPECT_NEAR(gap.first.x, 12.0, 1e-9);
    EXPECT_NEAR(gap.first.y, 16.0, 1e-9);
    EXPECT_NEAR(gap.first.z, 4.0, 1e-9);
    EXPECT_NEAR(gap.second.x, 18.0, 1e-9);
    EXPECT_NEAR(gap.second.z, 6.0, 1e-9);
}

TEST(CrossingBreak, AGapNearAnEndIsOneSided) {
    const PipeSegment oblique = pipe(0, 0, 0, 30, 40, 0);
    const Gap nearStart = breakGap(oblique, {3, 4}, 10.0);
    EXPECT_DOUBLE_EQ(nearStart.first.x, 3.0) << "the crossing itself replaces the point before the start";
    EXPECT_DOUBLE_EQ(nearStart.first.y, 4.0);
    EXPECT_NEAR(nearStart.second.x, 9.0, 1e-9);
    EXPECT_NEAR(nearStart.second.y, 12.0, 1e-9);

    const PipeSegment vertical = pipe(5, 10, 0, 5, 0, 0);  // drawn downwards
    const Gap v = breakGap(vertical, {5, 8.5}, 2.0);
    EXPECT_DOUBLE_EQ(v.first.y, 6.5);
    EXPECT_DOUBLE_EQ(v.second.y, 8.5) << "10.5 is beyond the top end";
    EXPECT_DOUBLE_EQ(v.first.x, 5.0);

    const PipeSegment horizontal = pipe(0, 7, 2, 20, 7, 2);
    const Gap h = breakGap(horizontal, {1, 7}, 2.0);
    EXPECT_DOUBLE_EQ(h.first.x, 1.0);
    EXPECT_DOUBLE_EQ(h.second.x, 3.0);
    EXPECT_DOUBLE_EQ(h.second.z, 2.0);
}

TEST(CrossingBreaks, GapsAreCollectedForTheLowerPipeOfEveryPair) {
    // A level main at 3 crossed by two branches at 1 and 5: only the first branch is cut, and
    // the main under the second.
    const std::vector<PipeSegment> pipes{pipe(0, 0, 3, 100, 0, 3), pipe(20, -10, 1, 20, 10, 1),
                                         pipe(60, -10, 5, 60, 10, 5)};
    const BreakPlan result = planCrossingBreaks(pipes, 2.0);
    ASSERT_EQ(result.status, BreakPlanStatus::Ready);
    ASSERT_EQ(result.breaks.size(), 2u);
    EXPECT_EQ(result.breaks[0].pipe, 1u);
    EXPECT_DOUBLE_EQ(result.breaks[0].gap.first.y, -2.0);
    EXPECT_DOUBLE_EQ(result.breaks[0].gap.second.y, 2.0);
    EXPECT_EQ(result.breaks[1].pipe, 0u);
    EXPECT_DOUBLE_EQ(result.breaks[1].gap.first.x, 58.0);
    EXPECT_DOUBLE_EQ(result.breaks[1].gap.second.x, 62.0);
}

TEST(CrossingBreaks, MoreThanFiveDuplicatesStopBeforeAnyCut) {
    const PipeSegment main = pipe(0, 0, 1, 10, 0, 1), reversed = pipe(10, 0, 1, 0, 0, 1);
    const PipeSegment other = pipe(0, 20, 1, 10, 20, 1);
    // Three copies of the main (one drawn the other way) and two of another pipe: 3 + 1 pairs.
    std::vector<PipeSegment> pipes{main, pipe(5, -5, 0, 5, 5, 0), reversed, main, other, other};
    BreakPlan result = planCrossingBreaks(pipes, 1.0);
    ASSERT_EQ(result.status, BreakPlanStatus::Ready);
    EXPECT_EQ(result.breaks.size(), 3u) << "the low branch is cut under each copy";
    pipes.push_back(other);  // three copies of the other: 3 + 3 = 6 pairs
    result = planCrossingBreaks(pipes, 1.0);
    EXPECT_EQ(result.status, BreakPlanStatus::TooManyDuplicates);
    EXPECT_TRUE(result.breaks.empty());
}

TEST(CrossingBreaks, ReachingTwoThousandFiveHundredGapsStopsBeforeAnyCut) {
    const auto grid = [](int across, int along) {
        std::vector<PipeSegment> pipes;
        for (int i = 0; i < across; ++i) pipes.push_back(pipe(-1, i, 1, along + 1, i, 1));
        for (int j = 0; j < along; ++j) pipes.push_back(pipe(j + 0.5, -1, 2, j + 0.5, across + 1, 2));
        return pipes;
    };
    const BreakPlan below = planCrossingBreaks(grid(49, 51), 0.2);
    EXPECT_EQ(below.status, BreakPlanStatus::Ready);
    EXPECT_EQ(below.breaks.size(), 2499u);
    const BreakPlan at = planCrossingBreaks(grid(50, 50), 0.2);
    EXPECT_EQ(at.status, BreakPlanStatus::TooManyBreaks);
    EXPECT_TRUE(at.breaks.empty());
}

}  // namespace
