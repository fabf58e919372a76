// The handlers of the surface-cooler AutoLISP functions, one per function of the table.
#pragma once

namespace vrn2 {

int coolerCheck();           // "c:sccal"
int coolerDatabaseEditor();  // "c:scinfo"
int coolerHelp();            // "c:schlp"

}  // namespace vrn2
