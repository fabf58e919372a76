// The flood along a pipe run, equipment on it, and the entries' coordinates.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>

#include "drawing/equipment_probe.h"
#include "drawing/pipe_trace.h"

namespace {

using namespace vrn2::drawing;

PipeSegment pipe(double x1, double y1, double x2, double y2) { return {{x1, y1, 0}, {x2, y2, 0}}; }

TEST(PipeTrace, FollowsBranchesDepthFirstAndLeavesStrangers) {
    // Records: [0] a branch off the far end, [1] from the base, [2] the continuation, [3] a pipe
    // elsewhere, [4] drawn backwards onto the continuation's end.
    const std::vector<PipeSegment> pipes{pipe(10, 0, 10, 8), pipe(0, 0, 10, 0), pipe(10, 0, 25, 0),
                                         pipe(100, 100, 110, 100), pipe(25, 6, 25.005, 0.004)};
    const auto steps = tracePipeRun(pipes, {0, 0, 0});
    ASSERT_EQ(steps.size(), 4u);
    EXPECT_EQ(steps[0].pipe, 1u);
    EXPECT_EQ(steps[1].pipe, 0u) << "the scan at (10, 0) starts at the first record";
    EXPECT_EQ(steps[2].pipe, 2u);
    EXPECT_EQ(steps[3].pipe, 4u) << "its end is within 0.01 of (25, 0)";
    for (const auto& step : steps) EXPECT_TRUE(step.entry);
}

TEST(PipeTrace, APipeBackToThePreviousPointIsTakenWithoutAnEntry) {
    const std::vector<PipeSegment> pipes{pipe(0, 0, 10, 0), pipe(10, 0, 0.005, 0), pipe(10, 0, 10, 5)};
    const auto steps = tracePipeRun(pipes, {0, 0, 0});
    ASSERT_EQ(steps.size(), 3u);
    EXPECT_TRUE(steps[0].entry);
    EXPECT_EQ(steps[1].pipe, 1u);
    EXPECT_FALSE(steps[1].entry);
    EXPECT_TRUE(steps[2].entry);
}

TEST(PipeTrace, HeightsCountAndTheToleranceIsStrict) {
    const std::vector<PipeSegment> pipes{{{0, 0, 0}, {10, 0, 0}}, {{10, 0, 0.02}, {20, 0, 0}},
                                         {{10.0099, 0, 0}, {10, 9, 0}}};
    const auto steps = tracePipeRun(pipes, {0, 0, 0});
    ASSERT_EQ(steps.size(), 2u) << "0.02 higher is another point";
    EXPECT_EQ(steps[1].pipe, 2u);
    EXPECT_TRUE(tracePipeRun({pipe(0.01, 0, 5, 0)}, {0, 0, 0}).empty()) << "0.01 apart is apart";
}

TEST(PipeTrace, EquipmentSitsAtTheFirstReachedPipeEnd) {
    const std::vector<PipeSegment> pipes{pipe(0, 0, 10, 0), pipe(10, 0, 20, 0), pipe(50, 0, 60, 0)};
    const std::vector<bool> reached{true, true, false};
    const auto found = equipmentOnRun({{10, 0, 0}, {20.005, 0, 0}, {60, 0, 0}, {5, 0, 0}}, pipes, reached);
    ASSERT_EQ(found.size(), 4u);
    EXPECT_EQ(found[0], 0);
    EXPECT_EQ(found[1], 1);
    EXPECT_EQ(found[2], -1) << "that pipe was not reached";
    EXPECT_EQ(found[3], -1) << "the middle of a pipe is no connection";
}

TEST(PipeTrace, EntriesAreRelativeToTheBaseAndScaled) {
    const SpacePoint p = entryPoint({1100, 2200, 300}, {100, 200, 0}, 100.0);
    EXPECT_DOUBLE_EQ(p.x, 10.0);
    EXPECT_DOUBLE_EQ(p.y, 20.0);
    EXPECT_DOUBLE_EQ(p.z, 3.0);
    EXPECT_DOUBLE_EQ(entryLength({{0, 0, 0}, {300, 400, 1200}}, 10.0), 130.0);
}

TEST(EquipmentProbe, TheTypeKeyDropsTheVariantSuffix) {
    EXPECT_EQ(breakLengthKey("F1234-A"), "F1234");
    EXPECT_EQ(breakLengthKey("F1234-B2"), "F1234");
    EXPECT_EQ(breakLengthKey("AB"), "");
    EXPECT_EQ(breakLengthKey("X"), "");
}

TEST(EquipmentProbe, TheBreakLengthFileIsReadInFourteenByteLines) {
    const std::string file = "T1001 6.5\nF1234 12.0\nG20001234567890 3\n";
    EXPECT_FLOAT_EQ(*findBreakLength(file, "F1234"), 12.0f);
    EXPECT_FLOAT_EQ(*findBreakLength(file, "T1001"), 6.5f);
    EXPECT_FALSE(findBreakLength(file, "I9999"));
    // The long line is read as "G2000123456789" and then "0 3": neither key is "G20001234567890".
    EXPECT_FALSE(findBreakLength(file, "G20001234567890"));
    EXPECT_FLOAT_EQ(*findBreakLength(file, "0"), 3.0f);
}

TEST(EquipmentProbe, AScannedNumberOnlyTouchesTheFactorsLowBits) {
    EXPECT_EQ(breakLengthFactor(std::nullopt), 4.0);
    // 200.0f is 0x43480000; in the low mantissa bits of 4.0 each unit is worth 2^-50.
    std::uint32_t bits;
    const float scanned = 200.0f;
    std::memcpy(&bits, &scanned, sizeof bits);
    EXPECT_EQ(bits, 0x43480000u);
    EXPECT_DOUBLE_EQ(breakLengthFactor(200.0f), 4.0 + std::ldexp(static_cast<double>(bits), -50));
    EXPECT_NEAR(breakLengthFactor(12.0f), 4.0, 4e-6);
}

TEST(EquipmentProbe, WindowsBesideTheInsertAndAroundIt) {
    const double r = std::sqrt(0.5);
    const CrossingWindow ahead = polylineProbeWindow({100, 50}, 0.0, 2.0, 4.0, false);
    EXPECT_NEAR(ahead.first.x, 104.0 + r, 1e-6);
    EXPECT_NEAR(ahead.first.y, 50.0 + r, 1e-6);
    EXPECT_NEAR(ahead.second.x, 104.0 - r, 1e-6);
    EXPECT_NEAR(ahead.second.y, 50.0 - r, 1e-6);
    const CrossingWindow behind = polylineProbeWindow({100, 50}, 0.0, 2.0, 4.0, true);
    EXPECT_NEAR(behind.first.x, 96.0 + r, 1e-6);
    const CrossingWindow up = polylineProbeWindow({0, 0}, 3.1415926 / 2, 1.0, 4.0, false);
    EXPECT_NEAR(up.first.y, 2.0 + r, 1e-6);
    const CrossingWindow small = fittingProbeWindow({5, 5});
    EXPECT_NEAR(small.first.x, 5.0 + 0.1 * r, 1e-6);
    EXPECT_NEAR(small.second.y, 5.0 - 0.1 * r, 1e-6);
}

}  // namespace
