#include "host/commands/arc_geometry.h"

#include <cmath>

namespace host::cmd {
namespace {

constexpr double kTwoPi = 6.283185307179586;

double angleOf(const double from[2], const double to[2]) { return std::atan2(to[1] - from[1], to[0] - from[0]); }

double cross(const double a[2], const double b[2], const double c[2]) {
    return (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0]);
}

void arcAbout(const double centre[2], double radius, double start, double end, Arc2& out) {
    out.centre[0] = centre[0];
    out.centre[1] = centre[1];
    out.radius = radius;
    out.start = normalAngle(start);
    out.end = normalAngle(end);
}

}  // namespace

double normalAngle(double a) {
    a = std::fmod(a, kTwoPi);
    if (a < 0) a += kTwoPi;
    return a >= kTwoPi ? 0.0 : a;
}

bool circleThrough(const double a[2], const double b[2], const double c[2], Circle2& out) {
    // The centre is where the perpendicular bisectors meet (the circumcentre).
    double d = 2 * cross(a, b, c);
    double scale = std::hypot(b[0] - a[0], b[1] - a[1]) * std::hypot(c[0] - a[0], c[1] - a[1]);
    if (!(std::fabs(d) > 1e-12 * scale) || scale == 0) return false;
    double bx = b[0] - a[0], by = b[1] - a[1], cx = c[0] - a[0], cy = c[1] - a[1];
    double b2 = bx * bx + by * by, c2 = cx * cx + cy * cy;
    double ux = (cy * b2 - by * c2) / d, uy = (bx * c2 - cx * b2) / d;
    out.centre[0] = a[0] + ux;
    out.centre[1] = a[1] + uy;
    out.radius = std::hypot(ux, uy);
    return true;
}

bool arcThrough(const double start[2], const double second[2], const double end[2], Arc2& out) {
    Circle2 c;
    if (!circleThrough(start, second, end, c)) return false;
    double a0 = angleOf(c.centre, start), a1 = angleOf(c.centre, end);
    if (cross(start, second, end) > 0) arcAbout(c.centre, c.radius, a0, a1, out);  // counter-clockwise
    else arcAbout(c.centre, c.radius, a1, a0, out);
    return true;
}

bool arcStartCentreEnd(const double start[2], const double centre[2], const double endDirection[2], Arc2& out) {
    double r = std::hypot(start[0] - centre[0], start[1] - centre[1]);
    if (r == 0 || (endDirection[0] == centre[0] && endDirection[1] == centre[1])) return false;
    arcAbout(centre, r, angleOf(centre, start), angleOf(centre, endDirection), out);
    return true;
}

bool arcStartCentreAngle(const double start[2], const double centre[2], double included, Arc2& out) {
    double r = std::hypot(start[0] - centre[0], start[1] - centre[1]);
    if (r == 0 || included == 0 || !std::isfinite(included)) return false;
    double a0 = angleOf(centre, start);
    if (included > 0) arcAbout(centre, r, a0, a0 + included, out);
    else arcAbout(centre, r, a0 + included, a0, out);
    return true;
}

bool arcStartCentreChord(const double start[2], const double centre[2], double chord, Arc2& out) {
    double r = std::hypot(start[0] - centre[0], start[1] - centre[1]);
    if (r == 0 || chord == 0 || !(std::fabs(chord) <= 2 * r)) return false;
    double minor = 2 * std::asin(std::fabs(chord) / (2 * r));
    double a0 = angleOf(centre, start);
    arcAbout(centre, r, a0, a0 + (chord > 0 ? minor : kTwoPi - minor), out);
    return true;
}

double tangentBulge(const double dir[2], const double from[2], const double to[2]) {
    // The chord makes half the included angle with the tangent at either end.
    double cx = to[0] - from[0], cy = to[1] - from[1];
    double half = std::atan2(dir[0] * cy - dir[1] * cx, dir[0] * cx + dir[1] * cy);
    return std::tan(half / 2);
}

void endDirection(const double from[2], const double to[2], double bulge, double dir[2]) {
    double chord = angleOf(from, to);
    double a = chord + 2 * std::atan(bulge);  // half the included angle past the chord
    dir[0] = std::cos(a);
    dir[1] = std::sin(a);
}

bool bulgeThrough(const double start[2], const double second[2], const double end[2], double& bulge) {
    Circle2 c;
    if (!circleThrough(start, second, end, c)) return false;
    double a0 = angleOf(c.centre, start), a1 = angleOf(c.centre, end);
    double sweep = cross(start, second, end) > 0 ? normalAngle(a1 - a0) : -normalAngle(a0 - a1);
    bulge = std::tan(sweep / 4);
    return true;
}

bool bulgeArc(const double from[2], const double to[2], double bulge, Arc2& out) {
    double dx = to[0] - from[0], dy = to[1] - from[1];
    double chord = std::hypot(dx, dy);
    if (chord == 0 || bulge == 0) return false;
    // The centre lies on the chord's perpendicular bisector, (1 - b^2) / 2b half chords to
    // its left; the radius is (1 + b^2) / 2|b| half chords.
    double offset = (1 - bulge * bulge) / (2 * bulge) / 2;
    double centre[2] = {(from[0] + to[0]) / 2 - dy * offset, (from[1] + to[1]) / 2 + dx * offset};
    double r = chord / 2 * (1 + bulge * bulge) / (2 * std::fabs(bulge));
    if (bulge > 0) arcAbout(centre, r, angleOf(centre, from), angleOf(centre, to), out);
    else arcAbout(centre, r, angleOf(centre, to), angleOf(centre, from), out);
    return true;
}

}  // namespace host::cmd
