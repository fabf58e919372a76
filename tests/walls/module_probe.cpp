// Compiled with the include path of the module's code: the host interface and the module's
// own headers are found. With REACH_ACROSS it also names a header of the host, which must not
// be found.
#include "acedads.h"
#include "frame/rblist.h"
#ifdef REACH_ACROSS
#include "host/runtime/host.h"
#endif

int moduleWallProbe() { return RTNORM; }
