// Small geometry for module code, over plain values and without host calls, so that it can be
// tested alone. Points are plain structs; Point3::of and Point3::to convert from and to the
// host's ads_point, so that entity lists and host commands meet them. Angles are radians,
// counter-clockwise from the x axis; lengths are drawing units.
#pragma once

#include "adsdef.h"

namespace vrn2 {

struct Point2 {
    double x = 0.0;
    double y = 0.0;
};

struct Point3 {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    static Point3 of(const ads_point p) { return {p[0], p[1], p[2]}; }
    void to(ads_point p) const {
        p[0] = x;
        p[1] = y;
        p[2] = z;
    }
    Point2 plan() const { return {x, y}; }
};

// Whether A and B are the same point: every coordinate difference strictly below TOL.
bool coincide(const Point2& a, const Point2& b, double tol);
bool coincide(const Point3& a, const Point3& b, double tol);

double distance(const Point2& a, const Point2& b);
double distance(const Point3& a, const Point3& b);

// Brings an angle into [0, 2π) by whole turns.
double normaliseAngle(double a);
// The angle of the direction from FROM to TO in plan, in [0, 2π); 0 for two equal points.
double angleOf(const Point2& from, const Point2& to);
// The point at ANGLE and DISTANCE from BASE in plan; the 3-D form keeps the base's z.
Point2 polar(const Point2& base, double angle, double distance);
Point3 polar(const Point3& base, double angle, double distance);

enum class Crossing {
    None,       // the segments do not meet, or one has no length
    Point,      // they meet in one point
    Parallel,   // parallel and apart: they never meet
    Collinear,  // on one line; they may overlap
};

struct SegmentCrossing {
    Crossing kind = Crossing::None;
    Point2 at;             // Point: where they meet; Collinear with overlap: a point both hold
    bool overlap = false;  // Collinear: the segments share at least one point
};

// Where the segments A1-A2 and B1-B2 meet in plan, end points included. TOL is a length:
// segments shorter than it have no direction and meet nothing; directions whose sine of the
// angle between them is below TOL are parallel, and collinear when B1 lies within TOL of the
// line through A; a meeting up to TOL beyond an end still counts.
SegmentCrossing crossSegments(const Point2& a1, const Point2& a2, const Point2& b1, const Point2& b2,
                              double tol = 1e-10);

}  // namespace vrn2
