// Steps shared by the state solvers.
#pragma once

#include "adscodes.h"
#include "psychro/airstate/airstate.h"

namespace airstate {

// Total pressure in Pa from the record's B in kPa.
inline double PressureOf(const AirState& state) { return 1000.0 * state.B; }

// Dew point, °C, of air with moisture content d_gkg: the vapour pressure is recomputed from d.
inline double DewPointFromMoisture(double d_gkg, double P_Pa) {
    return DewPointFromPressure(VapourPressureFromMoisture(d_gkg, P_Pa));
}

// The closing check of every solver, first failure wins: humidity over 100 % (or undefined),
// saturation pressure above the total pressure, negative moisture content.
inline int ValidateState(const AirState& state, double P_Pa) {
    if (!(state.fy <= 100.0)) return RTERROR;
    if (state.pb > P_Pa) return RTERROR;
    if (state.d < 0.0) return RTERROR;
    return RTNORM;
}

}  // namespace airstate
