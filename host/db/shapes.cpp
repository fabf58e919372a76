#include "host/db/shapes.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "host/db/database.h"
#include "host/db/entity_lists.h"
#include "host/db/group_values.h"

namespace host::db {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2 * kPi;
constexpr double kEps = 1e-9;

P2 sub(P2 a, P2 b) { return {a.x - b.x, a.y - b.y}; }
double cross(P2 a, P2 b) { return a.x * b.y - a.y * b.x; }
double dot(P2 a, P2 b) { return a.x * b.x + a.y * b.y; }
double length(P2 v) { return std::hypot(v.x, v.y); }

P2 at(const Group* g) { return g ? P2{g->point[0], g->point[1]} : P2{}; }
double real(const GroupList& data, int code, double fallback = 0.0) {
    const Group* g = findCode(data, code);
    return g ? g->real : fallback;
}

P2 onArc(const ArcPiece& a, double angle) { return {a.c.x + a.r * std::cos(angle), a.c.y + a.r * std::sin(angle)}; }

// Plan coordinates of an entity whose points are in its object coordinate system: with
// the extrusion (0,0,-1) the X axis runs the other way.
struct Ocs {
    bool flipped = false;
    P2 map(P2 p) const { return flipped ? P2{-p.x, p.y} : p; }
    ArcPiece map(ArcPiece a) const {
        if (!flipped) return a;
        ArcPiece m = a;
        m.c = map(a.c);
        m.start = normalizeAngle(kPi - a.end);
        m.end = m.start + (a.end - a.start);
        return m;
    }
};

Ocs ocsOf(const GroupList& data) {
    const Group* z = findCode(data, 210);
    Ocs o;
    o.flipped = z && z->point[2] < 0 && std::fabs(z->point[0]) < 1e-9 && std::fabs(z->point[1]) < 1e-9;
    return o;
}

ArcPiece arcFrom(P2 c, double r, double startDeg, double endDeg) {
    ArcPiece a{c, r, normalizeAngle(startDeg * kPi / 180.0), 0.0};
    double sweep = normalizeAngle(endDeg * kPi / 180.0 - a.start);
    if (sweep < kEps) sweep = kTwoPi;
    a.end = a.start + sweep;
    return a;
}

struct Vertex {
    P2 p;
    double bulge = 0.0;
};

void addPath(Shape& s, const std::vector<Vertex>& v, bool closed, const Ocs& ocs) {
    if (v.size() == 1) s.points.push_back(ocs.map(v[0].p));
    size_t n = v.size();
    size_t segments = closed ? n : (n ? n - 1 : 0);
    for (size_t i = 0; i < segments; ++i) {
        const Vertex& a = v[i];
        const Vertex& b = v[(i + 1) % n];
        if (std::fabs(a.bulge) > 1e-12 && length(sub(b.p, a.p)) > kEps)
            s.arcs.push_back(ocs.map(bulgeArc(a.p, b.p, a.bulge)));
        else
            s.segments.push_back({ocs.map(a.p), ocs.map(b.p)});
    }
}

std::vector<Vertex> lwVertices(const GroupList& data) {
    std::vector<Vertex> v;
    for (const auto& g : data) {
        if (g.code == 10) v.push_back({{g.point[0], g.point[1]}, 0.0});
        else if (g.code == 42 && !v.empty()) v.back().bulge = g.real;
    }
    return v;
}

std::vector<Vertex> polylineVertices(const Database& db, uint32_t index) {
    std::vector<Vertex> v;
    const Record& head = db.record(index);
    const auto& list = listOf(db, head);
    for (size_t i = static_cast<size_t>(head.pos) + 1; i < list.size(); ++i) {
        const Record& r = db.record(list[i]);
        if (r.kind != RecordKind::SubEntity || r.main != index) break;
        if (db.typeName(r) != "VERTEX") continue;
        GroupList data;
        decodeGroups(db, r.groups, data, nullptr);
        const Group* flags = findCode(data, 70);
        if (flags && (flags->integer & 128) && !(flags->integer & 64)) continue;  // a face record
        v.push_back({at(findCode(data, 10)), real(data, 42)});
    }
    return v;
}

void addEllipse(Shape& s, const GroupList& data) {
    P2 c = at(findCode(data, 10));
    P2 major = at(findCode(data, 11));
    double ratio = real(data, 40, 1.0);
    double t0 = real(data, 41, 0.0), t1 = real(data, 42, kTwoPi);
    if (t1 <= t0) t1 += kTwoPi;
    P2 minor{-major.y * ratio, major.x * ratio};
    const int steps = 96;
    P2 prev{};
    for (int i = 0; i <= steps; ++i) {
        double t = t0 + (t1 - t0) * i / steps;
        P2 p{c.x + major.x * std::cos(t) + minor.x * std::sin(t), c.y + major.y * std::cos(t) + minor.y * std::sin(t)};
        if (i) s.segments.push_back({prev, p});
        prev = p;
    }
}

bool segmentsMeet(P2 p1, P2 p2, P2 q1, P2 q2) {
    P2 r = sub(p2, p1), s = sub(q2, q1);
    double d1 = cross(r, sub(q1, p1)), d2 = cross(r, sub(q2, p1));
    double d3 = cross(s, sub(p1, q1)), d4 = cross(s, sub(p2, q1));
    auto sign = [](double v) { return v > kEps ? 1 : (v < -kEps ? -1 : 0); };
    int s1 = sign(d1), s2 = sign(d2), s3 = sign(d3), s4 = sign(d4);
    if (s1 * s2 < 0 && s3 * s4 < 0) return true;
    auto onSegment = [](P2 a, P2 b, P2 p) {
        return std::min(a.x, b.x) - kEps <= p.x && p.x <= std::max(a.x, b.x) + kEps &&
               std::min(a.y, b.y) - kEps <= p.y && p.y <= std::max(a.y, b.y) + kEps;
    };
    if (s1 == 0 && onSegment(p1, p2, q1)) return true;
    if (s2 == 0 && onSegment(p1, p2, q2)) return true;
    if (s3 == 0 && onSegment(q1, q2, p1)) return true;
    if (s4 == 0 && onSegment(q1, q2, p2)) return true;
    return false;
}

bool arcMeetsSegment(const ArcPiece& a, P2 q1, P2 q2) {
    P2 d = sub(q2, q1), f = sub(q1, a.c);
    double A = dot(d, d), B = 2 * dot(f, d), C = dot(f, f) - a.r * a.r;
    if (A < kEps * kEps) return std::fabs(length(f) - a.r) < kEps && angleOnArc(a, std::atan2(f.y, f.x));
    double disc = B * B - 4 * A * C;
    if (disc < -kEps) return false;
    disc = std::sqrt(std::max(0.0, disc));
    for (double t : {(-B - disc) / (2 * A), (-B + disc) / (2 * A)}) {
        if (t < -kEps || t > 1 + kEps) continue;
        P2 p{q1.x + t * d.x - a.c.x, q1.y + t * d.y - a.c.y};
        if (angleOnArc(a, std::atan2(p.y, p.x))) return true;
    }
    return false;
}

bool pointInPolygon(P2 p, const std::vector<P2>& poly) {
    bool in = false;
    for (size_t i = 0, j = poly.size() - 1; i < poly.size(); j = i++) {
        const P2& a = poly[i];
        const P2& b = poly[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x) in = !in;
    }
    return in;
}

double distanceToSegment(P2 p, P2 a, P2 b) {
    P2 ab = sub(b, a);
    double len2 = dot(ab, ab);
    double t = len2 > 0 ? std::clamp(dot(sub(p, a), ab) / len2, 0.0, 1.0) : 0.0;
    return length(sub(p, {a.x + t * ab.x, a.y + t * ab.y}));
}

// Calls test for each edge of a closed polygon or an open fence.
template <class Test>
bool anyEdge(const std::vector<P2>& pts, bool closed, Test test) {
    size_t n = pts.size();
    size_t edges = closed ? n : (n ? n - 1 : 0);
    for (size_t i = 0; i < edges; ++i)
        if (test(pts[i], pts[(i + 1) % n])) return true;
    return false;
}

bool shapeMeetsEdges(const Shape& s, const std::vector<P2>& pts, bool closed) {
    for (const auto& seg : s.segments)
        if (anyEdge(pts, closed, [&](P2 a, P2 b) { return segmentsMeet(seg.a, seg.b, a, b); })) return true;
    for (const auto& arc : s.arcs)
        if (anyEdge(pts, closed, [&](P2 a, P2 b) { return arcMeetsSegment(arc, a, b); })) return true;
    return false;
}

}  // namespace

