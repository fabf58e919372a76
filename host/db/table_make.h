// acdbEntMake of a table record (LAYER, LTYPE, STYLE, APPID): the record joins its table.
#pragma once

#include <string>

#include "host/db/database.h"
#include "host/db/group_values.h"

namespace host::db {

bool isMadeAsTableRecord(const std::string& upperType);
// 0 when the record was added, else the ERRNO value: a missing or bad name, a name the table
// already holds, a layer's linetype the drawing lacks.
short makeTableRecord(Database& db, const std::string& upperType, const GroupList& data);

}  // namespace host::db
