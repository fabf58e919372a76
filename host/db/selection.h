// Selection by the modes of acedSSGet, for host commands that select as the editor does.
#pragma once

#include <vector>

#include "adsdef.h"
#include "host/db/selection_filter.h"

namespace host::db {

// RTNORM with the entities selected (possibly none); RTCAN for the interactive modes.
int selectEntities(Database& db, const ACHAR* str, const void* pt1, const void* pt2,
                   const SelectionFilter& filter, std::vector<uint32_t>& members);

}  // namespace host::db
