// Breaking a path of straight and arc segments (a line, an arc, a circle, a polyline) at two
// points: the points are projected onto the path, and the part between them is removed. An
// open path keeps the pieces before the first and after the second point; a closed path
// keeps the part from the second point onward round to the first (the part removed runs from
// the first point to the second in the direction of its vertices).
#pragma once

#include <cstddef>
#include <vector>

namespace host::cmd {

struct PathVertex {
    double p[3] = {0, 0, 0};
    double bulge = 0.0;       // of the segment that starts here
    double startWidth = 0.0;  // of that segment
    double endWidth = 0.0;
};

struct Path {
    std::vector<PathVertex> vertices;
    bool closed = false;
    size_t segments() const;
};

// The parameter of the point of the path nearest to p in plan: segment index plus the
// fraction along it (by angle on arcs).
double project(const Path& path, const double p[3]);

// The pieces that remain after removing the part between the parameters; false when the
// break cannot be made (one point on a closed path). A piece of an open path shorter than
// the tolerance is dropped.
bool breakPath(const Path& path, double first, double second, std::vector<Path>& pieces);

// The point at a parameter.
void pointAt(const Path& path, double t, double out[3]);

}  // namespace host::cmd