void Box::add(P2 p) {
    minX = std::min(minX, p.x);
    minY = std::min(minY, p.y);
    maxX = std::max(maxX, p.x);
    maxY = std::max(maxY, p.y);
}

void Box::add(const Box& b) {
    if (!b.valid()) return;
    add(P2{b.minX, b.minY});
    add(P2{b.maxX, b.maxY});
}

double normalizeAngle(double a) {
    a = std::fmod(a, kTwoPi);
    if (a < 0) a += kTwoPi;
    if (a >= kTwoPi) a -= kTwoPi;
    return a;
}

bool angleOnArc(const ArcPiece& a, double angle) {
    if (a.end - a.start >= kTwoPi - 1e-12) return true;
    double t = normalizeAngle(angle - a.start);
    return t <= (a.end - a.start) + 1e-9 || t >= kTwoPi - 1e-9;
}

ArcPiece bulgeArc(P2 a, P2 b, double bulge) {
    P2 chord = sub(b, a);
    double d = length(chord);
    P2 mid{(a.x + b.x) / 2, (a.y + b.y) / 2};
    double k = (1 - bulge * bulge) / (4 * bulge);
    ArcPiece arc;
    arc.c = {mid.x - chord.y * k, mid.y + chord.x * k};
    arc.r = d * (1 + bulge * bulge) / (4 * std::fabs(bulge));
    double sa = std::atan2(a.y - arc.c.y, a.x - arc.c.x);
    double sb = std::atan2(b.y - arc.c.y, b.x - arc.c.x);
    if (bulge > 0) {
        arc.start = normalizeAngle(sa);
        arc.end = arc.start + normalizeAngle(sb - sa);
    } else {
        arc.start = normalizeAngle(sb);
        arc.end = arc.start + normalizeAngle(sa - sb);
    }
    return arc;
}

