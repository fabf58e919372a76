// Opening a dialog of the suite: the DCL file under the installation root, then the dialog.
#pragma once

#include "adsdlg.h"

namespace vrn2 {

// Loads root + relativeFile and creates dialog NAME. On failure reports "Unable open dialogue
// box\n" through acdbFail, unloads what it loaded and answers false.
bool openSuiteDialog(const wchar_t* relativeFile, const wchar_t* dialogName, int& dclId,
                     ads_hdlg& dialog, CLIENTFUNC defaultAction = NULLCB);

}  // namespace vrn2
