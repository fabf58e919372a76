// Selection sets of the host interface. acedSSGet selects from the current drawing by mode:
// "X" everything (with a filter), "A" everything on layers not frozen, "W"/"C" window and
// crossing, "WP"/"CP" polygons, "F" fence, "L" the last entity, "P" the previous set, and a
// pick at a point. The interactive mode is answered by the editor's pick (acedSSGet itself
// lives with the user input of the runtime).
#include <cmath>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/selection.h"
#include "host/db/selection_filter.h"
#include "host/db/selection_sets.h"
#include "host/db/shapes.h"
#include "host/db/sysvars.h"
#include "host/text.h"

using namespace host;
using namespace host::db;

namespace {

// Set names: the database serial negated, so that no entity name is taken for a set.
void setName(const Database& db, long id, ads_name name) {
    name[0] = -db.serial();
    name[1] = id;
}

SelectionSets::Set* findSet(Database*& db, const ads_name name) {
    db = currentDb();
    if (!db || !name || name[0] != -db->serial()) return nullptr;
    return db->selectionSets().find(name[1]);
}

// A main entity of the current drawing that is not deleted.
uint32_t liveEntity(const Database& db, const ads_name ent) {
    if (!ent) return kNone;
    uint32_t index = db.indexOf(ent);
    if (index == kNone) return kNone;
    const Record& r = db.record(index);
    return r.kind == RecordKind::Entity && !r.deleted ? index : kNone;
}

P2 toWorld(const double* pt) {
    resbuf from{}, to{};
    from.restype = to.restype = RTSHORT;
    from.resval.rint = 1;
    to.resval.rint = 0;
    ads_point in = {pt[0], pt[1], pt[2]}, out;
    if (acedTrans(in, &from, &to, 0, out) != RTNORM) return {pt[0], pt[1]};
    return {out[0], out[1]};
}

std::vector<P2> pointList(const void* arg) {
    std::vector<P2> pts;
    for (auto* rb = static_cast<const resbuf*>(arg); rb; rb = rb->rbnext)
        if (rb->restype == RTPOINT || rb->restype == RT3DPOINT) {
            double p[3] = {rb->resval.rpoint[0], rb->resval.rpoint[1], rb->restype == RT3DPOINT ? rb->resval.rpoint[2] : 0.0};
            pts.push_back(toWorld(p));
        }
    return pts;
}

std::vector<P2> window(const void* a, const void* b) {
    auto* p = static_cast<const double*>(a);
    auto* q = static_cast<const double*>(b);
    double c1[3] = {p[0], p[1], 0}, c2[3] = {q[0], p[1], 0}, c3[3] = {q[0], q[1], 0}, c4[3] = {p[0], q[1], 0};
    return {toWorld(c1), toWorld(c2), toWorld(c3), toWorld(c4)};
}

bool inModelSpace(const Database& db, uint32_t index) {
    GroupList data;
    decodeGroups(db, db.record(index).groups, data, nullptr);
    const Group* space = findCode(data, 67);
    return !space || space->integer == 0;
}

bool layerFrozen(const Database& db, uint32_t index) {
    GroupList data;
    decodeGroups(db, db.record(index).groups, data, nullptr);
    const Group* layer = findCode(data, 8);
    if (!layer) return false;
    uint32_t entry = db.findEntry("LAYER", layer->text);
    if (entry == kNone) return false;
    GroupList fields;
    decodeGroups(db, db.record(entry).groups, fields, nullptr);
    const Group* flags = findCode(fields, 70);
    return flags && (flags->integer & 1);
}

// The drawing units a pick reaches: the pick box in pixels at the current view's scale.
double pickAperture() {
    double box = 3, height = 297, pixels = 768;
    if (SysVars* vars = currentVariables()) {
        if (auto* v = vars->find(L"PICKBOX")) box = v->integer;
        if (auto* v = vars->find(L"VIEWSIZE")) height = v->real;
        if (auto* v = vars->find(L"SCREENSIZE")) pixels = v->point[1] > 0 ? v->point[1] : pixels;
    }
    return std::max(box, 1.0) * height / pixels;
}

template <class Keep>
std::vector<uint32_t> scan(const Database& db, const SelectionFilter& filter, Keep keep) {
    std::vector<uint32_t> out;
    for (uint32_t index : db.entities()) {
        const Record& r = db.record(index);
        if (r.kind != RecordKind::Entity || r.deleted) continue;
        if (keep(index) && filter.matches(db, index)) out.push_back(index);
    }
    return out;
}

enum class Mode { All, AllThawed, Window, Crossing, WindowPolygon, CrossingPolygon, Fence, Last, Previous,
                  Implied, Pick, Interactive };

Mode modeOf(const ACHAR* str, const void* pt1) {
    if (!str) return pt1 ? Mode::Pick : Mode::Interactive;
    std::wstring m = upperAscii(str);
    while (!m.empty() && (m.front() == L'_' || m.front() == L'.')) m.erase(m.begin());
    if (m == L"X") return Mode::All;
    if (m == L"A") return Mode::AllThawed;
    if (m == L"W") return Mode::Window;
    if (m == L"C") return Mode::Crossing;
    if (m == L"WP") return Mode::WindowPolygon;
    if (m == L"CP") return Mode::CrossingPolygon;
    if (m == L"F") return Mode::Fence;
    if (m == L"L") return Mode::Last;
    if (m == L"P") return Mode::Previous;
    if (m == L"I") return Mode::Implied;
    return Mode::Interactive;
}

std::vector<uint32_t> pickAt(const Database& db, const SelectionFilter& filter, const double* pt) {
    P2 p = toWorld(pt);
    double reach = pickAperture();
    uint32_t best = kNone;
    double bestDistance = 1e300;
    for (uint32_t index : scan(db, filter, [&](uint32_t i) { return inModelSpace(db, i); })) {
        double d = distanceTo(shapeOf(db, index), p);
        if (d <= reach && d <= bestDistance) {  // the later of equally near entities is on top
            best = index;
            bestDistance = d;
        }
    }
    return best == kNone ? std::vector<uint32_t>{} : std::vector<uint32_t>{best};
}

}  // namespace

