// Checks of entity data shared by acdbEntMake and acdbEntMod: layers (made when missing),
// linetypes, colours, text styles, block names and normal vectors.
#pragma once

#include <string_view>

#include "host/db/group_values.h"

namespace host::db {

class Database;

// 0 when the groups are acceptable, else the ERRNO value. A layer that does not exist is
// accepted when its name is valid; makeNamedLayers makes it, as the editor does, once the
// entity is made or changed: a refused change leaves the layer table alone.
short checkProperties(Database& db, std::string_view type, const GroupList& groups);
void makeNamedLayers(Database& db, const GroupList& groups);

// The current layer (CLAYER) of the current document; "0" without one.
std::wstring currentLayer();

}  // namespace host::db
