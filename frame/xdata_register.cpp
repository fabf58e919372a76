#include "acdbads.h"
#include "frame/rblist.h"
#include "frame/xdata.h"

namespace vrn2 {

bool ensureApplicationRegistered(const ACHAR* application) {
    RbList entry(acdbTblSearch(L"APPID", application, 0));
    return entry || acdbRegApp(application) == RTNORM;
}

}  // namespace vrn2
