// Makes a polyline of a path with the current properties: a light-weight polyline, with one
// constant width (group 43) when every segment has the same width and widths per vertex
// otherwise; an old-style POLYLINE with its VERTEX entities in drawings of R12.
#pragma once

#include "host/commands/break_geometry.h"

namespace host::cmd {

// The status of acdbEntMake.
int makePolyline(const Path& path);

}  // namespace host::cmd
