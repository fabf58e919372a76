#include "host/commands/break_geometry.h"

#include <algorithm>
#include <cmath>

namespace host::cmd {
namespace {

constexpr double kTolerance = 1e-9;
constexpr double kTwoPi = 6.283185307179586;

struct Arc {
    double cx, cy, r;
    double start;  // angle of the segment's start about the centre
    double sweep;  // signed: positive counter-clockwise
};

const PathVertex& at(const Path& path, size_t i) { return path.vertices[i % path.vertices.size()]; }

Arc arcOf(const PathVertex& a, const PathVertex& b) {
    double dx = b.p[0] - a.p[0], dy = b.p[1] - a.p[1];
    double k = (1 - a.bulge * a.bulge) / (4 * a.bulge);
    Arc arc;
    arc.cx = (a.p[0] + b.p[0]) / 2 - dy * k;
    arc.cy = (a.p[1] + b.p[1]) / 2 + dx * k;
    arc.r = std::hypot(a.p[0] - arc.cx, a.p[1] - arc.cy);
    arc.start = std::atan2(a.p[1] - arc.cy, a.p[0] - arc.cx);
    arc.sweep = 4 * std::atan(a.bulge);
    return arc;
}

bool isArc(const PathVertex& a, const PathVertex& b) {
    return std::fabs(a.bulge) > 1e-12 && std::hypot(b.p[0] - a.p[0], b.p[1] - a.p[1]) > kTolerance;
}

// The point of segment i at fraction f.
void segmentPoint(const Path& path, size_t i, double f, double out[3]) {
    const PathVertex& a = at(path, i);
    const PathVertex& b = at(path, i + 1);
    if (isArc(a, b)) {
        Arc arc = arcOf(a, b);
        double angle = arc.start + arc.sweep * f;
        out[0] = arc.cx + arc.r * std::cos(angle);
        out[1] = arc.cy + arc.r * std::sin(angle);
    } else {
        out[0] = a.p[0] + (b.p[0] - a.p[0]) * f;
        out[1] = a.p[1] + (b.p[1] - a.p[1]) * f;
    }
    out[2] = a.p[2] + (b.p[2] - a.p[2]) * f;
}

// The fraction of segment i nearest to p in plan.
double nearestOnSegment(const Path& path, size_t i, const double p[3]) {
    const PathVertex& a = at(path, i);
    const PathVertex& b = at(path, i + 1);
    if (isArc(a, b)) {
        Arc arc = arcOf(a, b);
        double angle = std::atan2(p[1] - arc.cy, p[0] - arc.cx);
        // The angle measured from the start in the arc's own direction, in [0, 2 pi).
        double d = (angle - arc.start) * (arc.sweep > 0 ? 1 : -1);
        d = std::fmod(d, kTwoPi);
        if (d < 0) d += kTwoPi;
        double span = std::fabs(arc.sweep);
        if (d <= span) return d / span;
        // Off the arc: the nearer end.
        double toStart = std::hypot(p[0] - a.p[0], p[1] - a.p[1]);
        double toEnd = std::hypot(p[0] - b.p[0], p[1] - b.p[1]);
        return toStart <= toEnd ? 0.0 : 1.0;
    }
    double dx = b.p[0] - a.p[0], dy = b.p[1] - a.p[1];
    double len2 = dx * dx + dy * dy;
    if (len2 <= 0) return 0.0;
    return std::clamp(((p[0] - a.p[0]) * dx + (p[1] - a.p[1]) * dy) / len2, 0.0, 1.0);
}

double widthAt(const PathVertex& v, double f) { return v.startWidth + (v.endWidth - v.startWidth) * f; }

// The part of the path from ta to tb (ta < tb, both within one pass of the path).
Path subPath(const Path& path, double ta, double tb) {
    std::vector<double> cuts{ta};
    for (double k = std::floor(ta + kTolerance) + 1; k < tb - kTolerance; k += 1) cuts.push_back(k);
    cuts.push_back(tb);
    Path piece;
    for (size_t c = 0; c + 1 < cuts.size(); ++c) {
        double t0 = cuts[c], t1 = cuts[c + 1];
        auto seg = static_cast<size_t>(std::floor(t0 + kTolerance));
        double f0 = std::max(0.0, t0 - static_cast<double>(seg)), f1 = std::min(1.0, t1 - static_cast<double>(seg));
        const PathVertex& a = at(path, seg);
        PathVertex v;
        segmentPoint(path, seg, f0, v.p);
        if (isArc(a, at(path, seg + 1))) v.bulge = std::tan(4 * std::atan(a.bulge) * (f1 - f0) / 4);
        v.startWidth = widthAt(a, f0);
        v.endWidth = widthAt(a, f1);
        piece.vertices.push_back(v);
    }
    PathVertex last;
    double end = tb;
    auto seg = static_cast<size_t>(std::min(std::floor(end - kTolerance), static_cast<double>(path.segments() - 1)));
    segmentPoint(path, seg, end - static_cast<double>(seg), last.p);
    last.startWidth = last.endWidth = widthAt(at(path, seg), end - static_cast<double>(seg));
    piece.vertices.push_back(last);
    return piece;
}

double lengthOf(const Path& p) {
    double total = 0;
    for (size_t i = 0; i + 1 < p.vertices.size(); ++i) {
        const auto& a = p.vertices[i];
        const auto& b = p.vertices[i + 1];
        double chord = std::hypot(b.p[0] - a.p[0], b.p[1] - a.p[1], b.p[2] - a.p[2]);
        double angle = 4 * std::atan(std::fabs(a.bulge));
        total += angle > 1e-12 ? chord * angle / (2 * std::sin(angle / 2)) : chord;
    }
    return total;
}

}  // namespace

size_t Path::segments() const {
    if (vertices.size() < 2) return 0;
    return closed ? vertices.size() : vertices.size() - 1;
}

void pointAt(const Path& path, double t, double out[3]) {
    size_t n = path.segments();
    auto seg = static_cast<size_t>(std::min(std::floor(t), static_cast<double>(n - 1)));
    segmentPoint(path, seg, t - static_cast<double>(seg), out);
}

double project(const Path& path, const double p[3]) {
    double best = 0.0, bestDistance = 1e300;
    for (size_t i = 0; i < path.segments(); ++i) {
        double f = nearestOnSegment(path, i, p);
        double q[3];
        segmentPoint(path, i, f, q);
        double d = std::hypot(q[0] - p[0], q[1] - p[1]);
        if (d < bestDistance - 1e-12) {
            bestDistance = d;
            best = static_cast<double>(i) + f;
        }
    }
    return best;
}

bool breakPath(const Path& path, double first, double second, std::vector<Path>& pieces) {
    pieces.clear();
    auto n = static_cast<double>(path.segments());
    if (n == 0) return false;
    double total = lengthOf(subPath(path, 0, n));
    double tolerance = std::max(total * 1e-9, kTolerance);
    if (path.closed) {
        if (std::fabs(first - second) < 1e-12 || std::fabs(std::fabs(first - second) - n) < 1e-12) return false;
        Path kept;
        if (second < first) {
            kept = subPath(path, second, first);
        } else {
            // From the second point round through the first vertex to the first point.
            kept = subPath(path, second, n);
            Path rest = subPath(path, 0, first);
            kept.vertices.pop_back();
            kept.vertices.insert(kept.vertices.end(), rest.vertices.begin(), rest.vertices.end());
            if (first < kTolerance) {  // the first point is the first vertex itself
                kept = subPath(path, second, n);
            }
        }
        if (lengthOf(kept) > tolerance) pieces.push_back(std::move(kept));
        return true;
    }
    double lo = std::clamp(std::min(first, second), 0.0, n);
    double hi = std::clamp(std::max(first, second), 0.0, n);
    if (lo > 0) {
        Path a = subPath(path, 0, lo);
        if (lengthOf(a) > tolerance) pieces.push_back(std::move(a));
    }
    if (hi < n) {
        Path b = subPath(path, hi, n);
        if (lengthOf(b) > tolerance) pieces.push_back(std::move(b));
    }
    return true;
}

}  // namespace host::cmd
