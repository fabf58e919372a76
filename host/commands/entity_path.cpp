#include "host/commands/entity_path.h"

#include <cmath>

#include "acdbads.h"
#include "adscodes.h"

namespace host::cmd {
namespace {

constexpr double kTwoPi = 6.283185307179586;

double real(const resbuf* list, int code, double fallback = 0.0) {
    const resbuf* g = findGroup(list, code);
    return g ? g->resval.rreal : fallback;
}

int integer(const resbuf* list, int code) {
    const resbuf* g = findGroup(list, code);
    return g ? g->resval.rint : 0;
}

PathVertex vertexAt(const double p[3], double bulge = 0.0, double w0 = 0.0, double w1 = 0.0) {
    PathVertex v;
    for (int i = 0; i < 3; ++i) v.p[i] = p[i];
    v.bulge = bulge;
    v.startWidth = w0;
    v.endWidth = w1;
    return v;
}

PathVertex onCircle(const double c[3], double r, double angle, double bulge) {
    double p[3] = {c[0] + r * std::cos(angle), c[1] + r * std::sin(angle), c[2]};
    return vertexAt(p, bulge);
}

}  // namespace

std::vector<Name> polylineVertices(const Name& head) {
    std::vector<Name> out;
    ads_name at = {head[0], head[1]}, next;
    while (acdbEntNext(at, next) == RTNORM) {
        RbPtr v = entityList({next[0], next[1]});
        const resbuf* type = findGroup(v.get(), 0);
        if (!type || std::wstring(type->resval.rstring) != L"VERTEX") break;
        out.push_back({next[0], next[1]});
        acdbNameSet(next, at);
    }
    return out;
}

bool pathOf(const Name& name, const std::wstring& type, const resbuf* l, Path& path) {
    if (type == L"LINE") {
        path.vertices = {vertexAt(findGroup(l, 10)->resval.rpoint), vertexAt(findGroup(l, 11)->resval.rpoint)};
        return true;
    }
    if (type == L"ARC" || type == L"CIRCLE") {
        const double* c = findGroup(l, 10)->resval.rpoint;
        double r = real(l, 40);
        if (type == L"CIRCLE") {
            path.vertices = {onCircle(c, r, 0.0, 1.0), onCircle(c, r, kTwoPi / 2, 1.0)};
            path.closed = true;
            return true;
        }
        double a0 = real(l, 50), a1 = real(l, 51);
        double sweep = std::fmod(a1 - a0, kTwoPi);
        if (sweep <= 0) sweep += kTwoPi;
        path.vertices = {onCircle(c, r, a0, std::tan(sweep / 4)), onCircle(c, r, a0 + sweep, 0.0)};
        return true;
    }
    if (type == L"LWPOLYLINE") {
        double width = real(l, 43), elevation = real(l, 38);
        for (const resbuf* rb = l; rb && rb->restype != -3; rb = rb->rbnext) {
            auto& v = path.vertices;
            if (rb->restype == 10) {
                double p[3] = {rb->resval.rpoint[0], rb->resval.rpoint[1], elevation};
                v.push_back(vertexAt(p, 0.0, width, width));
            } else if (!v.empty() && rb->restype == 40) v.back().startWidth = rb->resval.rreal;
            else if (!v.empty() && rb->restype == 41) v.back().endWidth = rb->resval.rreal;
            else if (!v.empty() && rb->restype == 42) v.back().bulge = rb->resval.rreal;
        }
        path.closed = integer(l, 70) & 1;
        return path.vertices.size() >= 2;
    }
    if (type == L"POLYLINE") {
        int flags = integer(l, 70);
        if (flags & (16 | 64)) return false;  // meshes
        double w0 = real(l, 40), w1 = real(l, 41);
        double elevation = findGroup(l, 10) ? findGroup(l, 10)->resval.rpoint[2] : 0.0;
        for (const auto& n : polylineVertices(name)) {
            RbPtr v = entityList(n);
            double p[3];
            for (int i = 0; i < 3; ++i) p[i] = findGroup(v.get(), 10)->resval.rpoint[i];
            if (!(flags & 8)) p[2] = elevation;
            path.vertices.push_back(vertexAt(p, real(v.get(), 42), real(v.get(), 40, w0), real(v.get(), 41, w1)));
        }
        path.closed = flags & 1;
        return path.vertices.size() >= 2;
    }
    return false;
}

}  // namespace host::cmd
