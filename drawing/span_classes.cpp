#include "drawing/span_classes.h"

#include <algorithm>
#include <cmath>

#include "drawing/equipment_probe.h"

namespace vrn2::drawing {
namespace {

constexpr double kTwoPi = 6.283185307179586;

bool inWindow(double value, double low, double high) { return value >= low && value <= high; }

SpacePoint projected(const SpacePoint& p, const SpacePoint& c, const SpacePoint& d) {
    // In plan: the span is picked on a plan drawing; the height follows the pipe.
    const double dx = d.x - c.x, dy = d.y - c.y, dz = d.z - c.z;
    const double lengthSquared = dx * dx + dy * dy;
    double t = lengthSquared > 0.0 ? ((p.x - c.x) * dx + (p.y - c.y) * dy) / lengthSquared : 0.0;
    t = std::clamp(t, 0.0, 1.0);
    return {c.x + t * dx, c.y + t * dy, c.z + t * dz};
}

}  // namespace

double directionAngle(PlanPoint a, PlanPoint b) {
    const double angle = std::atan2(b.y - a.y, b.x - a.x);
    return angle < 0.0 ? angle + kTwoPi : angle;
}

double squaredHeronArea(const SpacePoint& a, const SpacePoint& b, const SpacePoint& c) {
    const double x = distance(a, b), y = distance(b, c), z = distance(c, a);
    const double s = (x + y + z) / 2.0;
    return s * (s - x) * (s - y) * (s - z);
}

bool liesBetween(const SpacePoint& q, const SpacePoint& a, const SpacePoint& e, bool inclusive) {
    double before = q.x - a.x, after = e.x - q.x;
    if (std::fabs(before) <= kBetweenSwitch || std::fabs(after) <= kBetweenSwitch) {
        before = q.y - a.y;
        after = e.y - q.y;
    }
    const double product = before * after;
    return inclusive ? product >= 0.0 : product > 0.0;
}

bool parallelToSpan(const SpacePoint& p1, const SpacePoint& p2, const SpacePoint& c, const SpacePoint& d) {
    const double area1 = squaredHeronArea(p1, c, d), area2 = squaredHeronArea(p2, c, d);
    if (std::fabs(area1) <= kCollinearArea && std::fabs(area2) <= kCollinearArea) return true;
    const double difference = directionAngle(plan(p1), plan(p2)) - directionAngle(plan(c), plan(d));
    return inWindow(difference, 0.0, kParallelLow) || inWindow(difference, kAntiParallelLow, kAntiParallelHigh);
}

SpanClass classifyAgainstSpan(const SpacePoint& p1, const SpacePoint& p2, const SpacePoint& c, const SpacePoint& d) {
    if (!parallelToSpan(p1, p2, c, d)) return SpanClass::Untouched;
    if (liesBetween(c, p1, p2, true) && liesBetween(d, p1, p2, true)) return SpanClass::Inside;
    if (liesBetween(p2, c, d, false)) return SpanClass::SecondEnd;
    if (liesBetween(p1, c, d, false)) return SpanClass::FirstEnd;
    return SpanClass::Untouched;
}

std::array<PlanPoint, 4> spanFence(PlanPoint p1, PlanPoint p2) {
    const double angle = directionAngle(p1, p2);
    const double halfWidth = kFenceHalfWidth * std::hypot(p2.x - p1.x, p2.y - p1.y);
    const double quarter = kTwoPi / 4.0;
    return {polarPoint(p1, angle - quarter, halfWidth), polarPoint(p1, angle + quarter, halfWidth),
            polarPoint(p2, angle - quarter, halfWidth), polarPoint(p2, angle + quarter, halfWidth)};
}

CutPoints spanCutPoints(const SpacePoint& p1, const SpacePoint& p2, const SpacePoint& c, const SpacePoint& d) {
    return {projected(p1, c, d), projected(p2, c, d)};
}

}  // namespace vrn2::drawing
