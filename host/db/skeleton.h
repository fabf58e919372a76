// The DXF text of a new, empty drawing.
#pragma once

#include <string_view>

namespace host::db {

std::string_view newDrawingDxf();

}  // namespace host::db
