#include "host/commands/entity_transform.h"

#include <cmath>
#include <cwchar>
#include <string>

#include "adscodes.h"
#include "host/db/resbuf.h"

namespace host::cmd {
namespace {

constexpr double kPi = 3.14159265358979323846;

void cross(const double a[3], const double b[3], double out[3]) {
    out[0] = a[1] * b[2] - a[2] * b[1];
    out[1] = a[2] * b[0] - a[0] * b[2];
    out[2] = a[0] * b[1] - a[1] * b[0];
}

double dot(const double a[3], const double b[3]) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

void normalise(double v[3]) {
    double n = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (n > 0)
        for (int i = 0; i < 3; ++i) v[i] /= n;
}

// The axes of an entity's own coordinates for its extrusion (the arbitrary-axis rule).
struct Ocs {
    double x[3], y[3], z[3];
    explicit Ocs(const double normal[3]) {
        for (int i = 0; i < 3; ++i) z[i] = normal[i];
        normalise(z);
        const double wy[3] = {0, 1, 0}, wz[3] = {0, 0, 1};
        if (std::fabs(z[0]) < 1.0 / 64 && std::fabs(z[1]) < 1.0 / 64) cross(wy, z, x);
        else cross(wz, z, x);
        normalise(x);
        cross(z, x, y);
    }
    void toWorld(const double p[3], double out[3]) const {
        for (int i = 0; i < 3; ++i) out[i] = p[0] * x[i] + p[1] * y[i] + p[2] * z[i];
    }
    void fromWorld(const double w[3], double out[3]) const {
        double p[3] = {w[0], w[1], w[2]};
        out[0] = p[0] * x[0] + p[1] * x[1] + p[2] * x[2];
        out[1] = p[0] * y[0] + p[1] * y[1] + p[2] * y[2];
        out[2] = p[0] * z[0] + p[1] * z[1] + p[2] * z[2];
    }
};

resbuf* group(resbuf* list, int code, int occurrence = 0) {
    for (; list; list = list->rbnext) {
        if (list->restype == -3) return nullptr;
        if (list->restype == code && occurrence-- == 0) return list;
    }
    return nullptr;
}

double realOf(resbuf* list, int code, double fallback = 0.0) {
    const resbuf* g = group(list, code);
    return g ? g->resval.rreal : fallback;
}

int intOf(resbuf* list, int code) {
    const resbuf* g = group(list, code);
    return g ? g->resval.rint : 0;
}

std::wstring typeOf(resbuf* list) {
    const resbuf* g = group(list, 0);
    return g && g->resval.rstring ? g->resval.rstring : L"";
}

// Puts a group right after the type group (group 0), where acdbEntMod takes it.
resbuf* addGroup(resbuf* list, int code) {
    resbuf* type = group(list, 0);
    if (!type) type = list;
    resbuf* rb = newRb(code);
    rb->rbnext = type->rbnext;
    type->rbnext = rb;
    return rb;
}

double determinant(const double m[3][3]) {
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

double angleOf(const double v[2]) { return std::atan2(v[1], v[0]); }

double normalAngle(double a) {
    a = std::fmod(a, 2 * kPi);
    if (a < 0) a += 2 * kPi;
    if (a > 2 * kPi - 1e-12) a = 0;
    return a;
}

// The map seen from one entity: its extrusion before and after, and how it stretches the
// entity's plane (its own X and Y axes) and what stands across it (thickness).
class Mapper {
public:
    Mapper(const Transform& t, const double normal[3]) : t_(t), before_(normal), after_(mappedNormal(t, before_)) {
        t.vector(before_.x, x_);
        t.vector(before_.y, y_);
        double z[3], area[3];
        t.vector(before_.z, z);
        cross(x_, y_, area);
        plane_ = std::sqrt(std::sqrt(dot(area, area)));
        across_ = std::fabs(dot(z, after_.z));
    }

    const double* normal() const { return after_.z; }
    bool flips() const { return t_.reflects(); }
    // How lengths in the entity's plane change, when they change alike in every direction.
    double factor() const { return plane_; }
    double thickness() const { return across_; }
    // The map keeps the shapes in the entity's plane: circles stay circles.
    bool keepsShapes() const {
        const double xx = dot(x_, x_), yy = dot(y_, y_), tolerance = 1e-9 * std::fmax(xx, yy);
        return xx > 0 && std::fabs(xx - yy) <= tolerance && std::fabs(dot(x_, y_)) <= tolerance;
    }

    void world(double p[3]) const {
        double q[3];
        t_.point(p, q);
        for (int i = 0; i < 3; ++i) p[i] = q[i];
    }
    void worldVector(double v[3]) const {
        double q[3];
        t_.vector(v, q);
        for (int i = 0; i < 3; ++i) v[i] = q[i];
    }
    void own(double p[3]) const {
        double w[3];
        before_.toWorld(p, w);
        world(w);
        after_.fromWorld(w, p);
    }
    // The unit vector at angle A in the entity's own XY plane, through the map, in the
    // mapped entity's own coordinates (its Z is 0).
    void ownVector(double a, double out[3]) const {
        double v[3] = {std::cos(a), std::sin(a), 0}, w[3];
        before_.toWorld(v, w);
        worldVector(w);
        after_.fromWorld(w, out);
    }
    // A direction in the entity's own XY plane, as an angle, through the map.
    double ownAngle(double a) const {
        double v[3];
        ownVector(a, v);
        return normalAngle(angleOf(v));
    }

private:
    // The mapped plane's normal, on the side the old one maps to: a reflection in a vertical
    // plane keeps an extrusion of +Z and turns the entity over within its plane instead.
    static Ocs mappedNormal(const Transform& t, const Ocs& before) {
        double x[3], y[3], n[3];
        t.vector(before.x, x);
        t.vector(before.y, y);
        cross(x, y, n);
        if (t.reflects())
            for (double& c : n) c = -c;
        return Ocs(n);
    }
    const Transform& t_;
    Ocs before_, after_;
    double x_[3], y_[3];  // the entity's own axes, mapped
    double plane_ = 1.0, across_ = 1.0;
};

void mapWorld(const Mapper& m, resbuf* list, int code) {
    for (int i = 0; resbuf* g = group(list, code, i); ++i) m.world(g->resval.rpoint);
}

void mapOwn(const Mapper& m, resbuf* list, int code) {
    for (int i = 0; resbuf* g = group(list, code, i); ++i) m.own(g->resval.rpoint);
}

void mapVector(const Mapper& m, resbuf* list, int code, bool unit) {
    for (int i = 0; resbuf* g = group(list, code, i); ++i) {
        m.worldVector(g->resval.rpoint);
        if (unit) normalise(g->resval.rpoint);
    }
}

void scaleLengths(const Mapper& m, resbuf* list, std::initializer_list<int> codes) {
    for (int code : codes)
        for (int i = 0; resbuf* g = group(list, code, i); ++i) g->resval.rreal *= m.factor();
}

void scaleThickness(const Mapper& m, resbuf* list) {
    if (resbuf* g = group(list, 39)) g->resval.rreal *= m.thickness();
}

void mapAngle(const Mapper& m, resbuf* list, int code) {
    if (resbuf* g = group(list, code)) g->resval.rreal = m.ownAngle(g->resval.rreal);
}

void negateBulges(const Mapper& m, resbuf* list) {
    if (!m.flips()) return;
    for (int i = 0; resbuf* g = group(list, 42, i); ++i) g->resval.rreal = -g->resval.rreal;
}

// The Z of the entity's plane after the map, from its elevation before.
double mappedElevation(const Mapper& m, double elevation) {
    double p[3] = {0, 0, elevation};
    m.own(p);
    return p[2];
}

void setNormal(const Mapper& m, resbuf* list) {
    resbuf* g = group(list, 210);
    const double* n = m.normal();
    bool plusZ = std::fabs(n[0]) < 1e-12 && std::fabs(n[1]) < 1e-12 && n[2] > 0;
    if (!g && plusZ) return;
    if (!g) g = addGroup(list, 210);
    for (int i = 0; i < 3; ++i) g->resval.rpoint[i] = plusZ ? (i == 2 ? 1.0 : 0.0) : n[i];
}

void normalOf(resbuf* list, double n[3]) {
    const resbuf* g = group(list, 210);
    n[0] = g ? g->resval.rpoint[0] : 0;
    n[1] = g ? g->resval.rpoint[1] : 0;
    n[2] = g ? g->resval.rpoint[2] : 1;
}

void arc(const Mapper& m, resbuf* list) {
    mapOwn(m, list, 10);
    scaleLengths(m, list, {40});
    scaleThickness(m, list);
    resbuf* start = group(list, 50);
    resbuf* end = group(list, 51);
    if (!start || !end) return;
    double a0 = m.ownAngle(start->resval.rreal), a1 = m.ownAngle(end->resval.rreal);
    // A reflection turns counter-clockwise into clockwise: the ends change places.
    start->resval.rreal = m.flips() ? a1 : a0;
    end->resval.rreal = m.flips() ? a0 : a1;
}

void ellipse(const Mapper& m, resbuf* list) {
    mapWorld(m, list, 10);
    mapVector(m, list, 11, false);
    resbuf* start = group(list, 41);
    resbuf* end = group(list, 42);
    if (!m.flips() || !start || !end) return;
    // The minor axis turns round with the normal: the point at parameter u is now at -u.
    double u0 = start->resval.rreal, u1 = end->resval.rreal;
    start->resval.rreal = normalAngle(-u1);
    end->resval.rreal = normalAngle(-u0);
    if (end->resval.rreal <= start->resval.rreal + 1e-12 && std::fabs(u1 - u0 - 2 * kPi) < 1e-9)
        end->resval.rreal = start->resval.rreal + 2 * kPi;
}

void lightPolyline(const Mapper& m, resbuf* list) {
    double elevation = realOf(list, 38);
    for (int i = 0; resbuf* g = group(list, 10, i); ++i) {
        g->resval.rpoint[2] = elevation;
        m.own(g->resval.rpoint);
        g->resval.rpoint[2] = 0;
    }
    double z = mappedElevation(m, elevation);
    if (resbuf* g = group(list, 38)) g->resval.rreal = z;
    else if (std::fabs(z) > 1e-12) addGroup(list, 38)->resval.rreal = z;
    scaleLengths(m, list, {43, 40, 41});
    scaleThickness(m, list);
    negateBulges(m, list);
}

bool isFlat(resbuf* head) { return (intOf(head, 70) & (8 | 16 | 64)) == 0; }

// A POLYLINE and its vertices: a flat one in its own coordinates with its elevation, a 3D
// polyline or a mesh in world coordinates.
void polyline(const Mapper& m, std::vector<resbuf*>& lists) {
    resbuf* head = lists[0];
    bool flat = isFlat(head);
    resbuf* origin = group(head, 10);
    double elevation = origin ? origin->resval.rpoint[2] : 0.0;
    for (size_t i = 1; i < lists.size(); ++i) {
        resbuf* v = lists[i];
        if (typeOf(v) != L"VERTEX") continue;
        resbuf* p = group(v, 10);
        if (p && flat) {
            // Vertices of a flat polyline usually leave Z to the polyline's elevation.
            bool ownZ = p->resval.rpoint[2] != 0;
            p->resval.rpoint[2] = elevation;
            m.own(p->resval.rpoint);
            if (!ownZ) p->resval.rpoint[2] = 0;
        } else if (p) {
            m.world(p->resval.rpoint);
        }
        if (flat) {
            scaleLengths(m, v, {40, 41});
            negateBulges(m, v);
            mapAngle(m, v, 50);
        }
    }
    if (flat && origin) {
        origin->resval.rpoint[0] = origin->resval.rpoint[1] = 0;
        origin->resval.rpoint[2] = mappedElevation(m, elevation);
    }
    scaleLengths(m, head, {40, 41});
    scaleThickness(m, head);
}

double angleBetween(double a, double b) {
    double d = normalAngle(a - b);
    return std::fmin(d, 2 * kPi - d);
}

// Of a direction and its reverse, the one nearer the old one: a mirrored text stays readable.
double readable(double mappedAngle, double oldAngle) {
    double reversed = normalAngle(mappedAngle + kPi);
    double d0 = angleBetween(mappedAngle, oldAngle), d1 = angleBetween(reversed, oldAngle);
    if (std::fabs(d0 - d1) < 1e-9) return std::cos(mappedAngle) >= -1e-9 ? mappedAngle : reversed;
    return d0 < d1 ? mappedAngle : reversed;
}

// A text's height is measured across its baseline and its glyphs' width along it: a map
// that stretches one more than the other changes the width factor.
void textSize(const Mapper& m, resbuf* list, double angle) {
    double along[3], across[3];
    m.ownVector(angle, along);
    m.ownVector(angle + kPi / 2, across);
    const double length = std::hypot(along[0], along[1]);
    const double area = std::fabs(along[0] * across[1] - along[1] * across[0]);
    if (!(length > 0 && area > 0)) return;
    // The height grows as the stretch across the baseline, the glyphs' width as the stretch along it.
    const double heightScale = area / length, widthFactorScale = length / heightScale;
    if (resbuf* g = group(list, 40)) g->resval.rreal *= heightScale;
    if (resbuf* g = group(list, 41)) g->resval.rreal *= widthFactorScale;
    else if (std::fabs(widthFactorScale - 1.0) > 1e-12) addGroup(list, 41)->resval.rreal = widthFactorScale;
    scaleThickness(m, list);
}

// TEXT, ATTRIB and ATTDEF. The alignment point is mapped when the text is justified (group
// 72 and the vertical justification, 73 for TEXT and 74 for the others).
void text(const Mapper& m, resbuf* list, bool mirrorText) {
    bool isText = typeOf(list) == L"TEXT";
    bool justified = intOf(list, 72) != 0 || intOf(list, isText ? 73 : 74) != 0;
    mapOwn(m, list, 10);
    if (justified) mapOwn(m, list, 11);
    resbuf* rotation = group(list, 50);
    double old = rotation ? rotation->resval.rreal : 0.0;
    textSize(m, list, old);
    double mapped = m.ownAngle(old);
    double now = mapped;
    if (m.flips() && mirrorText) {
        // Written backwards along the reversed direction, the glyphs are a mirror image.
        now = normalAngle(mapped + kPi);
        resbuf* flags = group(list, 71);
        if (!flags) (flags = addGroup(list, 71))->resval.rint = 0;
        flags->resval.rint ^= 2;
    } else if (m.flips()) {
        now = readable(mapped, old);
        int h = intOf(list, 72);
        // Aligned and fitted texts run from their first point to the second.
        if (now != mapped && (h == 3 || h == 5)) {
            resbuf* a = group(list, 10);
            resbuf* b = group(list, 11);
            if (a && b)
                for (int i = 0; i < 3; ++i) std::swap(a->resval.rpoint[i], b->resval.rpoint[i]);
        }
    }
    if (rotation) rotation->resval.rreal = now;
    else if (std::fabs(now) > 1e-12) addGroup(list, 50)->resval.rreal = now;
}

// MTEXT cannot be written backwards: its direction stays readable under a reflection.
void mtext(const Mapper& m, resbuf* list) {
    mapWorld(m, list, 10);
    scaleLengths(m, list, {40, 41, 42, 43, 46});
    if (resbuf* r = group(list, 50); r && !group(list, 11)) {
        double mapped = m.ownAngle(r->resval.rreal);
        r->resval.rreal = m.flips() ? readable(mapped, r->resval.rreal) : mapped;
        return;
    }
    // The direction of the text, world X when the list gives none.
    resbuf* given = group(list, 11);
    double d[3] = {1, 0, 0};
    if (given)
        for (int i = 0; i < 3; ++i) d[i] = given->resval.rpoint[i];
    double old = angleOf(d);
    m.worldVector(d);
    normalise(d);
    if (m.flips() && readable(angleOf(d), old) != angleOf(d))
        for (int i = 0; i < 3; ++i) d[i] = -d[i];
    bool alongX = std::fabs(d[0] - 1) < 1e-12 && std::fabs(d[1]) < 1e-12 && std::fabs(d[2]) < 1e-12;
    if (!given && alongX) return;
    if (!given) given = addGroup(list, 11);
    for (int i = 0; i < 3; ++i) given->resval.rpoint[i] = d[i];
}

// A reflected block reference has its X scale negated and is turned half round more.
void insert(const Mapper& m, resbuf* list) {
    mapOwn(m, list, 10);
    scaleLengths(m, list, {41, 42, 44, 45});
    if (resbuf* z = group(list, 43)) z->resval.rreal *= m.thickness();
    double rotation = realOf(list, 50);
    double now = m.ownAngle(rotation);
    if (m.flips()) {
        now = normalAngle(now + kPi);
        resbuf* sx = group(list, 41);
        if (!sx) (sx = addGroup(list, 41))->resval.rreal = m.factor();
        sx->resval.rreal = -sx->resval.rreal;
    }
    if (resbuf* g = group(list, 50)) g->resval.rreal = now;
    else if (std::fabs(now) > 1e-12) addGroup(list, 50)->resval.rreal = now;
}

const wchar_t* const kKnown[] = {L"LINE",  L"POINT",  L"CIRCLE", L"ARC",   L"ELLIPSE", L"LWPOLYLINE",
                                 L"POLYLINE", L"TEXT", L"ATTRIB", L"ATTDEF", L"MTEXT", L"INSERT",
                                 L"SOLID", L"TRACE", L"3DFACE", L"XLINE", L"RAY",   L"SPLINE"};

// What a map that stretches unequally can move: points in the world, and texts.
bool takesAnyStretch(const std::wstring& type) {
    return type == L"LINE" || type == L"POINT" || type == L"3DFACE" || type == L"XLINE" || type == L"RAY" ||
           type == L"TEXT" || type == L"ATTRIB" || type == L"ATTDEF" || type == L"SEQEND";
}

void transformOne(const Mapper& m, resbuf* list, const std::wstring& type, bool mirrorText) {
    if (type == L"LINE") mapWorld(m, list, 10), mapWorld(m, list, 11), scaleThickness(m, list);
    else if (type == L"POINT") mapWorld(m, list, 10), mapAngle(m, list, 50), scaleThickness(m, list);
    else if (type == L"CIRCLE") mapOwn(m, list, 10), scaleLengths(m, list, {40}), scaleThickness(m, list);
    else if (type == L"ARC") arc(m, list);
    else if (type == L"ELLIPSE") ellipse(m, list);
    else if (type == L"LWPOLYLINE") lightPolyline(m, list);
    else if (type == L"TEXT" || type == L"ATTRIB" || type == L"ATTDEF") text(m, list, mirrorText);
    else if (type == L"MTEXT") mtext(m, list);
    else if (type == L"INSERT") insert(m, list);
    else if (type == L"SOLID" || type == L"TRACE") {
        for (int code : {10, 11, 12, 13}) mapOwn(m, list, code);
        scaleThickness(m, list);
    } else if (type == L"3DFACE") {
        for (int code : {10, 11, 12, 13}) mapWorld(m, list, code);
    } else if (type == L"XLINE" || type == L"RAY") {
        mapWorld(m, list, 10);
        mapVector(m, list, 11, true);
    } else if (type == L"SPLINE") {
        mapWorld(m, list, 10), mapWorld(m, list, 11);
        mapVector(m, list, 12, true), mapVector(m, list, 13, true);
    }
    if (type != L"XLINE" && type != L"RAY") setNormal(m, list);
}

}  // namespace

Transform Transform::translation(const double d[3]) {
    Transform t;
    for (int i = 0; i < 3; ++i) t.t[i] = d[i];
    return t;
}

Transform Transform::rotation(const double base[3], double radians) {
    Transform t;
    double c = std::cos(radians), s = std::sin(radians);
    t.m[0][0] = c, t.m[0][1] = -s;
    t.m[1][0] = s, t.m[1][1] = c;
    t.t[0] = base[0] - (c * base[0] - s * base[1]);
    t.t[1] = base[1] - (s * base[0] + c * base[1]);
    return t;
}

Transform Transform::scaling(const double base[3], double factor) {
    Transform t;
    for (int i = 0; i < 3; ++i) {
        t.m[i][i] = factor;
        t.t[i] = base[i] * (1 - factor);
    }
    return t;
}

Transform Transform::placing(const double base[3], const double at[3], const double scale[3], double rotation) {
    Transform t;
    double c = std::cos(rotation), s = std::sin(rotation);
    t.m[0][0] = c * scale[0], t.m[0][1] = -s * scale[1];
    t.m[1][0] = s * scale[0], t.m[1][1] = c * scale[1];
    t.m[2][2] = scale[2];
    double moved[3];
    t.vector(base, moved);
    for (int i = 0; i < 3; ++i) t.t[i] = at[i] - moved[i];
    return t;
}

Transform Transform::mirror(const double a[3], const double b[3]) {
    // Reflection in the line at angle phi through a: the matrix of angle 2 phi.
    double phi = std::atan2(b[1] - a[1], b[0] - a[0]);
    double c = std::cos(2 * phi), s = std::sin(2 * phi);
    Transform t;
    t.m[0][0] = c, t.m[0][1] = s;
    t.m[1][0] = s, t.m[1][1] = -c;
    t.t[0] = a[0] - (c * a[0] + s * a[1]);
    t.t[1] = a[1] - (s * a[0] - c * a[1]);
    return t;
}

void Transform::point(const double p[3], double out[3]) const {
    double q[3];
    vector(p, q);
    for (int i = 0; i < 3; ++i) out[i] = q[i] + t[i];
}

void Transform::vector(const double v[3], double out[3]) const {
    double q[3];
    for (int i = 0; i < 3; ++i) q[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
    for (int i = 0; i < 3; ++i) out[i] = q[i];
}

bool Transform::reflects() const { return determinant(m) < 0; }

bool Transform::similarInPlan() const {
    const double xx = m[0][0] * m[0][0] + m[1][0] * m[1][0], yy = m[0][1] * m[0][1] + m[1][1] * m[1][1];
    const double xy = m[0][0] * m[0][1] + m[1][0] * m[1][1], tolerance = 1e-12 * std::fmax(xx, yy);
    return xx > 0 && std::fabs(xx - yy) <= tolerance && std::fabs(xy) <= tolerance;
}

void worldToOwn(const double world[3], const double extrusion[3], double own[3]) {
    Ocs(extrusion).fromWorld(world, own);
}

bool canTransform(const wchar_t* type) {
    for (const wchar_t* k : kKnown)
        if (std::wcscmp(k, type) == 0) return true;
    return false;
}

bool transformEntity(std::vector<resbuf*>& lists, const Transform& t, bool mirrorText) {
    if (lists.empty() || !lists[0]) return false;
    std::wstring type = typeOf(lists[0]);
    if (!canTransform(type.c_str())) return false;
    double n[3];
    normalOf(lists[0], n);
    Mapper m(t, n);
    if (!m.keepsShapes())
        for (resbuf* list : lists)
            if (!takesAnyStretch(typeOf(list))) return false;
    if (type == L"POLYLINE") {
        polyline(m, lists);
        setNormal(m, lists[0]);
        return true;
    }
    transformOne(m, lists[0], type, mirrorText);
    for (size_t i = 1; i < lists.size(); ++i) {
        std::wstring part = typeOf(lists[i]);
        if (part != L"ATTRIB") continue;
        double pn[3];
        normalOf(lists[i], pn);
        Mapper pm(t, pn);
        transformOne(pm, lists[i], part, mirrorText);
    }
    return true;
}

}  // namespace host::cmd
