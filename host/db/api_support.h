// What the host interface functions share: the current drawing and the ERRNO variable.
#pragma once

#include "host/db/database.h"

namespace host::db {

// The database of the current document; null when no document is open. The runtime keeps
// it in step with its current document (setCurrentDb); the interface functions of this layer
// work on it.
Database* currentDb();
void setCurrentDb(Database* db);
// The system variables of the current document; null when no document is open.
SysVars* currentVariables();

// Error numbers of the ERRNO system variable.
enum Errno : short {
    kErrBadSymbolName = 1,
    kErrBadName = 2,
    kErrTooManySets = 3,
    kErrBadSet = 4,
    kErrEndOfEntities = 8,
    kErrNoLastEntity = 10,
    kErrBadHandle = 13,
    kErrHandlesOff = 14,
    kErrDeletedEntity = 17,
    kErrBadTableName = 18,
    kErrBadTableArgument = 19,
    kErrChangeType = 24,
    kErrBadLayer = 25,
    kErrBadLinetype = 26,
    kErrBadColor = 27,
    kErrBadStyle = 28,
    kErrBadField = 30,
    kErrModifyDeleted = 31,
    kErrModifySeqend = 32,
    kErrChangeHandle = 33,
    kErrBadEntityType = 36,
    kErrBadPolyline = 37,
    kErrIncompleteComplex = 38,
    kErrBadBlockName = 39,
    kErrMissingBlockName = 43,
    kErrBadBlockDefinition = 46,
    kErrMissingField = 47,
    kErrBadXdataType = 48,
    kErrBadXdataNesting = 49,
    kErrBadAppId = 50,
    kErrXdataTooBig = 51,
    kErrDuplicateAppId = 53,
    kErrFilterEnd = 56,
    kErrFilterOperand = 57,
    kErrFilterOpcode = 58,
    kErrFilterNesting = 59,
    kErrFilterMismatch = 60,
    kErrFilterArgCount = 61,
    kErrFilterDepth = 62,
    kErrFilterCode = 63,
    kErrFilterString = 64,
    kErrFilterVector = 65,
    kErrFilterReal = 66,
    kErrFilterInteger = 67,
    kErrNullPointer = 72,
};

void setErrno(short value);

}  // namespace host::db
