// Copying a string into a caller's buffer whose size counts the terminating NUL.
#pragma once

#include <algorithm>
#include <string_view>

#include "adscodes.h"
#include "AdAChar.h"

namespace host::dcl {

// At most LEN-1 characters and a NUL; RTERROR when there is no room even for the NUL.
inline int copyToBuffer(std::wstring_view text, ACHAR* out, int len) {
    if (!out || len <= 0) return RTERROR;
    size_t n = std::min(text.size(), static_cast<size_t>(len - 1));
    std::copy_n(text.begin(), n, out);
    out[n] = L'\0';
    return RTNORM;
}

}  // namespace host::dcl
