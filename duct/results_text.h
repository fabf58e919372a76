// The text of the duct results file: the main path from the root down with each segment's
// loss, the main path's total, then the branches off the main path.
#pragma once

#include <string>

#include "duct/duct_segment.h"

namespace vrn2::duct {

// TOTAL is the sum of the main path's losses.
std::wstring ductResultsText(const DuctNetwork& network, double total);

}  // namespace vrn2::duct
