// Reading the groups the renderer needs: a real with a default, and the table entry (layer,
// text style) an entity names.
#pragma once

#include <optional>
#include <string_view>

#include "host/db/database.h"
#include "host/db/group_values.h"

namespace host::render {

double realOr(const db::GroupList& g, int code, double fallback);

// The groups of the entry of TABLE that the entity's group CODE names (FALLBACK when the entity
// has no such group); empty when the table has no such entry.
std::optional<db::GroupList> namedEntry(const db::Database& db, std::string_view table, const db::GroupList& g,
                                        int code, std::wstring_view fallback);

}  // namespace host::render
