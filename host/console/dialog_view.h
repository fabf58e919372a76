// A closed dialog as a person saw it last: its title, then its tiles with their labels and
// values in layout order, for `adscon --show-dialogs`.
#pragma once

#include <string>

#include "host/dcl/dcl.h"

namespace host::console {

std::wstring dialogView(const dcl::DialogRecord& dialog);

}  // namespace host::console
