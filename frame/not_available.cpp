// Functions of the table that this version does not provide say so plainly and fail.
#include "acedads.h"
#include "acutads.h"
#include "frame/function_table.h"
#include "frame/not_available.h"

namespace vrn2 {

int reportNotAvailable(int code) {
    acutPrintf(L"\n%ls is not available in this version.\n", kFunctionTable[code].name);
    return RTERROR;
}

}  // namespace vrn2
