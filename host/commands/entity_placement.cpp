#include "host/commands/entity_placement.h"

#include <cmath>

#include "adscodes.h"
#include "host/commands/block_definition.h"

namespace host::cmd {
namespace {

bool onPlan(const resbuf* list) {
    const resbuf* z = findGroup(list, 210);
    return !z || (std::fabs(z->resval.rpoint[0]) < 1e-12 && std::fabs(z->resval.rpoint[1]) < 1e-12 &&
                  z->resval.rpoint[2] > 0);
}

void placePoint(const Placement& p, double point[3]) {
    double out[3];
    place(p, point, out);
    for (int i = 0; i < 3; ++i) point[i] = out[i];
}

double placeZ(const Placement& p, double z) { return p.at[2] + (z - p.base[2]) * p.scale[2]; }

enum class Kind { Points, Circle, Text, Insert, LightPolyline, Polyline, Vertex, MText, End };

bool kindOf(const std::wstring& type, Kind& kind) {
    if (type == L"LINE" || type == L"POINT" || type == L"SOLID" || type == L"TRACE" || type == L"3DFACE")
        kind = Kind::Points;
    else if (type == L"CIRCLE" || type == L"ARC") kind = Kind::Circle;
    else if (type == L"TEXT" || type == L"ATTDEF" || type == L"ATTRIB") kind = Kind::Text;
    else if (type == L"INSERT") kind = Kind::Insert;
    else if (type == L"LWPOLYLINE") kind = Kind::LightPolyline;
    else if (type == L"POLYLINE") kind = Kind::Polyline;
    else if (type == L"VERTEX") kind = Kind::Vertex;
    else if (type == L"MTEXT") kind = Kind::MText;
    else if (type == L"SEQEND") kind = Kind::End;
    else return false;
    return true;
}

void placeGroup(resbuf* rb, Kind kind, const Placement& p) {
    int c = rb->restype;
    double* pt = rb->resval.rpoint;
    double& v = rb->resval.rreal;
    double sx = std::fabs(p.scale[0]), sy = std::fabs(p.scale[1]);
    switch (kind) {
    case Kind::Points:
    case Kind::Vertex:
        if (isAnyOf(c, {10, 11, 12, 13})) placePoint(p, pt);
        else if (kind == Kind::Vertex && isAnyOf(c, {40, 41})) v *= sx;
        break;
    case Kind::Circle:
        if (c == 10) placePoint(p, pt);
        else if (c == 40) v *= sx;
        else if (c == 50 || c == 51) v = placeAngle(p, v);
        break;
    case Kind::Text:
        if (c == 10 || c == 11) placePoint(p, pt);
        else if (c == 40) v *= sy;
        else if (c == 41 && sy > 0) v *= sx / sy;
        else if (c == 50) v = placeAngle(p, v);
        break;
    case Kind::Insert:
        if (c == 10) placePoint(p, pt);
        else if (isAnyOf(c, {41, 42, 43})) v *= p.scale[c - 41];
        else if (c == 50) v += p.rotation;
        break;
    case Kind::LightPolyline:
        if (c == 10) {
            double q[3] = {pt[0], pt[1], 0.0};
            placePoint(p, q);
            pt[0] = q[0];
            pt[1] = q[1];
        } else if (c == 38) v = placeZ(p, v);
        else if (isAnyOf(c, {40, 41, 43})) v *= sx;
        break;
    case Kind::Polyline:
        if (c == 10) pt[2] = placeZ(p, pt[2]);
        else if (isAnyOf(c, {40, 41})) v *= sx;
        break;
    case Kind::MText:
        if (c == 10) placePoint(p, pt);
        else if (c == 40 || c == 41) v *= sy;
        else if (c == 50) v = placeAngle(p, v);
        else if (c == 11) {
            double a = placeAngle(p, std::atan2(pt[1], pt[0]));
            pt[0] = std::cos(a);
            pt[1] = std::sin(a);
        }
        break;
    case Kind::End: break;
    }
}

// Adds a real group the entity lacks, with its default value, so that placing can change it.
void ensureReal(resbuf* list, int code, double value) {
    if (findGroup(list, code)) return;
    resbuf* last = list;
    while (last->rbnext && last->rbnext->restype != -3) last = last->rbnext;
    if (resbuf* g = newRb(code)) {
        g->resval.rreal = value;
        g->rbnext = last->rbnext;
        last->rbnext = g;
    }
}

// Sizes and angles that stay at their defaults unless the entity gives them.
void ensureDefaults(resbuf* list, Kind kind) {
    if (kind == Kind::Text || (kind == Kind::MText && !findGroup(list, 11))) ensureReal(list, 50, 0.0);
    if (kind != Kind::Insert) return;
    for (int code : {41, 42, 43}) ensureReal(list, code, 1.0);
    ensureReal(list, 50, 0.0);
}

}  // namespace

double placeAngle(const Placement& p, double angle) {
    return std::atan2(p.scale[1] * std::sin(angle), p.scale[0] * std::cos(angle)) + p.rotation;
}

bool placeEntity(resbuf* list, const Placement& p) {
    Kind kind;
    if (!kindOf(typeOf(list), kind) || !onPlan(list)) return false;
    ensureDefaults(list, kind);
    for (resbuf* rb = list; rb && rb->restype != -3; rb = rb->rbnext) placeGroup(rb, kind, p);
    // A light-weight polyline without an elevation lies at 0, which may be placed off it.
    if (kind == Kind::LightPolyline && !findGroup(list, 38) && placeZ(p, 0.0) != 0.0)
        if (resbuf* elevation = newRb(38)) {
            elevation->resval.rreal = placeZ(p, 0.0);
            elevation->rbnext = list->rbnext;
            list->rbnext = elevation;
        }
    return true;
}

}  // namespace host::cmd
