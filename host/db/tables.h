// Table entries made and changed by the host: layers, text styles, applications, block
// records; and the rules for their names.
#pragma once

#include <functional>
#include <string_view>

#include "host/db/database.h"
#include "host/db/group_values.h"

namespace host::db {

// Names of layers, styles and blocks: not empty, at most 255 characters, none of <>/\":;?*|=`.
bool validSymbolName(std::wstring_view name);
// Application names: 1 to 31 characters, letters, digits, $, - and _.
bool validAppName(std::wstring_view name);

// The section, made empty in its place among the others when the drawing has none.
void ensureSection(Database& db, SectionKind kind);
// The table, made (with a TABLES section when there is none) when the drawing has none.
Table& ensureTable(Database& db, std::string_view upperName);
// Adds an entry with its fields (name first); drawings of R13 and later get the handle,
// the owner and the subclass markers an entry has there.
uint32_t addTableEntry(Database& db, std::string_view upperName, const GroupList& fields);
// The linetype Continuous, made when the drawing lacks it.
void ensureContinuous(Database& db);
// The layer of that name, made with colour 7 and linetype Continuous when missing; kNone
// for a name that cannot be a layer's.
uint32_t ensureLayer(Database& db, std::wstring_view name);

// Rewrites a record's own groups through edit, keeping its extended data.
void editRecord(Database& db, uint32_t index, const std::function<void(GroupList&)>& edit);
// Replaces the first group with g's code, or adds g at the end.
void setGroup(GroupList& groups, const Group& g);

// Linetype names that need no table entry.
bool isByName(std::wstring_view name);

}  // namespace host::db
