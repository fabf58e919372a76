// The auxiliary grid: the parameter file and its limits, the dialog's tile mappings, and the
// lines and labels drawn, against positions worked by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "drawing/grid_geometry.h"
#include "drawing/grid_parameters.h"

namespace {

using namespace vrn2::drawing;

GridParameters grid(std::array<double, 8> values, short centre = 0, short labels = 0) {
    GridParameters g;
    g.values = values;
    g.centreLines = centre;
    g.labels = labels;
    return g;
}

void expectLine(const GridLine& line, double x1, double y1, double x2, double y2) {
    EXPECT_NEAR(line.from.x, x1, 1e-6);
    EXPECT_NEAR(line.from.y, y1, 1e-6);
    EXPECT_NEAR(line.to.x, x2, 1e-6);
    EXPECT_NEAR(line.to.y, y2, 1e-6);
}

TEST(GridFile, ReadingAppliesTheLimits) {
    const GridParameters g = parseGridFile("0\n100\n0.2\n120\n-5\n50\n0.49\n-10\n 1\n 0");
    EXPECT_EQ(g.values[0], 0.0);
    EXPECT_EQ(g.values[1], 100.0);
    EXPECT_EQ(g.spacing1(), 0.5) << "spacing 0.2 is read as 0.5";
    EXPECT_EQ(g.angle1(), 90.0) << "120 is clamped to 90";
    EXPECT_EQ(g.q1(), -5.0);
    EXPECT_EQ(g.spacing2(), 0.5);
    EXPECT_EQ(g.angle2(), 0.0) << "-10 is clamped to 0";
    EXPECT_EQ(g.centreLines, 1);
    EXPECT_EQ(g.labels, 0);
    EXPECT_EQ(parseGridFile("1\n2\n3\n-95\n5\n6\n7\n181\n").angle1(), -90.0);
    EXPECT_EQ(parseGridFile("1\n2\n3\n-95\n5\n6\n7\n181\n").angle2(), 180.0);
}

TEST(GridFile, ShortOrWordyFilesReadAsZeros) {
    const GridParameters g = parseGridFile("12.5\nabc\n");
    EXPECT_EQ(g.p1(), 12.5);
    EXPECT_EQ(g.p2(), 0.0);
    EXPECT_EQ(g.spacing1(), 0.5);
    EXPECT_EQ(g.labels, 0);
}

TEST(GridFile, ALineLongerThanTheBufferIsReadInPieces) {
    // 999 characters fit the 1000-byte buffer; the rest of a longer first line becomes line 2.
    const std::string padded = std::string(995, ' ') + "1.25" + "75\n2\n";
    const GridParameters g = parseGridFile(padded);
    EXPECT_EQ(g.p1(), 1.25);
    EXPECT_EQ(g.p2(), 75.0);
    EXPECT_EQ(g.spacing1(), 2.0);
}

TEST(GridFile, WrittenTextEndsWithoutALineBreakAndReadsBack) {
    const std::array<std::string, 8> edits{"0.00", "60.00", "5.00", "30.00", "0.00", "40.00", "5.00", "150.00"};
    const std::string text = gridFileText(edits, 0, 1);
    EXPECT_EQ(text, "0.00\n60.00\n5.00\n30.00\n0.00\n40.00\n5.00\n150.00\n 0\n 1");
    const GridParameters back = parseGridFile(text);
    EXPECT_EQ(back.p2(), 60.0);
    EXPECT_EQ(back.angle2(), 150.0);
    EXPECT_EQ(back.centreLines, 0);
    EXPECT_EQ(back.labels, 1);
    EXPECT_EQ(gridFileText(edits, 12, -3).substr(text.size() - 5), "12\n-3");
}

TEST(GridTiles, SlidersCarryTenthsForLengthsAndDegreesForAngles) {
    EXPECT_EQ(gridEditText(12.345), "12.35");
    EXPECT_EQ(gridSliderValue(0, 12.34), 123);
    EXPECT_EQ(gridSliderValue(6, 5.0), 50);
    EXPECT_EQ(gridSliderValue(3, -45.4), -45);
    EXPECT_EQ(gridSliderValue(7, 150.0), 150);
    EXPECT_DOUBLE_EQ(gridValueFromSlider(1, 123), 12.3);
    EXPECT_DOUBLE_EQ(gridValueFromSlider(7, 150), 150.0);
    EXPECT_EQ(gridSliderValue(1, 1e6), gridSliderMaximum(1)) << "kept on the slider";
    EXPECT_EQ(gridSliderValue(2, 0.5), gridSliderMinimum(2));
    // Every slider position of an angle maps to itself and back.
    for (int v = gridSliderMinimum(3); v <= gridSliderMaximum(3); ++v)
        ASSERT_EQ(gridSliderValue(3, gridValueFromSlider(3, v)), v);
}

TEST(GridDrawing, RightAngledGridLinesCentreLinesAndLabels) {
    const GridDrawing d = gridDrawing(grid({0, 10, 2, 0, 0, 6, 2, 90}));
    ASSERT_EQ(d.lines.size(), 6u + 4u);
    for (int i = 0; i <= 5; ++i) expectLine(d.lines[i], 2.0 * i, 0, 2.0 * i, 6);
    for (int i = 0; i <= 3; ++i) expectLine(d.lines[6 + i], 0, 2.0 * i, 10, 2.0 * i);
    ASSERT_EQ(d.centreLines.size(), 2u);
    expectLine(d.centreLines[0], 5, 0, 5, 6);
    expectLine(d.centreLines[1], 10, 3, 0, 3);
    ASSERT_EQ(d.labels.size(), 10u);
    EXPECT_NEAR(d.labels[0].at.y, -4.0 / 3.0, 1e-6);
    EXPECT_NEAR(d.labels[5].at.x, 10.0, 1e-6);
    EXPECT_EQ(d.labels[5].text, "10.0");
    EXPECT_DOUBLE_EQ(d.labels[5].height, 0.5);
    EXPECT_NEAR(d.labels[6].at.x, -4.0 / 3.0, 1e-6);
    EXPECT_NEAR(d.labels[9].at.y, 6.0, 1e-6);
    EXPECT_EQ(d.labels[9].text, "6.0");
}

TEST(GridDrawing, SwitchesLeaveOutCentreLinesAndLabels) {
    const GridDrawing d = gridDrawing(grid({0, 10, 2, 0, 0, 6, 2, 90}, 1, 1));
    EXPECT_EQ(d.lines.size(), 10u);
    EXPECT_TRUE(d.centreLines.empty());
    EXPECT_TRUE(d.labels.empty());
}

TEST(GridDrawing, ExtentsAreRoundedToWholeSpacings) {
    EXPECT_EQ(gridDrawing(grid({0, 10.9, 2, 0, 0, 6, 2, 90})).lines.size(), 6u + 4u) << "5.45 rounds to 5";
    const GridDrawing up = gridDrawing(grid({0, 11, 2, 0, 0, 6, 2, 90}));
    EXPECT_EQ(up.lines.size(), 7u + 4u) << "5.5 rounds to 6";
    EXPECT_NEAR(up.cornerB.x, 12.0, 1e-9);
    const GridDrawing reversed = gridDrawing(grid({10, 0, 2.5, 0, 0, 6, 2, 90}));
    EXPECT_EQ(reversed.labels[1].text, "12.5") << "labels count on from the start value";
}

TEST(GridDrawing, OriginCorrectionsAddTheOtherFamilysStart) {
    // α = −30: y = |sin(−30°)·3| + p1 = 1.5 + 1; β = 120: x = |cos 120°·3| + q1 = 1.5 + 2.
    const GridDrawing d = gridDrawing(grid({1, 4, 1, -30, 2, 5, 1.5, 120}));
    EXPECT_NEAR(d.origin.x, 3.5, 1e-6);
    EXPECT_NEAR(d.origin.y, 2.5, 1e-6);
    EXPECT_NEAR(d.cornerB.x, 3.5 + 3.0 * std::sqrt(3.0) / 2.0, 1e-6);
    EXPECT_NEAR(d.cornerB.y, 1.0, 1e-6);
    EXPECT_NEAR(d.cornerC.x, 2.0, 1e-6);
    EXPECT_NEAR(d.cornerC.y, 2.5 + 3.0 * std::sqrt(3.0) / 2.0, 1e-6);
    ASSERT_EQ(d.lines.size(), 4u + 3u);
    EXPECT_EQ(d.labels[4].text, "2.0");
    EXPECT_EQ(d.labels[6].text, "5.0");
}

TEST(GridDrawing, PiIsTheSevenDecimalValue) {
    // 90° with π = 3.1415927 leaves cos at −2.32e-8 instead of 6e-17: a 1000-long family shows it.
    const GridDrawing d = gridDrawing(grid({0, 1000, 1000, 90, 0, 1, 1, 0}));
    EXPECT_NEAR(d.cornerB.x, 1000.0 * std::cos(3.1415927 / 2.0), 1e-12);
    EXPECT_LT(d.cornerB.x, -2e-5);
}

TEST(GridDrawing, HugeOrUnreadableExtentsAreRefused) {
    EXPECT_TRUE(gridIsDrawable(grid({0, 4999, 0.5, 0, 0, 10, 1, 90})));
    EXPECT_FALSE(gridIsDrawable(grid({0, 5000, 0.5, 0, 0, 10, 1, 90}))) << "10 001 lines";
    EXPECT_FALSE(gridIsDrawable(grid({0, 10, 1, 0, 0, 1e300, 1, 90})));
    EXPECT_FALSE(gridIsDrawable(parseGridFile("nan\n10\n1\n0\n0\n10\n1\n90\n0\n0")));
}

TEST(GridPreview, TheGridFitsCentredInTheTile) {
    const auto vectors = gridPreview(gridDrawing(grid({0, 10, 2, 0, 0, 6, 2, 90})), 200, 200);
    ASSERT_EQ(vectors.size(), 12u);
    // Scale 184/10 = 18.4; the 6-high picture sits (200 − 110.4)/2 from the top.
    EXPECT_EQ(vectors[0].x1, 8);
    EXPECT_EQ(vectors[0].y1, 155);
    EXPECT_EQ(vectors[0].y2, 45);
    EXPECT_EQ(vectors[5].x1, 192);
    EXPECT_EQ(vectors[0].colour, kGridLineColour);
    EXPECT_EQ(vectors[11].colour, kGridCentreColour);
}

}  // namespace
