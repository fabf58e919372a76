// The confirmation dialog "delwarming": "ok" deletes the result file, any other way out keeps it.
#include <string>

#include "acedads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "psychro/result_files.h"
#include "wchar_io.h"

namespace vrn2 {
namespace {

constexpr wchar_t kConfirmDialog[] = L"delwarming";
constexpr wchar_t kCannotShow[] = L"不能显示对话框.";

void deleteConfirmed(ads_callback_packet* packet) {
    // A file that is already gone is no error: there is simply nothing to delete.
    if (const auto* resultFile = static_cast<const wchar_t*>(packet->client_data)) _wunlink(resultFile);
    ads_done_dialog(packet->dialog, DLGOK);
}

}  // namespace

int deleteResultFile(const ResultFileCommand& command) {
    DialogSession dialogs(command.dialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    if (!dialogs.create(kConfirmDialog, {Channel::Alert, kCannotShow})) return RTERROR;
    dialogs.action(L"ok", deleteConfirmed, const_cast<wchar_t*>(command.resultFile));
    dialogs.run();
    return RTNORM;
}

}  // namespace vrn2
