#include "drawing/plan_geometry.h"

#include <cmath>

namespace vrn2::drawing {

std::optional<PlanPoint> planSegmentIntersection(PlanPoint a, PlanPoint b, PlanPoint c, PlanPoint d) {
    const double rx = b.x - a.x, ry = b.y - a.y;
    const double sx = d.x - c.x, sy = d.y - c.y;
    const double denominator = rx * sy - ry * sx;
    // Relative test: the cross product of the directions against their lengths.
    const double scale = std::hypot(rx, ry) * std::hypot(sx, sy);
    if (scale == 0.0 || std::fabs(denominator) <= 1e-12 * scale) return std::nullopt;
    const double qx = c.x - a.x, qy = c.y - a.y;
    const double t = (qx * sy - qy * sx) / denominator;  // along a–b
    const double u = (qx * ry - qy * rx) / denominator;  // along c–d
    if (t < -kEndTolerance || t > 1.0 + kEndTolerance) return std::nullopt;
    if (u < -kEndTolerance || u > 1.0 + kEndTolerance) return std::nullopt;
    return PlanPoint{a.x + t * rx, a.y + t * ry};
}

}  // namespace vrn2::drawing
