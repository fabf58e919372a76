#include "host/db/api_support.h"

#include "host/db/sysvars.h"
#include "host/session.h"

namespace host::db {
namespace {

struct CurrentDrawing {
    Database* database = nullptr;
};

}  // namespace

Database* currentDb() { return sessionPart<CurrentDrawing>().database; }

void setCurrentDb(Database* db) { sessionPart<CurrentDrawing>().database = db; }

SysVars* currentVariables() {
    Database* db = currentDb();
    return db ? db->sysvars() : nullptr;
}

void setErrno(short value) {
    if (SysVars* vars = currentVariables()) vars->setShort(L"ERRNO", value);
}

}  // namespace host::db
