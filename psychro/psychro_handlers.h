// The handlers of the psychrometric AutoLISP functions, one per function of the table.
#pragma once

namespace vrn2 {

// Supply air, and viewing and deleting the result files of the calculations
int supplyAirCalculation();    // "c:gscal"
int deleteSupplyAirResults();  // "c:gsdelres"
int viewSupplyAirResults();    // "c:gsv_res"
int viewStatePointResults();   // "c:v_res"
int viewCoolerResults();       // "c:scv_res"
int processResults();          // "c:q_res": the process results file, or the calculation report
int deleteCoolerResults();     // "c:scdelres"

// Psychrometric state point and air mixing
int statePoint();  // "c:ci_dt"
int airMix();      // "c:airmix"

// Air-handling processes
int airProcess();  // "c:constp"

// The i-d chart and the table of state points on it
int drawIdChart();           // "c:crti_dt"
int idChartHelp();           // "c:i_dhlp"
int drawStatePointTable();   // "c:crti_dtbl"
int viewStatePointTable();   // "c:vi_dtbl"

// Return-air systems
int returnAirSystem();  // "c:retair"

}  // namespace vrn2
