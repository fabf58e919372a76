// Entity lists as acdbEntGet and acdbEntGetX give them, and the extended data of a record
// split by application.
#pragma once

#include <string>
#include <vector>

#include "adsdef.h"
#include "host/db/database.h"
#include "host/db/group_values.h"

namespace host::db {

// One application's extended data: its 1001 group and the groups up to the next 1001.
struct XdataBlock {
    std::wstring app;
    GroupList groups;  // without the 1001 group
};

std::vector<XdataBlock> splitXdata(const GroupList& xdata);
void joinXdata(const std::vector<XdataBlock>& blocks, GroupList& xdata);

// -1 name, 0 type, the record's groups, then, when apps is given, -3 and the extended data
// of the applications matching any of the patterns (no -3 when none matches). Null when
// memory runs out.
resbuf* entityList(const Database& db, uint32_t index, const std::vector<std::wstring>* apps);

// The list of the next entity record after pos in a space's or block's list; kNone at the end.
uint32_t nextLive(const Database& db, const std::vector<uint32_t>& list, size_t from);

// The entity list a record belongs to (model/paper space or a block definition).
const std::vector<uint32_t>& listOf(const Database& db, const Record& r);

}  // namespace host::db
