#include "host/db/tables.h"

#include "host/db/blob.h"
#include "host/text.h"

namespace host::db {
namespace {

constexpr std::string_view kTableOrder[] = {"VPORT", "LTYPE", "LAYER",    "STYLE",       "VIEW",
                                            "UCS",   "APPID", "DIMSTYLE", "BLOCK_RECORD"};

size_t tableRank(std::string_view name) {
    for (size_t i = 0; i < std::size(kTableOrder); ++i)
        if (kTableOrder[i] == name) return i;
    return std::size(kTableOrder);
}

const char* entrySubclass(std::string_view table) {
    if (table == "LAYER") return "AcDbLayerTableRecord";
    if (table == "LTYPE") return "AcDbLinetypeTableRecord";
    if (table == "STYLE") return "AcDbTextStyleTableRecord";
    if (table == "APPID") return "AcDbRegAppTableRecord";
    if (table == "BLOCK_RECORD") return "AcDbBlockTableRecord";
    if (table == "VIEW") return "AcDbViewTableRecord";
    if (table == "UCS") return "AcDbUCSTableRecord";
    if (table == "DIMSTYLE") return "AcDbDimStyleTableRecord";
    if (table == "VPORT") return "AcDbViewportTableRecord";
    return nullptr;
}

int sectionRank(SectionKind kind) {
    switch (kind) {
    case SectionKind::Header: return 0;
    case SectionKind::Classes: return 1;
    case SectionKind::Tables: return 2;
    case SectionKind::Blocks: return 3;
    case SectionKind::Entities: return 4;
    case SectionKind::Objects: return 5;
    default: return 6;
    }
}

const char* sectionName(SectionKind kind) {
    switch (kind) {
    case SectionKind::Header: return "HEADER";
    case SectionKind::Classes: return "CLASSES";
    case SectionKind::Tables: return "TABLES";
    case SectionKind::Blocks: return "BLOCKS";
    case SectionKind::Entities: return "ENTITIES";
    case SectionKind::Objects: return "OBJECTS";
    default: return "";
    }
}

}  // namespace

void ensureContinuous(Database& db) {
    if (db.findEntry("LTYPE", L"Continuous") != kNone) return;
    addTableEntry(db, "LTYPE",
                  {stringGroup(2, db.isR12() ? L"CONTINUOUS" : L"Continuous"), intGroup(70, 0),
                   stringGroup(3, L"Solid line"), intGroup(72, 65), intGroup(73, 0), realGroup(40, 0.0)});
}

void ensureSection(Database& db, SectionKind kind) {
    auto& sections = db.sections();
    for (const auto& s : sections)
        if (s.kind == kind) return;
    size_t at = 0;
    while (at < sections.size() && sectionRank(sections[at].kind) < sectionRank(kind)) ++at;
    Section s;
    s.kind = kind;
    s.name = sectionName(kind);
    sections.insert(sections.begin() + static_cast<long>(at), std::move(s));
}

bool validSymbolName(std::wstring_view name) {
    if (name.empty() || name.size() > 255) return false;
    if (name.front() == L' ' || name.back() == L' ') return false;
    for (wchar_t c : name)
        if (c < 0x20 || std::wstring_view(L"<>/\\\":;?*|=`").find(c) != std::wstring_view::npos)
            return false;
    return true;
}

bool validAppName(std::wstring_view name) {
    if (name.empty() || name.size() > 31) return false;
    for (wchar_t c : name) {
        bool ok = (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9') ||
                  c == L'$' || c == L'-' || c == L'_' || c >= 0x80;
        if (!ok) return false;
    }
    return true;
}

bool isByName(std::wstring_view name) {
    return equalsNoCase(name, L"BYLAYER") || equalsNoCase(name, L"BYBLOCK");
}

Table& ensureTable(Database& db, std::string_view upperName) {
    if (Table* t = db.table(upperName)) return *t;
    ensureSection(db, SectionKind::Tables);
    std::string head;
    appendGroup(head, 2, upperName);
    uint64_t handle = 0;
    if (!db.isR12()) {
        handle = db.newHandle();
        appendGroup(head, 5, handleText(handle));
        appendGroup(head, 330, "0");
        appendGroup(head, 100, "AcDbSymbolTable");
    }
    appendGroup(head, 70, "0");
    Table t;
    t.name = std::string(upperName);
    t.head = db.addRecord("TABLE", std::move(head), RecordKind::TableHead);
    if (handle) db.indexHandle(handle, t.head);
    t.end = db.addRecord("ENDTAB", {}, RecordKind::TableEnd);
    auto& tables = db.tables();
    size_t at = 0;
    while (at < tables.size() && tableRank(tables[at].name) <= tableRank(upperName)) ++at;
    return *tables.insert(tables.begin() + static_cast<long>(at), std::move(t));
}

uint32_t addTableEntry(Database& db, std::string_view upperName, const GroupList& fields) {
    Table& table = ensureTable(db, upperName);
    uint32_t head = table.head;
    std::string type = upperName == "BLOCK_RECORD" ? "BLOCK_RECORD" : std::string(upperName);
    std::string groups;
    uint64_t handle = 0;
    if (!db.isR12()) {
        handle = db.newHandle();
        appendGroup(groups, upperName == "DIMSTYLE" ? 105 : 5, handleText(handle));
        appendGroup(groups, 330, handleText(db.record(head).handle));
        appendGroup(groups, 100, "AcDbSymbolTableRecord");
        if (const char* sub = entrySubclass(upperName)) appendGroup(groups, 100, sub);
    }
    encodeGroups(db, fields, groups);
    uint32_t index = db.addRecord(type, std::move(groups), RecordKind::TableEntry);
    if (handle) db.indexHandle(handle, index);
    db.table(upperName)->entries.push_back(index);
    return index;
}

uint32_t ensureLayer(Database& db, std::wstring_view name) {
    uint32_t index = db.findEntry("LAYER", name);
    if (index != kNone) return index;
    if (!validSymbolName(name)) return kNone;
    ensureContinuous(db);
    GroupList fields{stringGroup(2, std::wstring(name)), intGroup(70, 0), intGroup(62, 7),
                     stringGroup(6, db.isR12() ? L"CONTINUOUS" : L"Continuous")};
    if (!db.isR12()) fields.push_back(intGroup(370, -3));
    return addTableEntry(db, "LAYER", fields);
}

void editRecord(Database& db, uint32_t index, const std::function<void(GroupList&)>& edit) {
    Record& r = db.record(index);
    GroupList data, xdata;
    decodeGroups(db, r.groups, data, &xdata);
    edit(data);
    std::string blob;
    encodeGroups(db, data, blob);
    encodeGroups(db, xdata, blob);
    r.groups = std::move(blob);  // the views of data die with the old blob, after the copy
}

void setGroup(GroupList& groups, const Group& g) {
    if (Group* old = findCode(groups, g.code)) {
        if (old->sameValue(g)) return;
        int dims = old->dims;
        *old = g;
        if (g.type == GroupType::Point) old->dims = dims;
        return;
    }
    groups.push_back(g);
}

}  // namespace host::db
