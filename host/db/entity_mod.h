// Changing an entity from an entity list (acdbEntMod).
#pragma once

#include "adsdef.h"
#include "host/db/database.h"

namespace host::db {

// RTNORM; RTERROR for a bad or deleted name; RTREJ with ERRNO set for data it refuses.
int modifyEntity(Database& db, const resbuf* list);

}  // namespace host::db
