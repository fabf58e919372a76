// DCL `action` attributes: AutoLISP expressions handed to the console's evaluator when it has
// installed one, and recorded in the dialog's record otherwise.
#pragma once

#include "host/dcl/dialog.h"

namespace host::dcl {

void runLispAction(Dialog& dialog, int index, int reason);

}  // namespace host::dcl
