#include "frame/dialog_open.h"

#include <string>

#include "acdbads.h"
#include "frame/messages.h"
#include "frame/paths.h"

namespace vrn2 {

bool openSuiteDialog(const wchar_t* relativeFile, const wchar_t* dialogName, int& dclId,
                     ads_hdlg& dialog, CLIENTFUNC defaultAction) {
    dialog = nullptr;
    std::wstring path = suitePath(relativeFile);
    if (ads_load_dialog(path.c_str(), &dclId) != RTNORM || dclId < 0) {
        acdbFail(kMsgUnableOpenDialog);
        return false;
    }
    if (ads_new_dialog(dialogName, dclId, defaultAction, &dialog) != RTNORM || dialog == BAD_DIALOG) {
        ads_unload_dialog(dclId);
        acdbFail(kMsgUnableOpenDialog);
        return false;
    }
    return true;
}

}  // namespace vrn2
