// Plain points and the plan (x–y) segment intersection shared by the pipe tools.
#pragma once

#include <optional>

#include "frame/geometry.h"

namespace vrn2::drawing {

using PlanPoint = Point2;
using SpacePoint = Point3;

// A straight pipe run from start to end, as its two end points.
struct PipeSegment {
    SpacePoint start;
    SpacePoint end;
};

inline PlanPoint plan(const SpacePoint& p) { return {p.x, p.y}; }

// The point where segments a–b and c–d meet in plan, end points included (the toolkit's
// segment crossing). Parallel segments, collinear ones too, have no single meeting point and
// give none; a meeting up to kEndTolerance beyond an end still counts.
inline constexpr double kEndTolerance = 1e-10;
std::optional<PlanPoint> planSegmentIntersection(PlanPoint a, PlanPoint b, PlanPoint c, PlanPoint d);

}  // namespace vrn2::drawing
