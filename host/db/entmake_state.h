// What acdbEntMake has been given of a complex entity or a block definition that is not
// complete yet: a POLYLINE and its VERTEX records until SEQEND, an INSERT and its ATTRIB
// records until SEQEND, a BLOCK and its entities until ENDBLK.
#pragma once

#include <string>
#include <vector>

#include "host/db/database.h"

namespace host::db {

struct DraftRecord {
    std::string type;
    std::string groups;  // without handle and owner: they are given when it is added
    RecordKind kind = RecordKind::Entity;
};

struct EntMakeState {
    std::vector<DraftRecord> complex;  // the header first, then its subentities
    bool inBlock = false;
    DraftRecord blockBegin;
    std::vector<DraftRecord> blockEntities;
    void clearComplex() { complex.clear(); }
    void clearAll() {
        complex.clear();
        inBlock = false;
        blockBegin = DraftRecord{};
        blockEntities.clear();
    }
};

}  // namespace host::db
