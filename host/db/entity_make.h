// Making entities from entity lists (acdbEntMake), and adding prepared records.
#pragma once

#include <vector>

#include "adsdef.h"
#include "host/db/entmake_state.h"

namespace host::db {

// RTNORM, or RTREJ with ERRNO set when the list does not make an entity.
int makeEntity(Database& db, const resbuf* list);

// Adds records in order with fresh handles: the entity records to list (with their places),
// subentities owned by the entity before them, the others by owner.
std::vector<uint32_t> commitDrafts(Database& db, const std::vector<DraftRecord>& drafts,
                                   std::vector<uint32_t>& list, uint32_t block, uint64_t owner);

}  // namespace host::db
