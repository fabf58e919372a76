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

// Extended data
int attachXdataFunction();  // "_kzsj1"
int readXdataFunction();    // "_kzsj2"
int xdataByCode();          // "work2"

// Supply air, and viewing and deleting the result files of the calculations
int supplyAirCalculation();    // "c:gscal"
int deleteSupplyAirResults();  // "c:gsdelres"
int viewSupplyAirResults();    // "c:gsv_res"
int viewStatePointResults();   // "c:v_res"
int viewCoolerResults();       // "c:scv_res"
int deleteCoolerResults();     // "c:scdelres"

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
