// The results of a calculation: the results file named on the root duct and the results
// dialog.
#pragma once

#include "duct/duct_segment.h"

namespace vrn2::duct {

// Writes the results file at the path of the root duct's "outfile" (at most 80 characters);
// tells the user when it cannot be created.
void writeResultsFile(const DuctNetwork& network, double total);
void showResults(const DuctNetwork& network, double total);

}  // namespace vrn2::duct
