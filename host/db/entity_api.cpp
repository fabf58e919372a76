// Entity access of the host interface: reading entity lists, walking the drawing, deleting
// and restoring, handles.
#include "acdbads.h"
#include "adscodes.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/entity_lists.h"

using namespace host::db;

namespace {

// The record a name designates in the current drawing; kNone (ERRNO 2) otherwise.
uint32_t resolve(Database*& db, const ads_name ent) {
    db = currentDb();
    if (!db || !ent) {
        setErrno(kErrBadName);
        return kNone;
    }
    uint32_t index = db->indexOf(ent);
    if (index == kNone) setErrno(kErrBadName);
    return index;
}

bool isGraphical(const Record& r) {
    return r.kind == RecordKind::Entity || r.kind == RecordKind::SubEntity;
}

resbuf* entGet(const ads_name ent, const std::vector<std::wstring>* apps) {
    Database* db;
    uint32_t index = resolve(db, ent);
    if (index == kNone) return nullptr;
    if (db->record(index).deleted) {
        setErrno(kErrDeletedEntity);
        return nullptr;
    }
    return entityList(*db, index, apps);
}

}  // namespace

extern "C" struct resbuf* acdbEntGet(const ads_name ent) {
    return host::guarded(__func__, nullptr, [&]() -> struct resbuf* {
        return entGet(ent, nullptr);
    });
}

extern "C" struct resbuf* acdbEntGetX(const ads_name ent, const struct resbuf* args) {
    return host::guarded(__func__, nullptr, [&]() -> struct resbuf* {
        if (!args) return entGet(ent, nullptr);
        std::vector<std::wstring> apps;
        for (const resbuf* rb = args; rb; rb = rb->rbnext)
            if (rb->restype == RTSTR && rb->resval.rstring) apps.emplace_back(rb->resval.rstring);
        return entGet(ent, &apps);
    });
}

extern "C" int acdbEntDel(const ads_name ent) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db;
        uint32_t index = resolve(db, ent);
        if (index == kNone) return RTERROR;
        Record& r = db->record(index);
        if (r.kind != RecordKind::Entity) {  // vertices, attributes, table entries, objects
            setErrno(kErrBadName);
            return RTERROR;
        }
        if (r.block != kNone) {  // entities of a block definition stay
            setErrno(5);
            return RTERROR;
        }
        bool deleted = !r.deleted;
        r.deleted = deleted;
        const auto& list = listOf(*db, r);
        for (size_t i = r.pos + 1; i < list.size(); ++i) {
            Record& sub = db->record(list[i]);
            if (sub.kind != RecordKind::SubEntity || sub.main != index) break;
            sub.deleted = deleted;
        }
        return RTNORM;
    });
}

extern "C" int acdbEntNext(const ads_name ent, ads_name result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !result) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        uint32_t next = kNone;
        bool inBlock = false;
        if (!ent || acdbNameNil(ent)) {
            next = nextLive(*db, db->entities(), 0);
        } else {
            uint32_t index = resolve(db, ent);
            if (index == kNone) return RTERROR;
            const Record& r = db->record(index);
            if (r.kind == RecordKind::BlockBegin && r.block != kNone) {
                inBlock = true;
                next = nextLive(*db, db->blocks()[r.block].entities, 0);
            } else if (isGraphical(r)) {
                inBlock = r.block != kNone;
                next = nextLive(*db, listOf(*db, r), static_cast<size_t>(r.pos) + 1);
            } else {
                setErrno(kErrBadName);
                return RTERROR;
            }
        }
        if (next == kNone) {
            setErrno(inBlock ? 9 : kErrEndOfEntities);
            return RTERROR;
        }
        db->nameOf(next, result);
        return RTNORM;
    });
}

extern "C" int acdbEntLast(ads_name result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !result) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        const auto& list = db->entities();
        for (size_t i = list.size(); i-- > 0;) {
            const Record& r = db->record(list[i]);
            if (r.kind == RecordKind::Entity && !r.deleted) {
                db->nameOf(list[i], result);
                return RTNORM;
            }
        }
        setErrno(kErrNoLastEntity);
        return RTERROR;
    });
}

extern "C" int acdbEntUpd(const ads_name ent) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db;
        uint32_t index = resolve(db, ent);
        if (index == kNone) return RTERROR;
        if (db->record(index).deleted) {
            setErrno(kErrDeletedEntity);
            return RTERROR;
        }
        return RTNORM;
    });
}

extern "C" int acdbHandEnt(const ACHAR* handle, ads_name entres) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !handle || !entres) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        std::string text;
        for (const ACHAR* p = handle; *p; ++p) {
            if (*p > 0x7F) {
                setErrno(kErrBadHandle);
                return RTERROR;
            }
            text += static_cast<char>(*p);
        }
        uint64_t h = 0;
        uint32_t index = parseHandle(text, h) ? db->findHandle(h) : kNone;
        if (index == kNone) {
            setErrno(kErrBadHandle);
            return RTERROR;
        }
        db->nameOf(index, entres);
        return RTNORM;
    });
}
