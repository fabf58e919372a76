// Where a block reference puts the entities of its block: from the block's base point,
// scaled along X, Y and Z, turned about Z and moved to the insertion point. INSERT places
// its attributes with it and EXPLODE its block's entities, both through the one map of
// entity lists that the editing commands use.
#pragma once

#include "host/commands/entity_transform.h"

namespace host::cmd {

struct Placement {
    double base[3] = {0, 0, 0};  // the block's base point
    double at[3] = {0, 0, 0};    // the insertion point
    double scale[3] = {1, 1, 1};
    double rotation = 0.0;       // radians
};

inline Transform placingTransform(const Placement& p) {
    return Transform::placing(p.base, p.at, p.scale, p.rotation);
}

}  // namespace host::cmd
