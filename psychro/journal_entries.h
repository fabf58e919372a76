// The journal entries of the state-point, supply-air and mixing calculations: what each
// dialog was given and what its result dialog showed, with the dialogs' names and units, and
// the states for the chart. Pure functions over plain values.
#pragma once

#include "psychro/air_mix.h"
#include "psychro/calculation_journal.h"
#include "psychro/state_point_choices.h"
#include "psychro/supply_air.h"

namespace vrn2 {

// A state of c:ci_dt: CHOICE 1..9 or kChoicePickedPoint, STATE as solved, OUTCOME as shown.
// An impossible state keeps its figures but is not a state of the chart.
JournalEntry statePointEntry(int choice, const AirState& state, StatePointOutcome outcome);

// A calculation of c:gscal.
JournalEntry supplyAirEntry(const SupplyAirInput& in, const SupplyAirResult& result);

// A mixture of c:airmix: the streams A and B at pressure B (kPa) and the mixture M as solved.
JournalEntry mixingEntry(const AirStream& a, const AirStream& b, const AirState& mixture, StatePointOutcome outcome);

}  // namespace vrn2