namespace host::db {

int selectEntities(Database& db, const ACHAR* str, const void* pt1, const void* pt2,
                   const SelectionFilter& filter, std::vector<uint32_t>& members, const PickEntity& pick) {
    Mode mode = modeOf(str, pt1);
    auto geometric = [&](auto test) {
        return scan(db, filter, [&](uint32_t i) { return inModelSpace(db, i) && test(shapeOf(db, i)); });
    };
    switch (mode) {
    case Mode::All: members = scan(db, filter, [](uint32_t) { return true; }); break;
    case Mode::AllThawed: members = scan(db, filter, [&](uint32_t i) { return !layerFrozen(db, i); }); break;
    case Mode::Window:
    case Mode::Crossing: {
        if (!pt1 || !pt2) return RTERROR;
        auto box = window(pt1, pt2);
        members = mode == Mode::Window ? geometric([&](const Shape& s) { return insidePolygon(s, box); })
                                       : geometric([&](const Shape& s) { return crossesPolygon(s, box); });
        break;
    }
    case Mode::WindowPolygon:
    case Mode::CrossingPolygon: {
        auto polygon = pointList(pt1);
        if (polygon.size() < 3) return RTERROR;
        members = mode == Mode::WindowPolygon ? geometric([&](const Shape& s) { return insidePolygon(s, polygon); })
                                              : geometric([&](const Shape& s) { return crossesPolygon(s, polygon); });
        break;
    }
    case Mode::Fence: {
        auto fence = pointList(pt1);
        if (fence.size() < 2) return RTERROR;
        members = geometric([&](const Shape& s) { return crossesFence(s, fence); });
        break;
    }
    case Mode::Last: {
        ads_name last;
        uint32_t index = acdbEntLast(last) == RTNORM ? db.indexOf(last) : kNone;
        if (index != kNone && filter.matches(db, index)) members = {index};
        break;
    }
    case Mode::Previous:
        for (uint32_t index : db.selectionSets().previous)
            if (!db.record(index).deleted && filter.matches(db, index)) members.push_back(index);
        break;
    case Mode::Implied: break;  // a headless editor has no set picked before the command
    case Mode::Pick: members = pickAt(db, filter, static_cast<const double*>(pt1)); break;
    case Mode::Interactive: {
        ads_name picked;
        if (!pick) return RTCAN;
        if (int status = pick(picked); status != RTNORM) return status;
        uint32_t index = db.indexOf(picked);
        if (index != kNone && db.record(index).kind == RecordKind::SubEntity) index = db.record(index).main;
        if (index != kNone && !db.record(index).deleted && filter.matches(db, index)) members = {index};
        break;
    }
    }
    return RTNORM;
}

int storeSelection(Database& db, const std::vector<uint32_t>& members, ads_name ss) {
    long id = db.selectionSets().create();
    if (!id) {
        setErrno(kErrTooManySets);
        return RTERROR;
    }
    auto* set = db.selectionSets().find(id);
    for (uint32_t m : members) set->add(m);
    db.selectionSets().previous = members;
    setName(db, id, ss);
    return RTNORM;
}

}  // namespace host::db

