// Module-wide values that live as long as the module.
#pragma once

#include "windows.h"

namespace vrn2 {

// The modeless unit-conversion window, null until it is created.
extern HWND g_unitConversionWindow;

}  // namespace vrn2
