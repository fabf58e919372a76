#include "host/db/api_support.h"

#include "host/runtime/host.h"

namespace host::db {

Database* currentDb() {
    Host& host = Host::instance();
    return host.hasDocument() ? &host.current().database() : nullptr;
}

void setErrno(short value) {
    Host& host = Host::instance();
    if (host.hasDocument()) host.current().sysvars().setShort(L"ERRNO", value);
}

}  // namespace host::db
