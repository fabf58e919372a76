// acdbEntMake: new entities from entity lists. Simple entities go straight into the current
// space; a POLYLINE or an INSERT with attributes waits for its SEQEND, and a BLOCK for its
// ENDBLK, and is then added whole with fresh handles and the owners of its file version.
#include "acdbads.h"
#include "adscodes.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/blob.h"
#include "host/db/entity_lists.h"
#include "host/db/entity_make.h"
#include "host/db/entity_rules.h"
#include "host/db/entity_schema.h"
#include "host/db/entmake_state.h"
#include "host/db/resbuf_groups.h"
#include "host/db/table_make.h"
#include "host/db/tables.h"
#include "host/db/xdata.h"
#include "host/text.h"

namespace host::db {
namespace {

struct Parsed {
    std::string type;
    GroupList data;
    std::vector<XdataBlock> xdata;
};

// Groups the database gives itself: names, handles, owners, reactors, subclass markers.
bool givenByDatabase(int code) {
    return code == -1 || code == 5 || code == 105 || code == 330 || code == 360 || code == 100 ||
           code == 102;
}

short parseList(const Database& db, const resbuf* rb, Parsed& out) {
    if (rb && rb->restype == -1) rb = rb->rbnext;
    if (!rb || rb->restype != 0 || !rb->resval.rstring) return kErrBadEntityType;
    out.type = toUtf8(upperAscii(rb->resval.rstring));
    GroupList xdata;
    bool inXdata = false;
    bool inReactors = false;
    for (rb = rb->rbnext; rb; rb = rb->rbnext) {
        if (rb->restype == -3) {
            inXdata = true;
            continue;
        }
        Group g;
        if (!resbufToGroup(db, rb, g)) return inXdata ? kErrBadXdataType : kErrBadField;
        if (inXdata) {
            xdata.push_back(std::move(g));
            continue;
        }
        if (g.code == 102) inReactors = g.text.size() > 0 && g.text[0] == L'{';
        if (g.code == 102 || inReactors || givenByDatabase(g.code)) continue;
        if (g.code >= 1000) return kErrBadAppId;  // extended data needs its -3
        out.data.push_back(std::move(g));
    }
    if (!xdata.empty() && xdata.front().code != 1001) return kErrBadAppId;
    out.xdata = splitXdata(xdata);
    return 0;
}

// Types that came after R12: an R12 drawing cannot hold them.
bool inR12(std::string_view type) {
    return type != "LWPOLYLINE" && type != "MTEXT" && type != "ELLIPSE" && type != "SPLINE" &&
           type != "XLINE" && type != "RAY";
}

short checkRequired(const EntitySchema& schema, const GroupList& data) {
    for (int code : schema.required) {
        if (findCode(data, code)) continue;
        if (schema.type == "BLOCK" && code == 2) return kErrMissingBlockName;
        if (schema.type == "BLOCK" && code == 70) return 44;
        return kErrMissingField;
    }
    return 0;
}

// The vertex count first, then the polyline's own values, then the vertices as given.
void orderLwpolyline(GroupList& data) {
    GroupList head, vertices, tail;
    long long count = 0;
    for (auto& g : data) {
        if (g.code == 10) {
            ++count;
            g.dims = 2;
        }
        if (g.code == 90) continue;
        if (g.code == 70 || g.code == 43 || g.code == 38 || g.code == 39) head.push_back(g);
        else if (g.code == 210) tail.push_back(g);
        else vertices.push_back(g);
    }
    GroupList out{intGroup(90, count)};
    for (int c : {70, 43, 38, 39})
        for (auto& g : head)
            if (g.code == c) out.push_back(g);
    if (!findCode(out, 70)) out.insert(out.begin() + 1, intGroup(70, 0));
    out.insert(out.end(), vertices.begin(), vertices.end());
    out.insert(out.end(), tail.begin(), tail.end());
    data = std::move(out);
}

int polylineFlags(const Parsed& p) {
    const Group* flags = findCode(p.data, 70);
    return flags ? static_cast<int>(flags->integer) : 0;
}

std::string draftBlob(const Database& db, const EntitySchema& schema, const Parsed& p, int flags) {
    std::string blob;
    encodeGroups(db, layoutEntity(db, schema, p.data, flags), blob);
    GroupList xdata;
    joinXdata(p.xdata, xdata);
    encodeGroups(db, xdata, blob);
    return blob;
}

std::wstring layerOf(const Database& db, const DraftRecord& d) {
    std::string_view raw;
    return findGroup(d.groups, 8, raw) ? db.text(raw) : L"0";
}

int flagsOfDraft(const Database& db, const DraftRecord& d) {
    GroupList data;
    decodeGroups(db, d.groups, data, nullptr);
    const Group* f = findCode(data, 70);
    return f ? static_cast<int>(f->integer) : 0;
}

uint64_t paperSpaceOwner(const Database& db) {
    uint32_t index = db.findEntry("BLOCK_RECORD", L"*Paper_Space");
    return index == kNone ? 0 : db.record(index).handle;
}

std::wstring anonymousName(const Database& db, std::wstring_view given) {
    std::wstring prefix(given.substr(0, 2));
    for (int n = 1;; ++n) {
        std::wstring name = upperAscii(prefix) + std::to_wstring(n);
        if (db.findBlock(name) == kNone && db.findEntry("BLOCK_RECORD", name) == kNone) return name;
    }
}

}  // namespace

std::vector<uint32_t> commitDrafts(Database& db, const std::vector<DraftRecord>& drafts,
                                   std::vector<uint32_t>& list, uint32_t block, uint64_t owner) {
    std::vector<uint32_t> made;
    uint32_t main = kNone;
    for (const auto& d : drafts) {
        uint64_t handle = db.newHandle();
        uint64_t recordOwner = owner;
        if (d.kind == RecordKind::SubEntity && main != kNone) recordOwner = db.record(main).handle;
        std::string groups;
        appendGroup(groups, 5, handleText(handle));
        if (!db.isR12() && recordOwner) appendGroup(groups, 330, handleText(recordOwner));
        groups += d.groups;
        uint32_t index = db.addRecord(d.type, std::move(groups), d.kind);
        db.indexHandle(handle, index);
        Record& r = db.record(index);
        r.block = block;
        if (d.kind == RecordKind::SubEntity) r.main = main;
        else if (d.kind == RecordKind::Entity) main = index;
        if (d.kind == RecordKind::Entity || d.kind == RecordKind::SubEntity) {
            r.pos = static_cast<uint32_t>(list.size());
            list.push_back(index);
        }
        made.push_back(index);
    }
    return made;
}

namespace {

void commitToSpace(Database& db, const std::vector<DraftRecord>& drafts, bool paper) {
    EntMakeState& state = db.entMakeState();
    if (state.inBlock) {
        state.blockEntities.insert(state.blockEntities.end(), drafts.begin(), drafts.end());
        return;
    }
    ensureSection(db, SectionKind::Entities);
    commitDrafts(db, drafts, db.entities(), kNone, paper ? paperSpaceOwner(db) : db.modelSpaceOwner());
}

int commitBlock(Database& db, const DraftRecord& end) {
    EntMakeState& state = db.entMakeState();
    GroupList begin;
    decodeGroups(db, state.blockBegin.groups, begin, nullptr);
    Group* name = findCode(begin, 2);
    const Group* flags = findCode(begin, 70);
    std::wstring blockName = name->text;
    if (blockName.size() >= 2 && blockName[0] == L'*' && flags && (flags->integer & 1))
        blockName = anonymousName(db, blockName);  // "*U" becomes "*U1", "*U2" ...
    *name = stringGroup(2, blockName);
    if (Group* three = findCode(begin, 3)) *three = stringGroup(3, blockName);
    else if (!db.isR12()) begin.push_back(stringGroup(3, blockName));

    // A definition of an existing name replaces the old one; the block record stays.
    uint32_t old = db.findBlock(blockName);
    if (old != kNone) {
        const BlockDef& def = db.blocks()[old];
        db.record(def.begin).deleted = true;
        if (def.end != kNone) db.record(def.end).deleted = true;
        for (uint32_t e : def.entities) db.record(e).deleted = true;
    }
    ensureSection(db, SectionKind::Blocks);
    uint64_t owner = 0;
    if (!db.isR12()) {
        uint32_t entry = db.findEntry("BLOCK_RECORD", blockName);
        if (entry == kNone) entry = addTableEntry(db, "BLOCK_RECORD", {stringGroup(2, blockName)});
        owner = db.record(entry).handle;
    }
    auto b = static_cast<uint32_t>(db.blocks().size());
    db.blocks().emplace_back();
    DraftRecord head = state.blockBegin;
    head.groups.clear();
    encodeGroups(db, begin, head.groups);
    std::vector<uint32_t> scratch;
    uint32_t beginIndex = commitDrafts(db, {head}, scratch, b, owner).front();
    std::vector<uint32_t> entities;
    commitDrafts(db, state.blockEntities, entities, b, owner);
    uint32_t endIndex = commitDrafts(db, {end}, scratch, b, owner).front();
    BlockDef& def = db.blocks()[b];
    def.begin = beginIndex;
    def.end = endIndex;
    def.entities = std::move(entities);
    state.clearAll();
    return RTNORM;
}

int reject(short err) {
    setErrno(err);
    return RTREJ;
}

}  // namespace

namespace {

bool isPart(const std::string& type) { return type == "VERTEX" || type == "ATTRIB" || type == "SEQEND"; }

// Whether the entity fits where the making stands: parts after their head, ENDBLK after
// BLOCK; 0 or the ERRNO value. An unfinished complex entity is dropped by anything else.
short checkSequence(EntMakeState& state, const std::string& type) {
    if (type == "ENDBLK") {
        if (!state.inBlock) return kErrBadBlockDefinition;
        if (!state.complex.empty()) {  // the block would end inside a polyline or an insert
            state.clearComplex();
            return kErrIncompleteComplex;
        }
    }
    bool part = isPart(type);
    if (!part && !state.complex.empty()) state.clearComplex();
    if (part) {
        if (state.complex.empty()) return type == "ATTRIB" ? kErrBadEntityType : kErrBadPolyline;
        bool polyline = state.complex.front().type == "POLYLINE";
        if (type != "SEQEND" && (type == "VERTEX") != polyline) return kErrBadEntityType;
    }
    if (type == "BLOCK" && state.inBlock) return kErrBadBlockDefinition;
    return 0;
}

// The groups the editor supplies when they are not given, then the checks of the data.
short complete(Database& db, const EntitySchema& schema, Parsed& p) {
    EntMakeState& state = db.entMakeState();
    // Layer: given, the complex entity's for its parts, else the current layer.
    if (!findCode(p.data, 8)) {
        std::wstring layer = isPart(p.type) ? layerOf(db, state.complex.front()) : currentLayer();
        if (p.type == "BLOCK" || p.type == "ENDBLK") layer = L"0";
        p.data.insert(p.data.begin(), stringGroup(8, layer));
    }
    if (p.type == "POLYLINE") {
        if (!findCode(p.data, 66)) p.data.push_back(intGroup(66, 1));
        const double origin[3] = {0, 0, 0};
        if (!findCode(p.data, 10)) p.data.push_back(pointGroup(10, origin));
    }
    if (p.type == "LWPOLYLINE") orderLwpolyline(p.data);
    toFileForm(p.type, p.data);
    if (short err = checkRequired(schema, p.data)) return err;
    if (short err = checkProperties(db, p.type, p.data)) return err;
    if (short err = checkXdata(db, p.xdata)) return err;
    if (xdataSize(p.xdata) > kXdataRoom) return kErrXdataTooBig;
    makeNamedLayers(db, p.data);
    return 0;
}

// Where the made record goes: into the pending block or complex entity, or into the drawing.
int place(Database& db, const Parsed& p, DraftRecord draft) {
    EntMakeState& state = db.entMakeState();
    const Group* space = findCode(p.data, 67);
    bool paper = space && space->integer == 1;
    if (p.type == "BLOCK") {
        state.inBlock = true;
        draft.kind = RecordKind::BlockBegin;
        state.blockBegin = std::move(draft);
        state.blockEntities.clear();
        return RTNORM;
    }
    if (p.type == "ENDBLK") {
        draft.kind = RecordKind::BlockEnd;
        return commitBlock(db, draft);
    }
    const Group* follows = findCode(p.data, 66);
    if (p.type == "POLYLINE" || (p.type == "INSERT" && follows && follows->integer == 1)) {
        state.complex = {std::move(draft)};
        return RTNORM;
    }
    if (isPart(p.type)) {
        state.complex.push_back(std::move(draft));
        if (p.type != "SEQEND") return RTNORM;
        std::vector<DraftRecord> whole = std::move(state.complex);
        state.clearComplex();
        commitToSpace(db, whole, paper);
        return RTNORM;
    }
    commitToSpace(db, {std::move(draft)}, paper);
    return RTNORM;
}

}  // namespace

int makeEntity(Database& db, const resbuf* list) {
    Parsed p;
    if (short err = parseList(db, list, p)) return reject(err);
    if (isMadeAsTableRecord(p.type)) {
        if (short err = makeTableRecord(db, p.type, p.data)) return reject(err);
        return RTNORM;
    }
    const EntitySchema* schema = entitySchema(p.type);
    if (!schema || (db.isR12() && !inR12(p.type))) return reject(kErrBadEntityType);
    EntMakeState& state = db.entMakeState();
    if (short err = checkSequence(state, p.type)) return reject(err);
    if (short err = complete(db, *schema, p)) return reject(err);
    bool part = isPart(p.type);
    int flags = p.type == "POLYLINE" ? polylineFlags(p) : part ? flagsOfDraft(db, state.complex.front()) : 0;
    DraftRecord draft{p.type, draftBlob(db, *schema, p, flags), part ? RecordKind::SubEntity : RecordKind::Entity};
    return place(db, p, std::move(draft));
}

}  // namespace host::db

extern "C" int acdbEntMake(const struct resbuf* ent) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        host::db::Database* db = host::db::currentDb();
        if (!db || !ent) {
            host::db::setErrno(host::db::kErrNullPointer);
            return RTERROR;
        }
        return host::db::makeEntity(*db, ent);
    });
}
