#include "host/render/entry_groups.h"

namespace host::render {

double realOr(const db::GroupList& g, int code, double fallback) {
    const db::Group* x = db::findCode(g, code);
    return x ? x->real : fallback;
}

std::optional<db::GroupList> namedEntry(const db::Database& db, std::string_view table, const db::GroupList& g,
                                        int code, std::wstring_view fallback) {
    const db::Group* name = db::findCode(g, code);
    uint32_t entry = db.findEntry(table, name ? std::wstring_view(name->text) : fallback);
    if (entry == db::kNone) return std::nullopt;
    db::GroupList groups;
    db::decodeGroups(db, db.record(entry).groups, groups, nullptr);
    return groups;
}

}  // namespace host::render
