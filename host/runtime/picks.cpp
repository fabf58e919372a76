// Picks answered from the session's queues: acedEntSel, acedGetPoint and the interactive mode
// of acedSSGet (the other modes are the drawing database's).
#include <cstring>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/selection.h"
#include "host/db/selection_filter.h"
#include "host/dcl/dcl.h"
#include "host/runtime/input_state.h"
#include "host/session.h"

namespace host {

InputState& inputState() { return sessionPart<InputState>(); }

InputControl takeInputControl() {
    InputState& s = inputState();
    InputControl control = std::move(s.next);
    s.next = {};
    s.lastKeyword.reset();
    return control;
}

void queueEntityPick(const ads_name ent, const ads_point pt) {
    InputState::EntityPick p;
    acdbNameSet(ent, p.ent);
    acdbPointSet(pt, p.pt);
    inputState().entityPicks.push_back(p);
}

void queuePointPick(const ads_point pt) { inputState().pointPicks.push_back({pt[0], pt[1], pt[2]}); }

size_t pendingEntityPicks() { return inputState().entityPicks.size(); }
size_t pendingPointPicks() { return inputState().pointPicks.size(); }

bool takeEntityPick(ads_name ent, ads_point pt) {
    auto& q = inputState().entityPicks;
    if (q.empty()) return false;
    acdbNameSet(q.front().ent, ent);
    acdbPointSet(q.front().pt, pt);
    q.pop_front();
    return true;
}

}  // namespace host

extern "C" int acedEntSel(const ACHAR* str, ads_name entres, ads_point ptres) {
    return host::guarded(__func__, RTERROR, [&] {
        if (host::dcl::rejectWhileDialogOpen(L"acedEntSel")) return RTREJ;
        host::takeInputControl();
        acutPrintf(L"%ls", str ? str : L"\nSelect object: ");
        if (!host::takeEntityPick(entres, ptres)) {
            acutPrintf(L"*Cancel*\n");
            return RTCAN;
        }
        return RTNORM;
    });
}

extern "C" int acedGetPoint(const ads_point, const ACHAR* prompt, ads_point result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (host::dcl::rejectWhileDialogOpen(L"acedGetPoint")) return RTREJ;
        host::takeInputControl();
        if (prompt) acutPrintf(L"%ls", prompt);
        auto& q = host::inputState().pointPicks;
        if (q.empty()) {
            acutPrintf(L"*Cancel*\n");
            return RTCAN;
        }
        auto p = q.front();
        q.pop_front();
        std::memcpy(result, p.data(), sizeof(ads_point));
        return RTNORM;
    });
}

extern "C" int acedSSGet(const ACHAR* str, const void* pt1, const void* pt2, const struct resbuf* filter,
                         ads_name ss) {
    return host::guarded(__func__, RTERROR, [&] {
        using namespace host::db;
        Database* db = currentDb();
        if (!db || !ss) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        SelectionFilter compiled;
        if (short err = compiled.compile(*db, filter)) {
            setErrno(err);
            return RTERROR;
        }
        // The interactive mode takes one queued pick, as a single selection.
        auto pick = [](ads_name picked) {
            if (host::dcl::rejectWhileDialogOpen(L"acedSSGet")) return RTREJ;
            acutPrintf(L"\nSelect objects: ");
            ads_point at;
            if (!host::takeEntityPick(picked, at)) {
                acutPrintf(L"*Cancel*\n");
                return RTCAN;
            }
            return RTNORM;
        };
        std::vector<uint32_t> members;
        int status = selectEntities(*db, str, pt1, pt2, compiled, members, pick);
        if (status != RTNORM) return status;
        if (members.empty()) return RTERROR;
        return storeSelection(*db, members, ss);
    });
}
