// The colour and line weight an entity is drawn with: its own, its layer's, or the block
// reference's it is drawn inside.
#pragma once

#include <cstdint>
#include <optional>

#include "host/db/group_values.h"

namespace host::render {

struct Pen {
    int colour = 7;      // ACI index
    int lineweight = 25; // hundredths of a millimetre
};

constexpr int kDefaultLineweight = 25;

// The pen of an entity with the groups G drawn inside a block reference with OUTER (the
// reference's own pen: what BYBLOCK takes), or at the top with OUTER empty. Empty when the
// entity's layer is off or frozen.
std::optional<Pen> entityPen(const db::Database& db, const db::GroupList& g, const std::optional<Pen>& outer);

}  // namespace host::render
