#include "frame/geometry.h"

#include <algorithm>
#include <cmath>

namespace vrn2 {
namespace {

constexpr double kTwoPi = 6.283185307179586;

double cross(double ax, double ay, double bx, double by) { return ax * by - ay * bx; }

// Where P lies along A1-A2 as a fraction of its length (0 at A1, 1 at A2).
double along(const Point2& a1, const Point2& a2, const Point2& p) {
    double dx = a2.x - a1.x, dy = a2.y - a1.y;
    return ((p.x - a1.x) * dx + (p.y - a1.y) * dy) / (dx * dx + dy * dy);
}

Point2 at(const Point2& a1, const Point2& a2, double t) {
    return {a1.x + t * (a2.x - a1.x), a1.y + t * (a2.y - a1.y)};
}

SegmentCrossing collinearCrossing(const Point2& a1, const Point2& a2, const Point2& b1, const Point2& b2,
                                  double slack) {
    SegmentCrossing c;
    c.kind = Crossing::Collinear;
    double t1 = along(a1, a2, b1), t2 = along(a1, a2, b2);
    double low = std::max(0.0, std::min(t1, t2)), high = std::min(1.0, std::max(t1, t2));
    c.overlap = low <= high + slack;
    if (c.overlap) c.at = at(a1, a2, std::min(low, 1.0));
    return c;
}

}  // namespace

bool coincide(const Point2& a, const Point2& b, double tol) {
    return std::fabs(a.x - b.x) < tol && std::fabs(a.y - b.y) < tol;
}

bool coincide(const Point3& a, const Point3& b, double tol) {
    return coincide(a.plan(), b.plan(), tol) && std::fabs(a.z - b.z) < tol;
}

double distance(const Point2& a, const Point2& b) { return std::hypot(b.x - a.x, b.y - a.y); }

double distance(const Point3& a, const Point3& b) {
    double dx = b.x - a.x, dy = b.y - a.y, dz = b.z - a.z;
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}

double normaliseAngle(double a) {
    while (a < 0.0 || a >= kTwoPi) a += a < 0.0 ? kTwoPi : -kTwoPi;
    return a;
}

double angleOf(const Point2& from, const Point2& to) {
    return normaliseAngle(std::atan2(to.y - from.y, to.x - from.x));
}

Point2 polar(const Point2& base, double angle, double distance) {
    return {base.x + distance * std::cos(angle), base.y + distance * std::sin(angle)};
}

Point3 polar(const Point3& base, double angle, double distance) {
    Point2 p = polar(base.plan(), angle, distance);
    return {p.x, p.y, base.z};
}

SegmentCrossing crossSegments(const Point2& a1, const Point2& a2, const Point2& b1, const Point2& b2, double tol) {
    double ax = a2.x - a1.x, ay = a2.y - a1.y, bx = b2.x - b1.x, by = b2.y - b1.y;
    double lengthA = std::hypot(ax, ay), lengthB = std::hypot(bx, by);
    if (lengthA < tol || lengthB < tol) return {};
    double denominator = cross(ax, ay, bx, by);
    double ox = b1.x - a1.x, oy = b1.y - a1.y;
    if (std::fabs(denominator) < tol * lengthA * lengthB) {
        bool onLine = std::fabs(cross(ax, ay, ox, oy)) / lengthA < tol;
        if (!onLine) return {Crossing::Parallel, {}, false};
        return collinearCrossing(a1, a2, b1, b2, tol / lengthA);
    }
    double t = cross(ox, oy, bx, by) / denominator;  // along A
    double u = cross(ox, oy, ax, ay) / denominator;  // along B
    double slackA = tol / lengthA, slackB = tol / lengthB;
    if (t < -slackA || t > 1.0 + slackA || u < -slackB || u > 1.0 + slackB) return {};
    return {Crossing::Point, at(a1, a2, std::clamp(t, 0.0, 1.0)), false};
}

}  // namespace vrn2
