// How the airstate tool shows one solved state: a readable table, or one JSON object.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "psychro/airstate/airstate.h"
#include "psychro/airstate/tool/solver_choice.h"

namespace airstate_tool {

struct Outcome {
    const SolverChoice* solver;
    unsigned givenFields;
    AirState state;
    int status;                        // RTNORM or RTERROR
    std::vector<std::wstring> alerts;  // alert texts the solver raised, in order
};

// The eleven fields with units, the solver's status and its alerts.
void WriteTable(std::FILE* out, const Outcome& outcome);

// {"solver":..., "B":..., ..., "db":..., "status":..., "alerts":[...]}: numbers with 17
// significant digits, so that they read back to the same doubles; NaN and infinities as null.
void WriteJson(std::FILE* out, const Outcome& outcome);


}  // namespace airstate_tool
