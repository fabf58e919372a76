// Showing the main path after a trace: its length in a dialog and its ducts recoloured.
#pragma once

#include "duct/duct_segment.h"
#include "frame/host_commands.h"

namespace vrn2::duct {

void showMainDuctLength(double length);
// Recolours the main path (green on a white layer, else white) and says which colour it is.
void recolourMainPath(HostCommands& commands, const DuctNetwork& network);

}  // namespace vrn2::duct