extern "C" int acedSSFree(const ads_name sname) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db;
        if (!findSet(db, sname)) {
            setErrno(kErrBadSet);
            return RTERROR;
        }
        db->selectionSets().release(sname[1]);
        return RTNORM;
    });
}

extern "C" int acedSSLength(const ads_name sname, long* len) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db;
        auto* set = findSet(db, sname);
        if (!set || !len) {
            setErrno(kErrBadSet);
            return RTERROR;
        }
        *len = static_cast<long>(set->members.size());
        return RTNORM;
    });
}

extern "C" int acedSSName(const ads_name ss, long i, ads_name entres) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db;
        auto* set = findSet(db, ss);
        if (!set || !entres) {
            setErrno(kErrBadSet);
            return RTERROR;
        }
        if (i < 0 || static_cast<size_t>(i) >= set->members.size()) return RTERROR;
        db->nameOf(set->members[static_cast<size_t>(i)], entres);
        return RTNORM;
    });
}

extern "C" int acedSSAdd(const ads_name ename, const ads_name sname, ads_name result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !result) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        uint32_t entity = kNone;
        if (ename && !acdbNameNil(ename)) {
            entity = liveEntity(*db, ename);
            if (entity == kNone) {
                setErrno(kErrBadName);
                return RTERROR;
            }
        }
        if (sname && !acdbNameNil(sname)) {
            Database* owner;
            auto* set = findSet(owner, sname);
            if (!set) {
                setErrno(kErrBadSet);
                return RTERROR;
            }
            if (entity != kNone) set->add(entity);  // a member already: nothing to do
            result[0] = sname[0];
            result[1] = sname[1];
            return RTNORM;
        }
        long id = db->selectionSets().create();
        if (!id) {
            setErrno(kErrTooManySets);
            return RTERROR;
        }
        if (entity != kNone) db->selectionSets().find(id)->add(entity);
        setName(*db, id, result);
        return RTNORM;
    });
}

extern "C" int acedSSDel(const ads_name ename, const ads_name ss) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db;
        auto* set = findSet(db, ss);
        if (!set) {
            setErrno(kErrBadSet);
            return RTERROR;
        }
        uint32_t entity = ename ? db->indexOf(ename) : kNone;
        return entity != kNone && set->remove(entity) ? RTNORM : RTERROR;
    });
}

extern "C" int acedSSMemb(const ads_name ename, const ads_name ss) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db;
        auto* set = findSet(db, ss);
        if (!set) {
            setErrno(kErrBadSet);
            return RTERROR;
        }
        uint32_t entity = ename ? db->indexOf(ename) : kNone;
        return entity != kNone && set->contains(entity) ? RTNORM : RTERROR;
    });
}
