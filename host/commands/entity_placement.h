// Moves an entity list of a block's entity to where a block reference places it (see
// block_placement.h): its points, sizes and angles. INSERT places attribute definitions so;
// EXPLODE all the entities of the block.
#pragma once

#include <string>

#include "host/commands/block_placement.h"
#include "host/commands/command_support.h"

namespace host::cmd {

// False, leaving the list unchanged, for an entity of a type this cannot place or one
// standing on another plane than the XY plane.
bool placeEntity(resbuf* list, const Placement& p);

// The direction an angle of the block takes once placed.
double placeAngle(const Placement& p, double angle);

}  // namespace host::cmd
