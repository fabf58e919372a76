// How each entity type the host can make is laid out in a DXF file: the groups that every
// entity has (AcDbEntity), then the groups of each subclass behind its marker, and which
// groups must be given.
#pragma once

#include <string_view>
#include <vector>

#include "host/db/group_values.h"

namespace host::db {

class Database;

struct Subclass {
    const char* marker;
    std::vector<int> codes;  // in the order they are written
};

struct EntitySchema {
    std::string_view type;
    std::vector<Subclass> subclasses;
    std::vector<int> required;
    bool keepOrder = false;  // vertex groups that repeat: written in the order given
};

const EntitySchema* entitySchema(std::string_view type);
bool isEntityCode(int code);  // a group of AcDbEntity: layer, linetype, colour ...

// The groups laid out for the drawing's version: AcDbEntity groups first, then each
// subclass (with its marker from R13 on). polylineFlags chooses the POLYLINE and VERTEX
// subclasses (3D, mesh, polyface). Groups of codes the schema does not list go last.
GroupList layoutEntity(const Database& db, const EntitySchema& schema, const GroupList& groups,
                       int polylineFlags);

// The subclass marker under which a code of the type is written, or null.
const char* subclassOf(const EntitySchema& schema, int code, int polylineFlags);

}  // namespace host::db
