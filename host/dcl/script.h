// Headless operation of a started dialog: the batch of actions queued for its name is applied
// in order until the dialog ends or the batch runs out.
#pragma once

#include "host/dcl/dialog.h"

namespace host::dcl {

void applyScript(Dialog& dialog);

}  // namespace host::dcl
