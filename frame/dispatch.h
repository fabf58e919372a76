// Registration of the function table in a drawing's AutoLISP and dispatch of its calls.
#pragma once

#include "AdAChar.h"

namespace vrn2 {

// Defines codes 1 to 62 in order; stops at the first acedDefun that answers 0.
// RTNORM when all were defined, RTERROR when the loop stopped.
int registerFunctions();
// Undefines codes 1 to 62 in order, ignoring the results.
void unregisterFunctions();
// Runs the handler of the invoked function: RSRSLT when it answered RTNORM, RSERR otherwise.
int dispatchInvocation();
// Runs HANDLER as the function NAME: RSRSLT when it answered RTNORM, RSERR otherwise, and
// RSERR with the error shown when an exception left it.
int runHandler(const ACHAR* name, int (*handler)());

}  // namespace vrn2
