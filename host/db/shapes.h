// The plan shape of an entity, for selection by window, crossing, polygon, fence and pick,
// and for the extents of a drawing: segments, circular arcs and points in world X and Y.
#pragma once

#include <cstdint>
#include <vector>

namespace host::db {

class Database;

struct P2 {
    double x = 0.0, y = 0.0;
};

struct Segment {
    P2 a, b;
};

struct ArcPiece {
    P2 c;
    double r = 0.0;
    double start = 0.0;  // radians; the arc runs counter-clockwise from start to end
    double end = 0.0;    // end > start, end - start <= 2 pi
};

struct Shape {
    std::vector<P2> points;
    std::vector<Segment> segments;
    std::vector<ArcPiece> arcs;
    bool empty() const { return points.empty() && segments.empty() && arcs.empty(); }
};

struct Box {
    double minX = 1e300, minY = 1e300, maxX = -1e300, maxY = -1e300;
    bool valid() const { return minX <= maxX && minY <= maxY; }
    void add(P2 p);
    void add(const Box& b);
};

// The shape of an entity record (with the vertices of a POLYLINE); empty for entities the
// host does not draw (hatches, dimensions).
Shape shapeOf(const Database& db, uint32_t index);

// The arc of a polyline segment from a to b with the given bulge (tan of a quarter of the
// included angle, positive counter-clockwise).
ArcPiece bulgeArc(P2 a, P2 b, double bulge);

// Tests against a closed polygon (a window is a polygon of four corners) and an open fence.
bool insidePolygon(const Shape& s, const std::vector<P2>& polygon);
bool crossesPolygon(const Shape& s, const std::vector<P2>& polygon);  // inside or crossing
bool crossesFence(const Shape& s, const std::vector<P2>& fence);
double distanceTo(const Shape& s, P2 p);
Box extentsOf(const Shape& s);

bool angleOnArc(const ArcPiece& a, double angle);
double normalizeAngle(double a);  // into [0, 2 pi)

}  // namespace host::db
