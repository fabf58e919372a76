// What a user's operation of a tile does: the value changes, then the tile's action runs
// (action_tile, else the DCL action attribute, else the dialog's default callback), and the
// standard exit buttons end the dialog.
#pragma once

#include <string>
#include <string_view>

#include "host/dcl/dialog.h"

namespace host::dcl {

// Runs the action for tile INDEX with REASON; true when the tile (or, for a radio button
// without one, its cluster) has an action of its own.
bool runAction(Dialog& dialog, int index, int reason);

// The user's operations. Each answers "" when applied, or why it could not be.
std::wstring userPress(Dialog& dialog, int index);
std::wstring userSet(Dialog& dialog, int index, std::wstring_view value);
std::wstring userSelect(Dialog& dialog, int index, std::wstring_view indices);

}  // namespace host::dcl
