// The chart's drawing records made into entities of the current drawing: polylines as
// LWPOLYLINE, texts as TEXT, each on its own layer; and the layers' colours.
#pragma once

#include <vector>

#include "psychro/id_chart_drawing.h"

namespace vrn2 {

// Makes the entity; false when the host refused it.
bool makeChartPolyline(const ChartPolyline& line);
bool makeChartText(const ChartText& text);

// Makes all of LINES and TEXTS; false at the first the host refused.
bool makeChartEntities(const std::vector<ChartPolyline>& lines, const std::vector<ChartText>& texts);

// Makes the chart's layers with their colours (the curves stand out from the grid).
bool makeChartLayers();

}  // namespace vrn2
