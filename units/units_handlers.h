// The handlers of the unit conversion AutoLISP functions.
#pragma once

namespace vrn2 {

int unitConversion();  // "c:UnitConv"

}  // namespace vrn2
