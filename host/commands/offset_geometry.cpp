#include "host/commands/offset_geometry.h"

#include <cmath>

namespace host::cmd {

double distanceFromLine(const double a[2], const double b[2], const double p[2], int& side) {
    double dx = b[0] - a[0], dy = b[1] - a[1];
    double length = std::hypot(dx, dy);
    if (length == 0) {
        side = 0;
        return std::hypot(p[0] - a[0], p[1] - a[1]);
    }
    double signedDistance = (dx * (p[1] - a[1]) - dy * (p[0] - a[0])) / length;
    side = signedDistance > 0 ? 1 : signedDistance < 0 ? -1 : 0;
    return std::fabs(signedDistance);
}

bool offsetLine(const double a[2], const double b[2], double distance, const double p[2], double outA[2],
                double outB[2]) {
    double dx = b[0] - a[0], dy = b[1] - a[1];
    double length = std::hypot(dx, dy);
    if (length == 0) return false;
    int side;
    distanceFromLine(a, b, p, side);
    double k = (side < 0 ? -distance : distance) / length;
    // The left normal of a->b is (-dy, dx).
    outA[0] = a[0] - dy * k, outA[1] = a[1] + dx * k;
    outB[0] = b[0] - dy * k, outB[1] = b[1] + dx * k;
    return true;
}

double distanceFromCircle(const double centre[2], double radius, const double p[2], bool& inside) {
    double d = std::hypot(p[0] - centre[0], p[1] - centre[1]);
    inside = d < radius;
    return std::fabs(d - radius);
}

bool offsetRadius(const double centre[2], double radius, double distance, const double p[2], double& out) {
    bool inside;
    distanceFromCircle(centre, radius, p, inside);
    out = inside ? radius - distance : radius + distance;
    return out > 1e-10 * std::fmax(1.0, radius);
}

}  // namespace host::cmd
