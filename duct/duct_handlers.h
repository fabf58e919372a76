// The handlers of the duct AutoLISP commands, one per function of the table.
#pragma once

namespace vrn2 {

int traceDuctNetwork();      // "c:sssj"
int ductHydraulicCalc();     // "c:zljs"

}  // namespace vrn2
