// Cutting pipes along a span p1–p2: the fence that finds them, how each pipe's first segment
// c–d lies against the span, and where the cut is made.
#pragma once

#include <array>

#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

enum class SpanClass {
    Inside = 0,       // c and d both within the span: the pipe is erased
    SecondEnd = 1,    // p2 strictly within c–d: the pipe is cut
    FirstEnd = 2,     // p1 strictly within c–d: the pipe is cut
    Untouched = 3,    // not parallel, or the span misses the pipe
};

inline constexpr double kCollinearArea = 1e-5;
inline constexpr double kParallelLow = 0.34906584444444444;     // 20°, π as 3.1415926
inline constexpr double kAntiParallelLow = 2.7925267555555555;  // 160°
inline constexpr double kAntiParallelHigh = 4.0;                // radians, kept as drawn
// Coordinate differences within this switch the between test from x to y.
inline constexpr double kBetweenSwitch = 0.1;
// Half the fence's width, as a share of the span's length.
inline constexpr double kFenceHalfWidth = 0.1;

// The angle of the direction a→b in [0, 2π), as the platform's angle function gives it.
double directionAngle(PlanPoint a, PlanPoint b);

// Square of the area of triangle a, b, c by Heron's formula from its side lengths.
double squaredHeronArea(const SpacePoint& a, const SpacePoint& b, const SpacePoint& c);

// Q lies between A and E: the product of (q − a) and (e − q) in x, or in y when either x
// difference is within ±0.1; INCLUSIVE takes a product of 0.
bool liesBetween(const SpacePoint& q, const SpacePoint& a, const SpacePoint& e, bool inclusive);

bool parallelToSpan(const SpacePoint& p1, const SpacePoint& p2, const SpacePoint& c, const SpacePoint& d);

SpanClass classifyAgainstSpan(const SpacePoint& p1, const SpacePoint& p2, const SpacePoint& c, const SpacePoint& d);

// Four fence points: across the span at p1, diagonally to the far side at p2, across at p2.
// The fence finds every pipe along the span that covers p1, p2 or the span's middle.
std::array<PlanPoint, 4> spanFence(PlanPoint p1, PlanPoint p2);

struct CutPoints {
    SpacePoint first;
    SpacePoint second;
};

// Where a pipe of the cut classes is cut: p1 and p2 projected in plan on c–d, each kept within
// c–d, so that the part of the pipe inside the span is removed.
CutPoints spanCutPoints(const SpacePoint& p1, const SpacePoint& p2, const SpacePoint& c, const SpacePoint& d);

}  // namespace vrn2::drawing
