// The table of state points beside the chart: naming, the row limit, its cells and its grid.
#include <gtest/gtest.h>

#include <cmath>

#include "psychro/chart_table.h"

namespace {

using namespace vrn2;

AirState room() {
    AirState s;
    s.B = 101.325, s.t = 26.0, s.ts = 19.55, s.d = 10.6, s.fy = 50.04, s.i = 53.176, s.v = 0.8633;
    return s;
}

TEST(ChartTable, PointsAreNumberedOrNamedAndTheTableStopsAtItsLimit) {
    std::vector<ChartStatePoint> table;
    EXPECT_TRUE(addChartStatePoint(table, room()));
    EXPECT_TRUE(addChartStatePoint(table, room(), L"N"));
    EXPECT_TRUE(addChartStatePoint(table, room()));
    EXPECT_EQ(table[0].name, L"1");
    EXPECT_EQ(table[1].name, L"N");
    EXPECT_EQ(table[2].name, L"3");
    while (table.size() < static_cast<size_t>(kMaxChartStatePoints)) ASSERT_TRUE(addChartStatePoint(table, room()));
    EXPECT_FALSE(addChartStatePoint(table, room(), L"X"));
    EXPECT_EQ(table.size(), static_cast<size_t>(kMaxChartStatePoints));
    EXPECT_EQ(table.back().name, std::to_wstring(kMaxChartStatePoints));
}

TEST(ChartTable, CellsAndViewerLines) {
    const ChartStatePoint p{L"N", room()};
    EXPECT_EQ(stateTableCells(p),
              (std::vector<std::wstring>{L"N", L"26.00", L"19.55", L"10.60", L"50.0", L"53.18", L"0.863"}));
    auto lines = stateTableLines({p, {L"W", room()}});
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].substr(0, 3), L"状态点");
    EXPECT_EQ(lines[1], L"N         26.00     19.55     10.60     50.0      53.18     0.863");
    EXPECT_EQ(lines[2].substr(0, 1), L"W");
}

TEST(ChartTable, GridHoldsEveryCell) {
    const std::vector<ChartStatePoint> table{{L"N", room()}, {L"W", room()}};
    const double h = 3.0;
    const TableDrawing t = layoutStateTable(table, 0, {400.0, 400.0}, h);
    // Four horizontal rules (heads, two rows) and eight vertical ones (seven columns).
    ASSERT_EQ(t.lines.size(), 4u + 8u);
    const double right = t.lines[0].points[1].x, bottom = t.lines[3].points[0].y;
    EXPECT_DOUBLE_EQ(bottom, 400.0 - 3 * 2.0 * h);
    ASSERT_EQ(t.texts.size(), 3u * kStateTableColumns);
    for (const ChartText& text : t.texts) {
        EXPECT_GT(text.at.x, 400.0);
        EXPECT_LT(text.at.x, right);
        EXPECT_GT(text.at.y, bottom);
        EXPECT_LT(text.at.y, 400.0);
        EXPECT_LT(text.height, 2.0 * h);
    }
    EXPECT_EQ(t.texts[kStateTableColumns].text, L"N");
    EXPECT_EQ(t.texts[kStateTableColumns + 1].text, L"26.00");
    // Placed right of the chart, level with its top.
    const ChartPoint corner = stateTableCorner({0.0, 0.0, 300.0, 400.0}, h);
    EXPECT_GT(corner.x, 300.0);
    EXPECT_EQ(corner.y, 400.0);
}

TEST(ChartTable, AddedRowsContinueTheTableBelowItsLastRow) {
    std::vector<ChartStatePoint> table{{L"N", room()}};
    const double h = 2.0, rowHeight = 2.0 * h;
    const TableDrawing first = layoutStateTable(table, 0, {0.0, 100.0}, h);
    EXPECT_EQ(first.lines.size(), 3u + 8u);
    addChartStatePoint(table, room(), L"W");
    addChartStatePoint(table, room(), L"M");
    const TableDrawing more = layoutStateTable(table, 1, {0.0, 100.0}, h);
    // Two new bottom rules; the verticals span only the two new rows.
    ASSERT_EQ(more.lines.size(), 2u + 8u);
    EXPECT_DOUBLE_EQ(more.lines[0].points[0].y, 100.0 - 3 * rowHeight);
    EXPECT_DOUBLE_EQ(more.lines[1].points[0].y, 100.0 - 4 * rowHeight);
    EXPECT_DOUBLE_EQ(more.lines[2].points[0].y, 100.0 - 2 * rowHeight);
    EXPECT_DOUBLE_EQ(more.lines[2].points[1].y, 100.0 - 4 * rowHeight);
    ASSERT_EQ(more.texts.size(), 2u * kStateTableColumns);
    EXPECT_EQ(more.texts[0].text, L"W");
    EXPECT_DOUBLE_EQ(more.texts[0].at.y, 100.0 - 2.5 * rowHeight);
    EXPECT_EQ(more.texts[kStateTableColumns].text, L"M");
    // Nothing new: nothing drawn.
    EXPECT_TRUE(layoutStateTable(table, 3, {0.0, 100.0}, h).lines.empty());
}

}  // namespace
