// Where a block reference puts the entities of its block: from the block's base point,
// scaled along X, Y and Z, turned about Z and moved to the insertion point. INSERT places
// its attributes with it and EXPLODE its block's entities.
#pragma once

namespace host::cmd {

struct Placement {
    double base[3] = {0, 0, 0};  // the block's base point
    double at[3] = {0, 0, 0};    // the insertion point
    double scale[3] = {1, 1, 1};
    double rotation = 0.0;       // radians
};

// A point of the block in world coordinates.
void place(const Placement& p, const double in[3], double out[3]);
// Whether the plan scales are the same, so that circles stay circles.
bool uniformInPlan(const Placement& p);

}  // namespace host::cmd
