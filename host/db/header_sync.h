// The drawing's header variables and its active viewport as the document's system variables:
// read into them when the document opens, written back from them when the drawing is saved
// (only those that changed, so that an unchanged drawing is saved as it was read).
#pragma once

#include <map>
#include <string>
#include <unordered_map>

#include "host/db/database.h"

namespace host {
class SysVars;
}

namespace host::db {

struct SaveOverrides {
    std::map<std::string, std::string> header;           // variable name: its groups
    std::vector<std::pair<std::string, std::string>> added;  // variables the header lacks
    std::unordered_map<uint32_t, std::string> records;   // record: its groups
};

void loadSysVars(const Database& db, SysVars& vars);
SaveOverrides changesToSave(const Database& db, const SysVars& vars);

// The view the host keeps in VIEWCTR and VIEWSIZE also gives the corners of the virtual
// screen (VSMIN, VSMAX).
void setViewVariables(SysVars& vars, const double centre[3], double height);

}  // namespace host::db
