#include "drawing/collision_marks.h"

#include <cmath>

namespace vrn2::drawing {
namespace {

bool rises(const PipeSegment& s) { return std::fabs(s.end.z - s.start.z) >= kCollisionZero; }

bool hasZeroPlanLength(const PipeSegment& s) {
    return std::fabs(s.end.x - s.start.x) < kCollisionZero &&
           std::fabs(s.end.y - s.start.y) < kCollisionZero;
}

PipeSegment flattened(const PipeSegment& s) {
    return {{s.start.x, s.start.y, 0.0}, {s.end.x, s.end.y, 0.0}};
}

struct Vector3 {
    double x, y, z;
};

Vector3 direction(const PipeSegment& s) {
    return {s.end.x - s.start.x, s.end.y - s.start.y, s.end.z - s.start.z};
}

Vector3 cross(const Vector3& u, const Vector3& v) {
    return {u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x};
}

}  // namespace

std::optional<PlanPoint> planCollision(const PipeSegment& a, const PipeSegment& b, double tolerance) {
    if (!(std::fabs(a.start.z - b.start.z) < tolerance)) return std::nullopt;
    if (hasZeroPlanLength(a) || hasZeroPlanLength(b)) return std::nullopt;
    return planSegmentIntersection(plan(a.start), plan(a.end), plan(b.start), plan(b.end));
}

std::optional<PlanPoint> pipeCollision(const PipeSegment& a, const PipeSegment& b, double tolerance) {
    if (!rises(a) && !rises(b)) return planCollision(a, b, tolerance);
    const Vector3 normal = cross(direction(a), direction(b));
    if (std::fabs(normal.x) < kCollisionZero && std::fabs(normal.y) < kCollisionZero &&
        std::fabs(normal.z) < kCollisionZero)
        return planCollision(a, b, tolerance);
    // The distance of the nearest points of two skew lines is the projection of any
    // connecting vector on the common normal.
    const Vector3 between{b.start.x - a.start.x, b.start.y - a.start.y, b.start.z - a.start.z};
    const double normalLength = std::sqrt(normal.x * normal.x + normal.y * normal.y + normal.z * normal.z);
    const double distance =
        std::fabs(between.x * normal.x + between.y * normal.y + between.z * normal.z) / normalLength;
    if (!(distance < tolerance)) return std::nullopt;
    return planCollision(flattened(a), flattened(b), tolerance);
}

bool isJoint(PlanPoint p, const PipeSegment& a, const PipeSegment& b) {
    for (const SpacePoint* end : {&a.start, &a.end, &b.start, &b.end}) {
        if (std::fabs(p.x - end->x) < kCollisionZero && std::fabs(p.y - end->y) < kCollisionZero)
            return true;
    }
    return false;
}

std::vector<PlanPoint> collisionMarks(const std::vector<PipeSegment>& pipes, double tolerance) {
    std::vector<PlanPoint> marks;
    for (std::size_t i = 0; i < pipes.size(); ++i) {
        for (std::size_t j = i + 1; j < pipes.size(); ++j) {
            const auto meeting = pipeCollision(pipes[i], pipes[j], tolerance);
            if (meeting && !isJoint(*meeting, pipes[i], pipes[j])) marks.push_back(*meeting);
        }
    }
    return marks;
}

}  // namespace vrn2::drawing
