// "c:schlp": the help of the coil check, a text a designer reads before a check.
#include "coil/coil_handlers.h"
#include "coil/cooler_dialog_files.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"

namespace vrn2 {

int coolerHelp() {
    DialogSession dialogs(kCoolerDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    if (!dialogs.create(L"zat_help", {Channel::Alert, kCannotShowDialog})) return RTERROR;
    dialogs.run();
    return RTNORM;
}

}  // namespace vrn2