Shape shapeOf(const Database& db, uint32_t index) {
    const Record& r = db.record(index);
    const std::string& type = db.typeName(r);
    GroupList data;
    decodeGroups(db, r.groups, data, nullptr);
    Ocs ocs = ocsOf(data);
    Shape s;
    if (type == "LINE") {
        s.segments.push_back({at(findCode(data, 10)), at(findCode(data, 11))});
    } else if (type == "POINT") {
        s.points.push_back(at(findCode(data, 10)));
    } else if (type == "CIRCLE") {
        s.arcs.push_back(ocs.map(ArcPiece{at(findCode(data, 10)), real(data, 40), 0.0, kTwoPi}));
    } else if (type == "ARC") {
        s.arcs.push_back(ocs.map(arcFrom(at(findCode(data, 10)), real(data, 40), real(data, 50), real(data, 51))));
    } else if (type == "TEXT" || type == "MTEXT" || type == "ATTDEF" || type == "INSERT" || type == "SHAPE") {
        P2 p = at(findCode(data, 10));
        s.points.push_back(type == "MTEXT" ? p : ocs.map(p));
    } else if (type == "LWPOLYLINE") {
        const Group* flags = findCode(data, 70);
        addPath(s, lwVertices(data), flags && (flags->integer & 1), ocs);
    } else if (type == "POLYLINE") {
        const Group* flags = findCode(data, 70);
        long long f = flags ? flags->integer : 0;
        Ocs polylineOcs = (f & (8 | 16 | 64)) ? Ocs{} : ocs;
        addPath(s, polylineVertices(db, index), f & 1, polylineOcs);
    } else if (type == "SOLID" || type == "TRACE" || type == "3DFACE") {
        P2 c0 = at(findCode(data, 10)), c1 = at(findCode(data, 11)), c2 = at(findCode(data, 12));
        P2 c3 = findCode(data, 13) ? at(findCode(data, 13)) : c2;
        Ocs o = type == "3DFACE" ? Ocs{} : ocs;
        // SOLID and TRACE corners go 1, 2, 4, 3 around; 3DFACE corners in order.
        std::vector<Vertex> v = type == "3DFACE" ? std::vector<Vertex>{{c0}, {c1}, {c2}, {c3}}
                                                 : std::vector<Vertex>{{c0}, {c1}, {c3}, {c2}};
        addPath(s, v, true, o);
    } else if (type == "ELLIPSE") {
        addEllipse(s, data);
    }
    return s;
}

