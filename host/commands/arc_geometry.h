// Circles and arcs in the plan as the drawing commands construct them, and the bulges of
// polyline arc segments. Angles are radians measured counter-clockwise from the X axis; an
// arc runs counter-clockwise from its start angle to its end angle, as an ARC entity holds it.
#pragma once

namespace host::cmd {

struct Circle2 {
    double centre[2] = {0, 0};
    double radius = 0.0;
};

struct Arc2 {
    double centre[2] = {0, 0};
    double radius = 0.0;
    double start = 0.0;
    double end = 0.0;
};

// The circle through three points; false when they lie on one line (or two coincide).
bool circleThrough(const double a[2], const double b[2], const double c[2], Circle2& out);

// The arc from start through second to end. Points running clockwise give the arc from end
// to start, so that it still runs counter-clockwise. False for points on one line.
bool arcThrough(const double start[2], const double second[2], const double end[2], Arc2& out);

// The arc about centre from start counter-clockwise to the ray towards endDirection.
bool arcStartCentreEnd(const double start[2], const double centre[2], const double endDirection[2], Arc2& out);
// The arc about centre from start through the included angle: counter-clockwise when it is
// positive, clockwise when negative (the arc is then stored from its end to start).
bool arcStartCentreAngle(const double start[2], const double centre[2], double included, Arc2& out);
// The arc about centre from start whose chord has the length: counter-clockwise, the minor
// arc for a positive length and the major one for a negative length. False for a chord
// longer than the diameter.
bool arcStartCentreChord(const double start[2], const double centre[2], double chord, Arc2& out);

// The bulge of the arc that leaves from in the direction dir and ends at to: tan of a
// quarter of the included angle, positive counter-clockwise.
double tangentBulge(const double dir[2], const double from[2], const double to[2]);
// The direction in which a segment of the bulge arrives at to (the chord's for a straight one).
void endDirection(const double from[2], const double to[2], double bulge, double dir[2]);
// The bulge of the arc from start through second to end; false for points on one line.
bool bulgeThrough(const double start[2], const double second[2], const double end[2], double& bulge);
// The arc of a polyline segment with a bulge other than 0; false for coincident ends.
bool bulgeArc(const double from[2], const double to[2], double bulge, Arc2& out);

// An angle brought into [0, 2 pi).
double normalAngle(double a);

}  // namespace host::cmd
