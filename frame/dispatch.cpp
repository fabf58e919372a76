#include "frame/dispatch.h"

#include "acedads.h"
#include "frame/boundary.h"
#include "frame/function_table.h"

namespace vrn2 {

int registerFunctions() {
    for (int code = 1; code <= kFunctionCount; ++code) {
        // A zero answer stops the loop; other failures do not.
        if (acedDefun(kFunctionTable[code].name, static_cast<short>(code)) == 0) return RTERROR;
    }
    return RTNORM;
}

void unregisterFunctions() {
    for (int code = 1; code <= kFunctionCount; ++code)
        acedUndef(kFunctionTable[code].name, static_cast<short>(code));
}

int dispatchInvocation() {
    acedRetVoid();
    int code = acedGetFunCode();
    // The bound is one past the last slot; code 63 is never registered, so never arrives.
    if (code < 1 || code > kFunctionCount + 1) return RTERROR;
    // Code 63 passes the bound but has no slot in the table: nothing to call.
    Handler handler = code <= kFunctionCount ? kFunctionTable[code].handler : nullptr;
    if (!handler) return RTERROR;
    return runHandler(kFunctionTable[code].name, handler);
}

int runHandler(const ACHAR* name, Handler handler) {
    return guarded(name, RSERR, [&] { return handler() == RTNORM ? RSRSLT : RSERR; });
}

}  // namespace vrn2
