// The confirmation dialog "delwarming": "ok" deletes the result file, any other way out keeps it.
#include <string>

#include "acedads.h"
#include "adsdlg.h"
#include "frame/paths.h"
#include "psychro/result_files.h"
#include "wchar_io.h"

namespace vrn2 {
namespace {

constexpr wchar_t kConfirmDialog[] = L"delwarming";
constexpr wchar_t kCannotLoad[] = L"不能装载对话框.";
constexpr wchar_t kCannotShow[] = L"不能显示对话框.";

void deleteConfirmed(ads_callback_packet* packet) {
    // A file that is already gone is no error: there is simply nothing to delete.
    if (const auto* resultFile = static_cast<const wchar_t*>(packet->client_data)) _wunlink(resultFile);
    ads_done_dialog(packet->dialog, DLGOK);
}

}  // namespace

int deleteResultFile(const ResultFileCommand& command) {
    if (!loadInstallRoot()) return RTERROR;
    std::wstring path = suitePath(command.dialogFile);
    int dclId = -1;
    if (ads_load_dialog(path.c_str(), &dclId) != RTNORM || dclId < 0) {
        acedAlert(kCannotLoad);
        return RTERROR;
    }
    ads_hdlg dialog = nullptr;
    if (ads_new_dialog(kConfirmDialog, dclId, NULLCB, &dialog) != RTNORM || dialog == BAD_DIALOG) {
        acedAlert(kCannotShow);
        ads_unload_dialog(dclId);
        return RTERROR;
    }
    ads_action_tile(dialog, L"ok", deleteConfirmed);
    ads_client_data_tile(dialog, L"ok", const_cast<wchar_t*>(command.resultFile));
    int status = DLGCANCEL;
    ads_start_dialog(dialog, &status);
    ads_unload_dialog(dclId);
    return RTNORM;
}

}  // namespace vrn2
