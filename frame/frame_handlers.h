// The handlers of the frame's own AutoLISP functions, one per function of the table.
#pragma once

namespace vrn2 {

// Installation paths and environment
int getSysPath();        // "_Xgetsyspath"
int getVrnResultA();     // "XGetVrA"
int getVrnResultB();     // "XGetVrB"
int setDialogFont();     // "_SetDlgFont"
int drawHanzi();         // "t:draw-hz"
int viewCorners();       // "_Xscjx"

// Extended data
int attachXdataFunction();  // "_kzsj1"
int readXdataFunction();    // "_kzsj2"
int xdataByCode();          // "work2"

}  // namespace vrn2
