// Groups as result buffers and back: the entity lists of acdbEntGet and acdbEntMod.
#pragma once

#include "adsdef.h"
#include "host/db/group_values.h"

namespace host::db {

// A new node for the group; null when memory runs out.
resbuf* groupToResbuf(const Database& db, const Group& g);
// Appends nodes for the groups at *tail; false when memory runs out.
bool appendGroups(const Database& db, const GroupList& groups, resbuf**& tail);
// The group a node carries; false for a node whose code is no group code or whose entity
// name belongs to another drawing.
bool resbufToGroup(const Database& db, const resbuf* rb, Group& g);

}  // namespace host::db
