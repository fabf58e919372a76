// Reading the editor's system variables.
#pragma once

#include <string>

namespace vrn2 {

// The value of a text system variable (CLAYER, CECOLOR, ...); empty when it cannot be read or
// is not text.
std::wstring textVariable(const wchar_t* name);

}  // namespace vrn2
