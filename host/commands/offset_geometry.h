// Offsets in a plane: a line moved sideways, a circle or arc given a larger or smaller radius.
// Points are x, y in the plane of the object (the world plan for lines, the object's own
// coordinates for circles and arcs).
#pragma once

namespace host::cmd {

// The distance of p from the infinite line through a and b, and which side it is on: +1 on
// the left of a->b, -1 on the right, 0 on the line.
double distanceFromLine(const double a[2], const double b[2], const double p[2], int& side);
// The line a b moved by distance to the side of p (the left when p is on the line). False
// when a and b are the same point.
bool offsetLine(const double a[2], const double b[2], double distance, const double p[2], double outA[2],
                double outB[2]);

// The distance of p from the circle, and whether it is inside.
double distanceFromCircle(const double centre[2], double radius, const double p[2], bool& inside);
// The radius of the circle offset by distance towards p (inwards when p is inside). False
// when an inward offset would reach or pass the centre.
bool offsetRadius(const double centre[2], double radius, double distance, const double p[2], double& out);

}  // namespace host::cmd
