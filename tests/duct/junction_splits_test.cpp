// Split points where a branch ends on the middle of another duct.
#include <vector>

#include <gtest/gtest.h>

#include "duct/junction_splits.h"

namespace vrn2::duct {
namespace {

TEST(JunctionSplits, BranchEndingOnAMainDuctSplitsIt) {
    std::vector<LineEnds> lines{{{0, 0, 0}, {6000, 0, 0}},
                                {{2000, 5, 0}, {2000, 3000, 0}},    // ends 5 units off the main
                                {{4000, -3000, 0}, {4000, -1, 0}},  // from below
                                {{6000, 0, 0}, {6000, 2000, 0}},    // on the main's end: no split
                                {{3000, 10, 0}, {3000, 900, 0}}};   // 10 away: not touching
    std::vector<LineSplits> splits = junctionSplits(lines);
    ASSERT_EQ(splits.size(), 1u);
    EXPECT_EQ(splits[0].line, 0);
    ASSERT_EQ(splits[0].points.size(), 2u);
    EXPECT_DOUBLE_EQ(splits[0].points[0].x, 2000);
    EXPECT_DOUBLE_EQ(splits[0].points[0].y, 0);  // projected onto the main
    EXPECT_DOUBLE_EQ(splits[0].points[1].x, 4000);
}

TEST(JunctionSplits, PointsOrderedFromTheFirstPointAndMerged) {
    std::vector<LineEnds> lines{{{6000, 0, 0}, {0, 0, 0}},
                                {{1000, 0, 0}, {1000, 500, 0}},
                                {{1004, 0, 0}, {1004, -500, 0}},
                                {{5000, 0, 0}, {5000, 500, 0}}};
    std::vector<LineSplits> splits = junctionSplits(lines);
    ASSERT_EQ(splits.size(), 1u);
    ASSERT_EQ(splits[0].points.size(), 2u);
    EXPECT_DOUBLE_EQ(splits[0].points[0].x, 5000);
    EXPECT_NEAR(splits[0].points[1].x, 1000, 5);
}

TEST(JunctionSplits, CrossingLinesAndEndToEndJoinsAreLeftAlone) {
    std::vector<LineEnds> lines{{{0, 0, 0}, {2000, 0, 0}}, {{1000, -500, 0}, {1000, 500, 0}},
                                {{2000, 0, 0}, {3000, 0, 0}}};
    EXPECT_TRUE(junctionSplits(lines).empty());
}

}  // namespace
}  // namespace vrn2::duct