bool insidePolygon(const Shape& s, const std::vector<P2>& polygon) {
    if (s.empty() || polygon.size() < 3) return false;
    for (P2 p : s.points)
        if (!pointInPolygon(p, polygon)) return false;
    for (const auto& seg : s.segments)
        if (!pointInPolygon(seg.a, polygon) || !pointInPolygon(seg.b, polygon)) return false;
    for (const auto& arc : s.arcs)
        if (!pointInPolygon(onArc(arc, arc.start), polygon) || !pointInPolygon(onArc(arc, arc.end), polygon))
            return false;
    return !shapeMeetsEdges(s, polygon, true);
}

bool crossesPolygon(const Shape& s, const std::vector<P2>& polygon) {
    if (s.empty() || polygon.size() < 3) return false;
    for (P2 p : s.points)
        if (pointInPolygon(p, polygon)) return true;
    for (const auto& seg : s.segments)
        if (pointInPolygon(seg.a, polygon) || pointInPolygon(seg.b, polygon)) return true;
    for (const auto& arc : s.arcs)
        if (pointInPolygon(onArc(arc, arc.start), polygon)) return true;
    return shapeMeetsEdges(s, polygon, true);
}

bool crossesFence(const Shape& s, const std::vector<P2>& fence) {
    if (s.empty() || fence.size() < 2) return false;
    for (P2 p : s.points)
        if (anyEdge(fence, false, [&](P2 a, P2 b) { return distanceToSegment(p, a, b) < 1e-9; })) return true;
    return shapeMeetsEdges(s, fence, false);
}

double distanceTo(const Shape& s, P2 p) {
    double best = 1e300;
    for (P2 q : s.points) best = std::min(best, length(sub(p, q)));
    for (const auto& seg : s.segments) best = std::min(best, distanceToSegment(p, seg.a, seg.b));
    for (const auto& arc : s.arcs) {
        P2 v = sub(p, arc.c);
        if (angleOnArc(arc, std::atan2(v.y, v.x))) best = std::min(best, std::fabs(length(v) - arc.r));
        best = std::min(best, length(sub(p, onArc(arc, arc.start))));
        best = std::min(best, length(sub(p, onArc(arc, arc.end))));
    }
    return best;
}

Box extentsOf(const Shape& s) {
    Box b;
    for (P2 p : s.points) b.add(p);
    for (const auto& seg : s.segments) {
        b.add(seg.a);
        b.add(seg.b);
    }
    for (const auto& arc : s.arcs) {
        b.add(onArc(arc, arc.start));
        b.add(onArc(arc, arc.end));
        for (int q = 0; q < 4; ++q)
            if (angleOnArc(arc, q * kPi / 2)) b.add(onArc(arc, q * kPi / 2));
    }
    return b;
}

}  // namespace host::db
