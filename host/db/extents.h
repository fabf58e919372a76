// The extents of entities and of model space, for ZOOM and EXTMIN/EXTMAX.
#pragma once

#include "host/db/shapes.h"

namespace host::db {

// The plan box an entity covers; texts by an estimate of their size, inserts by their
// block's extents placed, scaled and turned as the insert says.
Box entityExtents(const Database& db, uint32_t index);
// The box of every entity of model space that is not deleted; not valid when there are none.
Box modelSpaceExtents(const Database& db);

}  // namespace host::db
