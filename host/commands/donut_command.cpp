// DONUT: inside and outside diameters, then centres until Enter. A donut is a closed
// polyline of two half-circle arcs of constant width: width (OD - ID) / 2 on a centre line of
// radius (OD + ID) / 4, vertices left and right of the centre with bulge 1. Drawings of R12,
// which have no light-weight polylines, get a POLYLINE with two vertices.
#include <cstdio>
#include <utility>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/command_support.h"
#include "host/db/database.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

double variable(const wchar_t* name, double fallback) {
    const SysVarValue* v = vars().find(name);
    return v && v->type == RTREAL ? v->real : fallback;
}

std::wstring format4(double v) {
    wchar_t buf[40];
    std::swprintf(buf, 40, L"%.4f", v);
    return buf;
}

// Reads a non-negative distance; Enter keeps the default.
bool askDiameter(CommandInput& in, const std::wstring& promptText, double& value) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter()) return true;
        double v;
        if (readReal(*t, v) && v >= 0) {
            value = v;
            return true;
        }
        say(L"\nRequires numeric distance or two points.");
    }
    return false;
}

int makeDonut(const double centre[3], double width, double radius) {
    double left[3] = {centre[0] - radius, centre[1], centre[2]};
    double right[3] = {centre[0] + radius, centre[1], centre[2]};
    if (!database().isR12()) {
        resbuf* list = acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 2, 70, 1, 43, width, 10, left, 42, 1.0, 10, right,
                                     42, 1.0, 0);
        if (list && centre[2] != 0.0)  // the elevation of a centre off the plane
            if (resbuf* elevation = acutBuildList(38, centre[2], 0)) {
                elevation->rbnext = list->rbnext;
                list->rbnext = elevation;
            }
        return makeWithCurrentProperties(list);
    }
    double origin[3] = {0, 0, centre[2]};
    if (int s = makeWithCurrentProperties(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 10, origin, 70, 1, 40, width,
                                                        41, width, 0));
        s != RTNORM)
        return s;
    for (const double* v : {left, right}) {
        RbPtr vertex(acutBuildList(RTDXF0, L"VERTEX", 10, v, 40, width, 41, width, 42, 1.0, 70, 0, 0));
        if (int s = acdbEntMake(vertex.get()); s != RTNORM) return s;
    }
    RbPtr end(acutBuildList(RTDXF0, L"SEQEND", 0));
    return acdbEntMake(end.get());
}

int donutCommand(CommandInput& in) {
    double inside = variable(L"DONUTID", 0.5);
    double outside = variable(L"DONUTOD", 1.0);
    if (!askDiameter(in, L"\nSpecify inside diameter of donut <" + format4(inside) + L">: ", inside)) return RTNORM;
    if (!askDiameter(in, L"\nSpecify outside diameter of donut <" + format4(outside) + L">: ", outside)) return RTNORM;
    if (outside < inside) std::swap(inside, outside);
    vars().setReal(L"DONUTID", inside);
    vars().setReal(L"DONUTOD", outside);
    double width = (outside - inside) / 2;
    double radius = (outside + inside) / 4;
    while (const CommandToken* t = ask(in, L"\nSpecify center of donut or <exit>: ")) {
        if (t->isEnter()) break;
        double centre[3];
        if (!readPoint(*t, centre)) {
            say(L"\nInvalid point.");
            continue;
        }
        if (int s = makeDonut(centre, width, radius); s != RTNORM) return s;
    }
    return RTNORM;
}

CommandRegistration donut(L"DONUT", donutCommand);

}  // namespace
}  // namespace host::cmd
