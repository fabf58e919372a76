#include "drawing/plan_geometry.h"

#include "frame/geometry.h"

namespace vrn2::drawing {

std::optional<PlanPoint> planSegmentIntersection(PlanPoint a, PlanPoint b, PlanPoint c, PlanPoint d) {
    const SegmentCrossing crossing =
        crossSegments({a.x, a.y}, {b.x, b.y}, {c.x, c.y}, {d.x, d.y}, kEndTolerance);
    if (crossing.kind != Crossing::Point) return std::nullopt;
    return PlanPoint{crossing.at.x, crossing.at.y};
}

}  // namespace vrn2::drawing
