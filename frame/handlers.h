// The handlers of the function table, one per AutoLISP function.
#pragma once

namespace vrn2 {

// Installation paths and environment
int getSysPath();        // "_Xgetsyspath"
int getVrnResultA();     // "XGetVrA"
int getVrnResultB();     // "XGetVrB"
int setDialogFont();     // "_SetDlgFont"
int drawHanzi();         // "t:draw-hz"
int viewCorners();       // "_Xscjx"

// Psychrometric state point and air mixing
int statePoint();  // "c:ci_dt"
int airMix();      // "c:airmix"

// A function of the table that this version does not provide.
template <int Code>
int notAvailable();
int reportNotAvailable(int code);

template <int Code>
int notAvailable() {
    return reportNotAvailable(Code);
}

}  // namespace vrn2
