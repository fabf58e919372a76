#include "drawing/crossing_breaks.h"

#include <algorithm>
#include <cmath>

namespace vrn2::drawing {
namespace {

bool rises(const PipeSegment& s) { return std::fabs(s.end.z - s.start.z) >= kBreakZero; }

bool samePoint(const SpacePoint& a, const SpacePoint& b) {
    return std::fabs(a.x - b.x) < kBreakZero && std::fabs(a.y - b.y) < kBreakZero &&
           std::fabs(a.z - b.z) < kBreakZero;
}

SpacePoint onPipe(const PipeSegment& pipe, double t) {
    return {pipe.start.x + t * (pipe.end.x - pipe.start.x), pipe.start.y + t * (pipe.end.y - pipe.start.y),
            pipe.start.z + t * (pipe.end.z - pipe.start.z)};
}

SpacePoint atCrossing(const PipeSegment& pipe, PlanPoint c) { return {c.x, c.y, elevationAt(pipe, c)}; }

// A gap end moved along one axis: kept when it stays within the pipe's extent on that axis.
SpacePoint axisGapEnd(const PipeSegment& pipe, PlanPoint c, double along, bool alongY) {
    const double from = alongY ? pipe.start.y : pipe.start.x;
    const double to = alongY ? pipe.end.y : pipe.end.x;
    if (along < std::min(from, to) || along > std::max(from, to)) return atCrossing(pipe, c);
    const PlanPoint p = alongY ? PlanPoint{c.x, along} : PlanPoint{along, c.y};
    return {p.x, p.y, elevationAt(pipe, p)};
}

}  // namespace

double elevationAt(const PipeSegment& pipe, PlanPoint p) {
    const double dx = pipe.end.x - pipe.start.x;
    const double dz = pipe.end.z - pipe.start.z;
    if (std::fabs(dx) >= kBreakZero) return pipe.start.z + (p.x - pipe.start.x) / dx * dz;
    const double dy = pipe.end.y - pipe.start.y;
    if (std::fabs(dy) >= kBreakZero) return pipe.start.z + (p.y - pipe.start.y) / dy * dz;
    return pipe.start.z;
}

std::optional<CrossingBreak> crossingBreak(const PipeSegment& first, const PipeSegment& second) {
    const bool level = !rises(first) && !rises(second);
    if (level && std::fabs(first.start.z - second.start.z) < kBreakZero) return std::nullopt;
    const auto c = planSegmentIntersection(plan(first.start), plan(first.end), plan(second.start), plan(second.end));
    if (!c) return std::nullopt;
    if (level) return CrossingBreak{first.start.z <= second.start.z ? BrokenPipe::First : BrokenPipe::Second, *c};
    const double heightDifference = elevationAt(first, *c) - elevationAt(second, *c);
    return CrossingBreak{heightDifference >= 0.0 ? BrokenPipe::Second : BrokenPipe::First, *c};
}

Gap breakGap(const PipeSegment& pipe, PlanPoint c, double radius) {
    const double dx = pipe.end.x - pipe.start.x, dy = pipe.end.y - pipe.start.y;
    if (std::fabs(dx) < kBreakZero)
        return {axisGapEnd(pipe, c, c.y - radius, true), axisGapEnd(pipe, c, c.y + radius, true)};
    if (std::fabs(dy) < kBreakZero)
        return {axisGapEnd(pipe, c, c.x - radius, false), axisGapEnd(pipe, c, c.x + radius, false)};
    // Roots of |start + t·d − c|² = R² for the parameter t along the pipe.
    const double ox = pipe.start.x - c.x, oy = pipe.start.y - c.y;
    const double a = dx * dx + dy * dy;
    const double b = 2.0 * (dx * ox + dy * oy);
    const double cc = ox * ox + oy * oy - radius * radius;
    const double root = std::sqrt(std::max(0.0, b * b - 4.0 * a * cc));
    const auto end = [&](double t) { return (t < 0.0 || t > 1.0) ? atCrossing(pipe, c) : onPipe(pipe, t); };
    return {end((-b - root) / (2.0 * a)), end((-b + root) / (2.0 * a))};
}

bool isDuplicatePipe(const PipeSegment& a, const PipeSegment& b) {
    return (samePoint(a.start, b.start) && samePoint(a.end, b.end)) ||
           (samePoint(a.start, b.end) && samePoint(a.end, b.start));
}

BreakPlan planCrossingBreaks(const std::vector<PipeSegment>& pipes, double radius) {
    BreakPlan result;
    int duplicates = 0;
    for (std::size_t i = 0; i < pipes.size(); ++i) {
        for (std::size_t j = i + 1; j < pipes.size(); ++j) {
            if (isDuplicatePipe(pipes[i], pipes[j])) {
                if (++duplicates > kMaxDuplicatePipes) return {BreakPlanStatus::TooManyDuplicates, {}};
                continue;
            }
            const auto decision = crossingBreak(pipes[i], pipes[j]);
            if (!decision) continue;
            const std::size_t broken = decision->broken == BrokenPipe::First ? i : j;
            result.breaks.push_back({broken, breakGap(pipes[broken], decision->crossing, radius)});
            if (result.breaks.size() >= kMaxBreakPairs) return {BreakPlanStatus::TooManyBreaks, {}};
        }
    }
    return result;
}

}  // namespace vrn2::drawing
