// The result dialog of the supply-air calculation, and saving what it shows.
#pragma once

#include "psychro/supply_air.h"

namespace vrn2 {

// Shows "gscalres" from the loaded dialog file DCLID over the calculation dialog; its "saveres"
// button appends the shown figures to "gscal.txt". Alerts when the dialog cannot be created.
void showSupplyAirResult(int dclId, const SupplyAirInput& in, const SupplyAirResult& result);

}  // namespace vrn2
