// The module's table of AutoLISP functions: a function's code is its slot number.
#pragma once

#include "AdAChar.h"

namespace vrn2 {

using Handler = int (*)();

struct FunctionEntry {
    const ACHAR* name;  // registered exactly as written, case included
    Handler handler;
};

inline constexpr int kFunctionCount = 62;  // slots 1 to 62; slot 0 is never registered
extern const FunctionEntry kFunctionTable[kFunctionCount + 1];

}  // namespace vrn2
