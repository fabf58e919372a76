// BreakLine of the suite's helper module: cuts a polyline between two points on it with the
// host's BREAK (the object by name, both points through First) and hands back the ids of the
// pieces BREAK made, which carry the original's layer, extended data and properties.
#include <array>
#include <string>
#include <vector>

#include "MvxArxFun17.h"
#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/boundary.h"

namespace {

// The old-style polylines and light-weight polylines added to the drawing after LAST.
std::vector<std::array<long, 2>> polylinesAfter(const ads_name last) {
    std::vector<std::array<long, 2>> made;
    ads_name at = {last[0], last[1]}, next;
    while (acdbEntNext(at, next) == RTNORM) {
        if (resbuf* list = acdbEntGet(next)) {
            for (resbuf* rb = list; rb; rb = rb->rbnext) {
                if (rb->restype != 0) continue;
                const std::wstring type = rb->resval.rstring;
                if (type == L"POLYLINE" || type == L"LWPOLYLINE") made.push_back({next[0], next[1]});
                break;
            }
            acutRelRb(list);
        }
        acdbNameSet(next, at);
    }
    return made;
}

}  // namespace

int BreakLine(AcDbObjectId id, AcGePoint3d pt1, AcGePoint3d pt2, AcDbObjectId& id1, AcDbObjectId& id2) {
    return host::guarded(__func__, 0, [&]() -> int {
        id1.setNull();
        id2.setNull();
        ads_name pipe, last;
        if (acdbGetAdsName(pipe, id) != Acad::eOk || acdbEntLast(last) != RTNORM) return 0;
        ads_point first = {pt1.x, pt1.y, pt1.z}, second = {pt2.x, pt2.y, pt2.z};
        if (acedCommand(RTSTR, L"BREAK", RTENAME, pipe, RTSTR, L"F", RT3DPOINT, first, RT3DPOINT, second, RTNONE) !=
            RTNORM) {
            acedCommand(RTNONE);
            return 0;
        }
        std::vector<std::array<long, 2>> pieces = polylinesAfter(last);
        // A light-weight polyline keeps its name for the piece at its start.
        if (resbuf* still = acdbEntGet(pipe)) {
            acutRelRb(still);
            pieces.insert(pieces.begin(), {pipe[0], pipe[1]});
        }
        AcDbObjectId* out[2] = {&id1, &id2};
        for (std::size_t i = 0; i < pieces.size() && i < 2; ++i) {
            ads_name n = {pieces[i][0], pieces[i][1]};
            acdbGetObjectId(*out[i], n);
        }
        return 1;
    });
}
