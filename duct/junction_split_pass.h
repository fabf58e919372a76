// The preparation pass before a trace: network lines are broken where another network line's
// end touches their interior, so that every junction is a joint of line ends.
#pragma once

#include <string>

#include "frame/host_commands.h"

namespace vrn2::duct {

// Breaks the LINEs of LAYER in model space with the BREAK command. The piece at a line's
// first point keeps the line's handle and all its extended data; each new piece keeps only the
// duct size ("K_DUCT_SIZE"): the fittings' ξ, the duct number, the main-path mark and the
// results file name stay on one piece so that nothing is counted twice or named twice, and
// flows and losses are written again by the next trace and calculation. False when a BREAK
// failed.
bool splitLinesAtJunctions(HostCommands& commands, const std::wstring& layer);

}  // namespace vrn2::duct
