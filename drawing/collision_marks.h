// Where two line pipes collide, for the collision marks: a plan test for level pipes and a
// common-perpendicular test in space for rising ones.
#pragma once

#include <optional>
#include <vector>

#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

// Below this a coordinate difference or a cross-product component counts as zero.
inline constexpr double kCollisionZero = 1e-10;

// The plan test: the pipes meet when their start elevations differ by less than TOLERANCE,
// neither has zero plan length, and they intersect in plan.
std::optional<PlanPoint> planCollision(const PipeSegment& a, const PipeSegment& b, double tolerance);

// The meeting point of two pipes, level or rising. Rising pipes meet when the nearest points of
// their lines lie closer than TOLERANCE; the plan test then decides on both flattened to z = 0.
// Parallel lines fall back to the plan test as they are.
std::optional<PlanPoint> pipeCollision(const PipeSegment& a, const PipeSegment& b, double tolerance);

// True when P coincides in plan with one of the four end points: a joint, not a collision.
bool isJoint(PlanPoint p, const PipeSegment& a, const PipeSegment& b);

// Every collision mark among PIPES: each pair i < j that meets other than at a joint, in pair
// order.
std::vector<PlanPoint> collisionMarks(const std::vector<PipeSegment>& pipes, double tolerance);

}  // namespace vrn2::drawing
