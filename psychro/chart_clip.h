// Clipping of the chart's lines and curves to its plotting area.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "psychro/id_chart_drawing.h"

namespace vrn2 {

struct ChartSegment {
    ChartPoint a, b;
};

// The part of segment A-B inside FRAME, in the direction A to B; none when it misses.
std::optional<ChartSegment> clipSegment(const ChartFrame& frame, ChartPoint a, ChartPoint b);

// A curve given by its point at each value of a parameter.
using ChartCurve = std::function<ChartPoint(double)>;

// The pieces of CURVE, sampled at STEPS+1 evenly spaced parameters from FROM to TO, that lie
// inside FRAME. Where the curve crosses the frame the crossing is found on the curve itself
// (by halving the parameter interval), so every vertex lies on the curve. A piece shorter
// than two vertices is left out.
std::vector<std::vector<ChartPoint>> clipCurve(const ChartFrame& frame, const ChartCurve& curve,
                                               double from, double to, int steps);

}  // namespace vrn2
