#include "host/commands/polyline_make.h"

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/command_support.h"
#include "host/db/database.h"

namespace host::cmd {
namespace {

// The width of every segment when they all have the same, or -1.
double constantWidth(const Path& path) {
    double w = path.vertices.front().startWidth;
    size_t n = path.segments();
    for (size_t i = 0; i < n; ++i) {
        const PathVertex& v = path.vertices[i];
        if (v.startWidth != w || v.endWidth != w) return -1;
    }
    return w;
}

void append(resbuf*& tail, resbuf* more) {
    tail->rbnext = more;
    while (tail->rbnext) tail = tail->rbnext;
}

int makeLight(const Path& path, double width) {
    const double elevation = path.vertices.front().p[2];
    RbPtr list(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, static_cast<int>(path.vertices.size()), 70,
                             path.closed ? 1 : 0, 0));
    resbuf* tail = list->rbnext->rbnext;
    if (width >= 0) append(tail, acutBuildList(43, width, 0));
    if (elevation != 0.0) append(tail, acutBuildList(38, elevation, 0));
    for (const auto& v : path.vertices) {
        double p[3] = {v.p[0], v.p[1], 0.0};
        append(tail, width >= 0 ? acutBuildList(10, p, 42, v.bulge, 0)
                                : acutBuildList(10, p, 40, v.startWidth, 41, v.endWidth, 42, v.bulge, 0));
    }
    return makeWithCurrentProperties(list.release());
}

int makeOldStyle(const Path& path, double width) {
    double origin[3] = {0, 0, path.vertices.front().p[2]};
    double w = width >= 0 ? width : 0.0;
    if (int s = makeWithCurrentProperties(
            acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 10, origin, 70, path.closed ? 1 : 0, 40, w, 41, w, 0));
        s != RTNORM)
        return s;
    for (const auto& v : path.vertices) {
        RbPtr vertex(acutBuildList(RTDXF0, L"VERTEX", 10, v.p, 40, v.startWidth, 41, v.endWidth, 42, v.bulge, 70, 0,
                                   0));
        if (int s = acdbEntMake(vertex.get()); s != RTNORM) return s;
    }
    RbPtr end(acutBuildList(RTDXF0, L"SEQEND", 0));
    return acdbEntMake(end.get());
}

}  // namespace

int makePolyline(const Path& path) {
    if (path.vertices.size() < 2) return RTERROR;
    double width = constantWidth(path);
    return database().isR12() ? makeOldStyle(path, width) : makeLight(path, width);
}

}  // namespace host::cmd
