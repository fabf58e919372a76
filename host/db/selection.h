// Selection by the modes of acedSSGet, for acedSSGet itself and for host commands that select
// as the editor does.
#pragma once

#include <functional>
#include <vector>

#include "adsdef.h"
#include "host/db/selection_filter.h"

namespace host::db {

// The user's pick of one entity for the interactive mode: RTNORM with its name, or the status
// the selection answers (RTCAN when nothing was picked, RTREJ while a dialog is open).
using PickEntity = std::function<int(ads_name picked)>;

// RTNORM with the entities selected (possibly none); RTERROR for modes that lack their
// points; for the interactive mode, what PICK answered (RTCAN without one).
int selectEntities(Database& db, const ACHAR* str, const void* pt1, const void* pt2,
                   const SelectionFilter& filter, std::vector<uint32_t>& members,
                   const PickEntity& pick = {});

// Makes a new selection set of MEMBERS, which also become the previous selection: RTNORM
// with its name, or RTERROR (ERRNO set) when no more sets can be made.
int storeSelection(Database& db, const std::vector<uint32_t>& members, ads_name ss);

}  // namespace host::db
