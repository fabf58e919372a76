// Compiled with the include path of the host's code: the host interface and the host's own
// headers are found. With REACH_ACROSS it also names a header of the module, which must not
// be found.
#include "acedads.h"
#include "host/session.h"
#ifdef REACH_ACROSS
#include "frame/rblist.h"
#endif

int hostWallProbe() { return RTNORM; }
