// Reading the network layer's entities from the drawing into the trace's plain records.
#pragma once

#include <vector>

#include "duct/network_trace.h"
#include "frame/selection_set.h"

namespace vrn2::duct {

// Outlet blocks: "C" or "c", then "2" and two digits, a dash and a digit.
inline constexpr wchar_t kOutletPattern[] = L"[cC]2##-#";

// Every entity of SELECTION in its order: LINEs with their duct data, outlet INSERTs with
// their "F-LL" flow, anything else as Other.
std::vector<NetworkEntity> readNetworkEntities(const SelectionSet& selection);

}  // namespace vrn2::duct
