// The semantic audit of a dialog: every active tile has a key, keys are unique, and radio
// buttons sit in a radio cluster.
#pragma once

#include "host/dcl/problem.h"
#include "host/dcl/tile.h"

namespace host::dcl {

// Appends the dialog's problems; a fault in a tile the host wrote is placed at the dialog.
void auditDialog(const Tile& dialog, std::vector<Problem>& problems);

}  // namespace host::dcl
