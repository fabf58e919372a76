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

// {"solver":..., "B":..., ..., "db":..., "status":..., "alerts":[...]}: numbers in the shortest
// form that reads back to the same double; fields the solver does not write, NaN and
// infinities as null.
void WriteJson(std::FILE* out, const Outcome& outcome);

// Why the solvers refuse the state, in their order of checks: fy above 100 (or NaN), then pb
// above the atmospheric pressure, then d below 0.
std::string ImpossibleReason(const AirState& state);


}  // namespace airstate_tool
