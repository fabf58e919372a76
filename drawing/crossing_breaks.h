// Which of two crossing polyline pipes is cut, and the gap cut into it: the lower pipe gets a
// gap of radius R around each plan crossing.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

inline constexpr double kBreakZero = 1e-10;
// More duplicated pipes than this stop the command before anything is cut.
inline constexpr int kMaxDuplicatePipes = 5;
// Reaching this many gaps stops the command before anything is cut.
inline constexpr std::size_t kMaxBreakPairs = 2500;

enum class BrokenPipe { First, Second };

struct CrossingBreak {
    BrokenPipe broken;
    PlanPoint crossing;
};

// The decision for one pair that crosses in plan. Level pipes: none at equal elevation, else
// the lower one. Rising pipes: the elevations of both at the crossing decide, and at equal
// height the second pipe is cut.
std::optional<CrossingBreak> crossingBreak(const PipeSegment& first, const PipeSegment& second);

// The elevation of PIPE above the plan point P on it, interpolated by x, or by y when the pipe
// runs parallel to the y axis.
double elevationAt(const PipeSegment& pipe, PlanPoint p);

struct Gap {
    SpacePoint first;
    SpacePoint second;
};

// The two points of PIPE at plan distance RADIUS from the crossing C on it. A point beyond the
// pipe's ends is replaced by C, which leaves a one-sided gap near an end.
Gap breakGap(const PipeSegment& pipe, PlanPoint c, double radius);

struct PipeBreak {
    std::size_t pipe;  // index into the pipes given
    Gap gap;
};

enum class BreakPlanStatus { Ready, TooManyDuplicates, TooManyBreaks };

struct BreakPlan {
    BreakPlanStatus status = BreakPlanStatus::Ready;
    std::vector<PipeBreak> breaks;  // empty unless Ready
};

bool isDuplicatePipe(const PipeSegment& a, const PipeSegment& b);

// Every gap for every pair i < j, collected before anything is cut.
BreakPlan planCrossingBreaks(const std::vector<PipeSegment>& pipes, double radius);

}  // namespace vrn2::drawing
