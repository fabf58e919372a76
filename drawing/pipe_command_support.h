// Pieces the pipe commands share: failing with a message, and selecting the pipes of a kind
// in the whole drawing within the entity limit.
#pragma once

#include "adsdef.h"
#include "frame/selection_set.h"

namespace vrn2 {

inline constexpr long kMaxPipeEntities = 1500;

// Reports MESSAGE through acdbFail and answers RTERROR.
int failWith(const ACHAR* message);

// Selects every entity of TYPE on a layer matching LAYERS. False, after printing
// "Too Many Entities( > 1500) !!", when there are more than the limit; an empty drawing gives
// an empty set and true.
bool selectPipes(SelectionSet& set, const ACHAR* type, const ACHAR* layers);

// Mode 1 of pzjc: the gaps cut at the crossings of polyline pipes, radius RADIUS.
int breakCrossings(double radius);

}  // namespace vrn2
