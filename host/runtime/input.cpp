// Interactive input answered from queues: an empty queue answers as a cancelled pick.
#include "host/runtime/input.h"

#include <array>
#include <cstring>
#include <deque>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/dcl/dcl.h"

namespace host {
namespace {

struct EntityPick {
    ads_name ent;
    ads_point pt;
};

std::deque<EntityPick>& entityPicks() {
    static std::deque<EntityPick> q;
    return q;
}

std::deque<std::array<double, 3>>& pointPicks() {
    static std::deque<std::array<double, 3>> q;
    return q;
}

}  // namespace

void queueEntityPick(const ads_name ent, const ads_point pt) {
    EntityPick p;
    acdbNameSet(ent, p.ent);
    acdbPointSet(pt, p.pt);
    entityPicks().push_back(p);
}

void queuePointPick(const ads_point pt) { pointPicks().push_back({pt[0], pt[1], pt[2]}); }

void clearPicks() {
    entityPicks().clear();
    pointPicks().clear();
}

bool takeEntityPick(ads_name ent, ads_point pt) {
    auto& q = entityPicks();
    if (q.empty()) return false;
    acdbNameSet(q.front().ent, ent);
    acdbPointSet(q.front().pt, pt);
    q.pop_front();
    return true;
}

}  // namespace host

extern "C" int acedInitGet(int, const ACHAR*) { return RTNORM; }

extern "C" int acedEntSel(const ACHAR* str, ads_name entres, ads_point ptres) {
    if (host::dcl::rejectWhileDialogOpen(L"acedEntSel")) return RTREJ;
    acutPrintf(L"%ls", str ? str : L"\nSelect object: ");
    if (!host::takeEntityPick(entres, ptres)) {
        acutPrintf(L"*Cancel*\n");
        return RTCAN;
    }
    return RTNORM;
}

extern "C" int acedGetPoint(const ads_point, const ACHAR* prompt, ads_point result) {
    if (host::dcl::rejectWhileDialogOpen(L"acedGetPoint")) return RTREJ;
    if (prompt) acutPrintf(L"%ls", prompt);
    auto& q = host::pointPicks();
    if (q.empty()) {
        acutPrintf(L"*Cancel*\n");
        return RTCAN;
    }
    auto p = q.front();
    q.pop_front();
    result[0] = p[0];
    result[1] = p[1];
    result[2] = p[2];
    return RTNORM;
}
