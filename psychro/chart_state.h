// What the chart commands keep: per drawing, the chart's frame and text size and the table of
// state points drawn beside it (the chart record itself is idChart()); per module, the states
// the state-point calculations found since the module was loaded, waiting for the table, and
// the inputs of the chart dialog.
#pragma once

#include <vector>

#include "psychro/chart_table.h"
#include "psychro/id_chart_build.h"

namespace vrn2 {

struct DrawnChart {
    ChartFrame frame;
    double textHeight = 1.0;
    std::vector<ChartStatePoint> table;  // rows drawn so far
    ChartRequest request;  // what the chart was built from: the report draws it again
};
DrawnChart& drawnChart();

// Valid states from the state-point dialog and from points picked on the chart, oldest first.
std::vector<AirState>& calculatedStates();
inline constexpr int kMaxCalculatedStates = kMaxChartStatePoints;
// Keeps STATE for the table; the oldest goes when the list is full.
void keepCalculatedState(const AirState& state);

// The chart dialog's last accepted inputs (the corner is not one of them).
ChartRequest& lastChartRequest();

// Whether the current drawing has an i-d chart to draw on or pick from; when it has none the
// command line says so ("先生成焓湿图.").
bool chartIsDrawn();

// The air state at drawing point (X, Y) of CHART, solved at the chart's pressure; false when
// the point stands for no air (past saturation, or at negative moisture).
bool chartAirStateAt(const IdChart& chart, double x, double y, AirState& state);

}  // namespace vrn2
