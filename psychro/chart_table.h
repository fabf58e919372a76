// The table of state points drawn beside the i-d chart: its rows, the limit on their number,
// and its layout as plain drawing records (grid lines and texts), also as the text lines that
// the table's viewer lists.
#pragma once

#include <string>
#include <vector>

#include "psychro/airstate/airstate.h"
#include "psychro/id_chart_drawing.h"

namespace vrn2 {

struct ChartStatePoint {
    std::wstring name;
    AirState state;
};

// A table longer than this would run off the chart's height at the chart's text size.
inline constexpr int kMaxChartStatePoints = 40;
inline constexpr wchar_t kMsgTooManyStatePoints[] = L"状态点太多, 最多40个.";

// Adds STATE under NAME, or under the next free number when NAME is empty. Answers false, and
// leaves the table as it was, when the table is full.
bool addChartStatePoint(std::vector<ChartStatePoint>& table, const AirState& state, const std::wstring& name = {});

// The column heads and one row of values, in the table's order: name, t, ts, d, fy, i, v.
inline constexpr int kStateTableColumns = 7;
std::vector<std::wstring> stateTableHeads();
std::vector<std::wstring> stateTableCells(const ChartStatePoint& point);

// One line per row, heads first, columns padded to a fixed width, for the table's viewer.
std::vector<std::wstring> stateTableLines(const std::vector<ChartStatePoint>& table);

// Rows FIRST_ROW onwards of the table whose top-left corner is TOP_LEFT, with texts of height H,
// on the state-point layer; from row 0 with the heads. Rows drawn earlier stay as they are, so
// a table grows downwards as points are added.
struct TableDrawing {
    std::vector<ChartPolyline> lines;
    std::vector<ChartText> texts;
};
TableDrawing layoutStateTable(const std::vector<ChartStatePoint>& table, size_t firstRow, ChartPoint topLeft,
                              double h);

// Where the table goes beside a chart drawn in FRAME with text height H.
ChartPoint stateTableCorner(const ChartFrame& frame, double h);

}  // namespace vrn2
