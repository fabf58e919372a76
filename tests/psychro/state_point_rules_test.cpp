// The pure parts of the state-point and mixing commands: the blocks of the result file, the
// i-d chart mapping and the mixing formula. Expected values are worked by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <string>

#include "psychro/air_mix.h"
#include "psychro/id_chart.h"
#include "psychro/state_point_file.h"

namespace {

using namespace vrn2;

// ---- Blocks of the result file ------------------------------------------------------------

std::wstring rowLabels(const StatePointBlock& b) {
    std::wstring s;
    for (int r = 0; r < b.rowCount; ++r) s += std::wstring(b.rows[r].label) + L"|";
    return s;
}

TEST(StatePointFile, RowsAreTheQuantitiesTheChoiceDidNotGive) {
    AirState s;
    s.B = 95.0;
    s.t = 1, s.ts = 2, s.d = 3, s.fy = 4, s.i = 5, s.tl = 6, s.db = 7;
    const std::wstring T = L"   干球温度T ℃ :|", TS = L"   湿球温度TS ℃:|", D = L"   含湿量D(g/kg):|",
                       FY = L"   相对湿度FY(%):|", I = L"   焓值IH(kJ/kg):|";
    const std::wstring expected[] = {
        T + TS + D + FY + I,  // picked point
        T + TS + FY,          // 1: i, d
        TS + D + I,           // 2: t, fy
        D + FY + I,           // 3: t, ts
        TS + FY + I,          // 4: t, d
        TS,                   // 5: i, wet bulb only
        TS + D + FY + I,      // 6: t, tl
        T + TS + I,           // 7: fy, d
        T + TS + D + I,       // 8: fy, db
        T + TS + D + FY + I,  // 9: db, tl
    };
    for (int c = 0; c <= 9; ++c) EXPECT_EQ(rowLabels(statePointBlock(c, s)), expected[c]) << c;

    StatePointBlock b = statePointBlock(8, s);
    EXPECT_EQ(b.pressure, 95.0);
    ASSERT_EQ(b.knownCount, 2);
    EXPECT_EQ(b.known[0], 4.0) << "FY first";
    EXPECT_EQ(b.known[1], 7.0) << "then DB";
    EXPECT_EQ(b.rows[2].value, 3.0) << "the third row of choice 8 is d";
    b = statePointBlock(9, s);
    EXPECT_EQ(b.known[0], 7.0);
    EXPECT_EQ(b.known[1], 6.0);
    EXPECT_EQ(statePointBlock(0, s).knownCount, 0);
    EXPECT_EQ(statePointBlock(5, s).knownCount, 1);
}

TEST(StatePointFile, ChoiceOneIsWrittenOneBlankFurtherLeft) {
    AirState s;
    auto leadingBlanks = [](const wchar_t* format, bool skipNewline) {
        size_t start = skipNewline ? 1 : 0;
        return std::wcsspn(format + start, L" ");
    };
    for (int c = 0; c <= 9; ++c) {
        StatePointBlock b = statePointBlock(c, s);
        size_t shift = c == 1 ? 1 : 0;
        EXPECT_EQ(leadingBlanks(b.rowFormat, false), 15 - shift) << c;
        EXPECT_EQ(leadingBlanks(b.pressureFormat, true), 18 - shift) << c;
        EXPECT_EQ(leadingBlanks(b.knownFormat, true), 11 - shift) << c;
    }
}

// ---- The i-d chart ------------------------------------------------------------------------

IdChart sampleChart() {
    IdChart chart;
    chart.drawn = true;
    chart.originX = 10.0;
    chart.originY = -5.0;
    chart.moistureScale = 8.0;
    chart.enthalpyScale = 1.5;
    chart.enthalpySkew = 2.5;
    return chart;
}

TEST(IdChartMapping, PointsAndStatesByHand) {
    IdChart chart = sampleChart();
    // i = 40, d = 8: x = 10 + 8·8 = 74, y = −5 + 1.5·(40 − 2.5·8) = 25.
    ChartPoint p = chartPointOf(chart, 40.0, 8.0);
    EXPECT_DOUBLE_EQ(p.x, 74.0);
    EXPECT_DOUBLE_EQ(p.y, 25.0);
    double i = 0, d = 0;
    chartStateAt(chart, 74.0, 25.0, i, d);
    EXPECT_DOUBLE_EQ(i, 40.0);
    EXPECT_DOUBLE_EQ(d, 8.0);
    // The origin is dry air at 0 kJ/kg; a point left of it has a negative moisture content.
    chartStateAt(chart, 10.0, -5.0, i, d);
    EXPECT_DOUBLE_EQ(i, 0.0);
    EXPECT_DOUBLE_EQ(d, 0.0);
    chartStateAt(chart, 2.0, -5.0, i, d);
    EXPECT_DOUBLE_EQ(d, -1.0);
    EXPECT_DOUBLE_EQ(i, -2.5);
}

TEST(IdChartMapping, EnthalpyLinesAreObliqueAndTheFreezingIsothermIsLevel) {
    IdChart chart = sampleChart();
    // Equal enthalpy: 1 g/kg to the right is 8 units across and 1.5·2.5 = 3.75 units down.
    ChartPoint a = chartPointOf(chart, 30.0, 4.0), b = chartPointOf(chart, 30.0, 5.0);
    EXPECT_DOUBLE_EQ(b.x - a.x, 8.0);
    EXPECT_DOUBLE_EQ(b.y - a.y, -3.75);
    // Equal moisture content is vertical.
    EXPECT_DOUBLE_EQ(chartPointOf(chart, 10.0, 6.0).x, chartPointOf(chart, 60.0, 6.0).x);
    // At 0 °C the enthalpy is 0.001·d·2500 = 2.5·d: the isotherm runs level at the origin.
    for (double dd : {0.0, 2.0, 3.8})
        EXPECT_NEAR(chartPointOf(chart, 2.5 * dd, dd).y, -5.0, 1e-12) << dd;
    // At 20 °C, i = 20.2 + 2.5368·d: the isotherm rises 1.5·0.0368 = 0.0552 per 8 units.
    ChartPoint w0 = chartPointOf(chart, 20.2, 0.0), w10 = chartPointOf(chart, 20.2 + 25.368, 10.0);
    EXPECT_NEAR((w10.y - w0.y) / (w10.x - w0.x), 0.0552 / 8.0, 1e-12);
}

// ---- Mixing -------------------------------------------------------------------------------

TEST(AirMixing, MassFlowWeighting) {
    MixedAir m = mixAirStreams({91.06, 21.4, 18000.0}, {62.0, 13.0, 42000.0});
    EXPECT_NEAR(m.i, 70.718, 1e-12);
    EXPECT_NEAR(m.d, 15.52, 1e-12);
    m = mixAirStreams({40.0, 8.0, 1.0}, {60.0, 12.0, 1.0});
    EXPECT_DOUBLE_EQ(m.i, 50.0);
    EXPECT_DOUBLE_EQ(m.d, 10.0);
    m = mixAirStreams({40.0, 8.0, 3000.0}, {60.0, 12.0, 0.0});
    EXPECT_DOUBLE_EQ(m.i, 40.0) << "a stream without flow changes nothing";
    m = mixAirStreams({40.0, 8.0, 0.0}, {60.0, 12.0, 0.0});
    EXPECT_TRUE(std::isnan(m.i) && std::isnan(m.d)) << "no flow at all is not guarded";
}

}  // namespace
