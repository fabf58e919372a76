// Supply air for a conditioned room: the supply mass flow and the supply-air state from the
// indoor design state, the cooling and moisture loads and the supply temperature difference.
// Pure numeric code over plain values; the dialog and the result file live elsewhere.
#pragma once

#include "psychro/airstate/airstate.h"

namespace vrn2 {

struct SupplyAirInput {
    double B = 101.325;         // atmospheric pressure, kPa
    double tn = 22.0;           // indoor dry-bulb temperature, °C
    double rhn = 60.0;          // indoor relative humidity, %
    double load = 11.6;         // cooling load, kW: total when totalLoad, sensible otherwise
    double w = 5.0;             // moisture load, kg/h
    double dt = 6.0;            // supply temperature difference, K
    bool totalLoad = true;      // toggle "q": the load is the total (sensible + latent) load
    bool moistureGiven = true;  // toggle "w": the moisture load is given
};

struct SupplyAirResult {
    double G = 0.0;         // supply-air mass flow, kg/h
    AirState indoor;        // the indoor design state N
    AirState supply;        // the supply state O; only B and t when not complete
    bool complete = false;  // the whole supply state is known, not only G and t
};

// Computes the supply air in one of three ways chosen by the toggles:
//   total load and moisture load: O on the line of heat-moisture ratio q/w through N;
//   sensible load and moisture load: G from the sensible heat, dO from the moisture balance;
//   sensible load only: G and the supply temperature, nothing else.
// A total load without a moisture load has no solution. Returns RTNORM, or RTERROR when no
// physical result comes out: G not a finite positive flow, or a supply state that is impossible
// (relative humidity over 100 %, a saturation pressure above the atmospheric pressure,
// negative moisture) or not finite. The indoor state's own status does not stop the
// calculation. OUT is written in every case.
int computeSupplyAir(const SupplyAirInput& in, SupplyAirResult& out);

// Moisture content, g/kg, of the point at temperature to_C on the straight line of slope
// e_kJg (kJ per g of moisture) through the state (dN_gkg, iN_kJkg) in the i-d plane.
double moistureOnProcessLine(double iN_kJkg, double dN_gkg, double e_kJg, double to_C);

}  // namespace vrn2
