// acdbEntMod: changes an entity (or a table entry or object) from an entity list. Each group
// of the list replaces the group of the same code and occurrence in the record; groups the
// record lacks are added in their subclass; groups the list leaves out stay. The type, the
// handle, the owner and the subclass markers cannot change. A -3 section replaces the
// extended data of the applications it names; an application given without groups loses
// its extended data.
#include <map>

#include "acdbads.h"
#include "adscodes.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/entity_lists.h"
#include "host/db/entity_mod.h"
#include "host/db/entity_rules.h"
#include "host/db/entity_schema.h"
#include "host/db/resbuf_groups.h"
#include "host/db/xdata.h"
#include "host/text.h"

namespace host::db {
namespace {

bool fixedByDatabase(int code) {
    return code == -1 || code == 0 || code == 5 || code == 105 || code == 330 || code == 360 ||
           code == 100 || code == 102;
}

bool isVertexCode(int code) { return code == 10 || code == 40 || code == 41 || code == 42 || code == 91; }

// Where a group of a code the record lacks goes: the end of its subclass, or the end.
size_t insertPosition(const GroupList& groups, const EntitySchema* schema, int code, int flags) {
    for (size_t i = groups.size(); i-- > 0;)
        if (groups[i].code == code) return i + 1;
    const char* marker = nullptr;
    if (isEntityCode(code)) marker = "AcDbEntity";
    else if (schema) marker = subclassOf(*schema, code, flags);
    if (marker) {
        std::wstring wanted(marker, marker + std::char_traits<char>::length(marker));
        for (size_t i = 0; i < groups.size(); ++i) {
            if (groups[i].code != 100 || groups[i].text != wanted) continue;
            size_t j = i + 1;
            while (j < groups.size() && groups[j].code != 100) ++j;
            return j;
        }
    }
    return groups.size();
}

void replaceValue(Group& old, const Group& given) {
    if (old.sameValue(given)) return;
    int dims = old.dims;
    old = given;
    old.hasRaw = false;
    if (old.type == GroupType::Point) old.dims = dims;
}

// Copies the file text of groups that did not change, position by position.
void keepUnchanged(GroupList& now, const GroupList& before) {
    for (size_t i = 0; i < now.size() && i < before.size(); ++i)
        if (now[i].sameValue(before[i])) now[i] = before[i];
}

void mergeVertices(GroupList& merged, const GroupList& given) {
    size_t first = merged.size();
    GroupList oldVertices;
    GroupList kept;
    for (size_t i = 0; i < merged.size(); ++i) {
        bool vertex = isVertexCode(merged[i].code) && (first != merged.size() || merged[i].code == 10);
        if (vertex && first == merged.size()) first = kept.size();
        if (vertex) oldVertices.push_back(merged[i]);
        else kept.push_back(merged[i]);
    }
    GroupList vertices;
    for (const auto& g : given)
        if (isVertexCode(g.code)) {
            vertices.push_back(g);
            if (g.code == 10) vertices.back().dims = 2;
        }
    keepUnchanged(vertices, oldVertices);
    if (first > kept.size()) first = kept.size();
    kept.insert(kept.begin() + static_cast<long>(first), vertices.begin(), vertices.end());
    long long count = 0;
    for (const auto& g : vertices) count += g.code == 10;
    if (Group* n = findCode(kept, 90)) replaceValue(*n, intGroup(90, count));
    merged = std::move(kept);
}

void mergeData(GroupList& merged, const GroupList& given, const EntitySchema* schema, int flags,
               bool lwpolyline) {
    bool newVertices = lwpolyline && findCode(given, 10);
    std::map<int, size_t> seen;
    for (const auto& g : given) {
        if (newVertices && (isVertexCode(g.code) || g.code == 90)) continue;
        size_t k = seen[g.code]++;
        size_t found = merged.size();
        for (size_t i = 0, n = 0; i < merged.size(); ++i)
            if (merged[i].code == g.code && n++ == k) {
                found = i;
                break;
            }
        if (found < merged.size()) {
            replaceValue(merged[found], g);
        } else {
            size_t at = insertPosition(merged, schema, g.code, flags);
            merged.insert(merged.begin() + static_cast<long>(at), g);
        }
    }
    if (newVertices) mergeVertices(merged, given);
}

short mergeXdata(const Database& db, GroupList& oldX, const GroupList& givenX) {
    if (givenX.empty()) return 0;
    if (givenX.front().code != 1001) return kErrBadAppId;
    auto given = splitXdata(givenX);
    if (short err = checkXdata(db, given)) return err;
    auto blocks = splitXdata(oldX);
    for (auto& nb : given) {
        auto it = blocks.begin();
        while (it != blocks.end() && !equalsNoCase(it->app, nb.app)) ++it;
        if (nb.groups.empty()) {
            if (it != blocks.end()) blocks.erase(it);
        } else if (it != blocks.end()) {
            keepUnchanged(nb.groups, it->groups);
            it->groups = std::move(nb.groups);
        } else {
            blocks.push_back(std::move(nb));
        }
    }
    if (xdataSize(blocks) > kXdataRoom) return kErrXdataTooBig;
    oldX.clear();
    joinXdata(blocks, oldX);
    return 0;
}

int fail(short err, int status) {
    setErrno(err);
    return status;
}

// The groups a list gives for the record: its own and its extended data. 0 or the ERRNO of
// a list that would change the type or the handle or holds what no group can.
short readGiven(const Database& db, const Record& r, const resbuf* list, GroupList& given, GroupList& givenX) {
    const std::string& type = db.typeName(r);
    bool inXdata = false, inReactors = false;
    for (const resbuf* rb = list; rb; rb = rb->rbnext) {
        if (rb->restype == -3) {
            inXdata = true;
            continue;
        }
        if (rb->restype == -1) continue;
        if (rb->restype == 0 && !inXdata) {
            if (!rb->resval.rstring || toUtf8(upperAscii(rb->resval.rstring)) != type) return kErrChangeType;
            continue;
        }
        Group g;
        if (!resbufToGroup(db, rb, g)) return inXdata ? kErrBadXdataType : kErrBadField;
        if (inXdata) {
            givenX.push_back(std::move(g));
            continue;
        }
        if ((g.code == 5 || g.code == 105) && !equalsNoCase(g.text, fromUtf8(handleText(r.handle))))
            return kErrChangeHandle;
        if (g.code == 102) inReactors = !g.text.empty() && g.text[0] == L'{';
        if (g.code == 102 || inReactors || fixedByDatabase(g.code)) continue;
        if (g.code >= 1000) return kErrBadAppId;
        given.push_back(std::move(g));
    }
    return 0;
}

// The groups given whose value the record does not hold yet: those to check.
GroupList changedGroups(const GroupList& data, const GroupList& given) {
    GroupList changed;
    for (const auto& g : given) {
        bool held = false;
        for (const auto& o : data) held |= o.code == g.code && o.sameValue(g);
        if (!held) changed.push_back(g);
    }
    return changed;
}

// The flags of the polyline a POLYLINE or VERTEX record belongs to (they choose subclasses).
int polylineFlagsOf(const Database& db, uint32_t index) {
    const Record& r = db.record(index);
    const std::string& type = db.typeName(r);
    if (type != "POLYLINE" && type != "VERTEX") return 0;
    uint32_t head = type == "VERTEX" ? r.main : index;
    if (head == kNone) return 0;
    GroupList h;
    decodeGroups(db, db.record(head).groups, h, nullptr);
    const Group* f = findCode(h, 70);
    return f ? static_cast<int>(f->integer) : 0;
}

}  // namespace

int modifyEntity(Database& db, const resbuf* list) {
    const resbuf* nameNode = list;
    while (nameNode && nameNode->restype != -1) nameNode = nameNode->rbnext;
    uint32_t index = nameNode ? db.indexOf(nameNode->resval.rlname) : kNone;
    if (index == kNone) return fail(kErrBadName, RTERROR);
    Record& r = db.record(index);
    if (r.deleted) return fail(kErrModifyDeleted, RTERROR);
    const std::string type = db.typeName(r);
    if (type == "SEQEND") return fail(kErrModifySeqend, RTREJ);

    GroupList given, givenX;
    if (short err = readGiven(db, r, list, given, givenX)) return fail(err, RTREJ);
    GroupList data, xdata;
    decodeGroups(db, r.groups, data, &xdata);
    toListForm(type, data);
    GroupList changed = changedGroups(data, given);
    if (r.kind == RecordKind::Entity || r.kind == RecordKind::SubEntity)
        if (short err = checkProperties(db, type, changed)) return fail(err, RTREJ);
    mergeData(data, given, entitySchema(type), polylineFlagsOf(db, index), type == "LWPOLYLINE");
    toFileForm(type, data);
    if (short err = mergeXdata(db, xdata, givenX)) return fail(err, RTREJ);
    if (r.kind == RecordKind::Entity || r.kind == RecordKind::SubEntity) makeNamedLayers(db, changed);
    std::string blob;
    encodeGroups(db, data, blob);
    encodeGroups(db, xdata, blob);
    db.record(index).groups = std::move(blob);
    return RTNORM;
}

}  // namespace host::db

extern "C" int acdbEntMod(const struct resbuf* ent) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        host::db::Database* db = host::db::currentDb();
        if (!db || !ent) {
            host::db::setErrno(host::db::kErrNullPointer);
            return RTERROR;
        }
        return host::db::modifyEntity(*db, ent);
    });
}
