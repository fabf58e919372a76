// Table functions of the host interface: registering applications, searching and walking
// the symbol tables. Entries are given in the form the editor gives them: the table's type,
// the name, the flags and the entry's own values, without handles, owners or subclasses.
#include "acdbads.h"
#include "adscodes.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/resbuf.h"
#include "host/db/resbuf_groups.h"
#include "host/db/tables.h"
#include "host/text.h"

using namespace host;
using namespace host::db;

namespace {

constexpr std::wstring_view kTables[] = {L"LAYER", L"LTYPE",    L"VIEW",  L"STYLE", L"BLOCK",
                                         L"UCS",   L"DIMSTYLE", L"VPORT", L"APPID"};

// The upper-case table name of the interface's table argument; empty when it names none.
std::string tableName(const ACHAR* name) {
    if (!name) return {};
    std::wstring upper = upperAscii(name);
    for (auto t : kTables)
        if (upper == t) return toUtf8(upper);
    return {};
}

bool entryCode(int code) {
    if (code == 5 || code < 0) return false;
    return code < 100 || (code >= 140 && code <= 149) || (code >= 170 && code <= 179) ||
           (code >= 270 && code <= 289);
}

// Model and paper space (spelled with $ in R12 files) are no blocks a user defined.
bool isLayoutBlock(const std::wstring& name) {
    std::wstring upper = upperAscii(name);
    for (const wchar_t* prefix : {L"*MODEL_SPACE", L"*PAPER_SPACE", L"$MODEL_SPACE", L"$PAPER_SPACE"})
        if (upper.rfind(prefix, 0) == 0) return true;
    return false;
}

resbuf* entryList(const Database& db, std::wstring_view table, uint32_t record, uint32_t block) {
    GroupList data;
    decodeGroups(db, db.record(record).groups, data, nullptr);
    toListForm(db.typeName(db.record(record)), data);
    RbPtr head(newStringRb(0, table));
    if (!head) return nullptr;
    resbuf** tail = &head->rbnext;
    GroupList kept;
    for (auto& g : data)
        if (entryCode(g.code)) kept.push_back(std::move(g));
    if (!appendGroups(db, kept, tail)) return nullptr;
    if (block != kNone) {
        uint32_t first = kNone;
        for (uint32_t e : db.blocks()[block].entities)
            if (!db.record(e).deleted) {
                first = e;
                break;
            }
        if (first != kNone) {
            resbuf* rb = newRb(-2);
            if (!rb) return nullptr;
            db.nameOf(first, rb->resval.rlname);
            *tail = rb;
        }
    }
    return head.release();
}

// Entries of a table in order, as (record, block definition) pairs.
std::vector<std::pair<uint32_t, uint32_t>> entriesOf(const Database& db, const std::string& table) {
    std::vector<std::pair<uint32_t, uint32_t>> out;
    if (table == "BLOCK") {
        for (uint32_t b = 0; b < db.blocks().size(); ++b) {
            uint32_t begin = db.blocks()[b].begin;
            if (db.record(begin).deleted || isLayoutBlock(db.recordName(begin))) continue;
            out.emplace_back(begin, b);
        }
        return out;
    }
    if (const Table* t = db.table(table))
        for (uint32_t e : t->entries)
            if (!db.record(e).deleted) out.emplace_back(e, kNone);
    return out;
}

}  // namespace

extern "C" int acdbRegApp(const ACHAR* appname) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !appname) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        if (!validAppName(appname)) {
            setErrno(kErrBadSymbolName);
            return RTERROR;
        }
        if (db->findEntry("APPID", appname) != kNone) {
            setErrno(kErrDuplicateAppId);
            return RTERROR;
        }
        std::wstring name = db->isR12() ? upperAscii(appname) : std::wstring(appname);
        addTableEntry(*db, "APPID", {stringGroup(2, name), intGroup(70, 0)});
        return RTNORM;
    });
}

extern "C" struct resbuf* acdbTblSearch(const ACHAR* tblname, const ACHAR* sym, int setnext) {
    return host::guarded(__func__, nullptr, [&]() -> struct resbuf* {
        Database* db = currentDb();
        if (!db || !tblname || !sym) {
            setErrno(kErrNullPointer);
            return nullptr;
        }
        std::string table = tableName(tblname);
        if (table.empty()) {
            setErrno(kErrBadTableName);
            return nullptr;
        }
        auto entries = entriesOf(*db, table);
        for (size_t i = 0; i < entries.size(); ++i) {
            if (!equalsNoCase(db->recordName(entries[i].first), sym)) continue;
            if (setnext) db->tableCursors()[table] = i + 1;
            return entryList(*db, fromUtf8(table), entries[i].first, entries[i].second);
        }
        return nullptr;
    });
}

extern "C" int acdbTblObjName(const ACHAR* tblname, const ACHAR* sym, ads_name result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !tblname || !sym || !result) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        std::string table = tableName(tblname);
        if (table.empty()) {
            setErrno(kErrBadTableName);
            return RTERROR;
        }
        for (auto [record, block] : entriesOf(*db, table)) {
            if (!equalsNoCase(db->recordName(record), sym)) continue;
            db->nameOf(record, result);
            return RTNORM;
        }
        return RTERROR;
    });
}

extern "C" struct resbuf* acdbTblNext(const ACHAR* tblname, int rewind) {
    return host::guarded(__func__, nullptr, [&]() -> struct resbuf* {
        Database* db = currentDb();
        if (!db || !tblname) {
            setErrno(kErrNullPointer);
            return nullptr;
        }
        std::string table = tableName(tblname);
        if (table.empty()) {
            setErrno(kErrBadTableName);
            return nullptr;
        }
        size_t& cursor = db->tableCursors()[table];
        if (rewind) cursor = 0;
        auto entries = entriesOf(*db, table);
        if (cursor >= entries.size()) return nullptr;
        auto [record, block] = entries[cursor++];
        return entryList(*db, fromUtf8(table), record, block);
    });
}
