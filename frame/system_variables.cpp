#include "frame/system_variables.h"

#include <cstdlib>

#include "acedads.h"
#include "adscodes.h"

namespace vrn2 {

std::wstring textVariable(const wchar_t* name) {
    resbuf rb;
    if (acedGetVar(name, &rb) != RTNORM || rb.restype != RTSTR || !rb.resval.rstring) return {};
    std::wstring value = rb.resval.rstring;
    std::free(rb.resval.rstring);
    return value;
}

}  // namespace vrn2
