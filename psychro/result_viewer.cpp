// The result list dialog "v_resdlg": one entry per read of the result file, and an
// explanation dialog behind "resintr".
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "adsdlg.h"
#include "frame/paths.h"
#include "psychro/result_files.h"
#include "wchar_io.h"

namespace vrn2 {
namespace {

constexpr wchar_t kListDialog[] = L"v_resdlg";
constexpr wchar_t kNoResults[] = L"没有保存结果.";
constexpr wchar_t kCannotLoad[] = L"\n不能装载对话框.";
constexpr wchar_t kCannotExplain[] = L"不能打开说明对话框.";

struct Explanation {
    int dclId;
    const wchar_t* dialog;
};

void showExplanation(ads_callback_packet* packet) {
    const auto* explanation = static_cast<const Explanation*>(packet->client_data);
    ads_hdlg dialog = nullptr;
    if (!explanation || ads_new_dialog(explanation->dialog, explanation->dclId, NULLCB, &dialog) != RTNORM ||
        dialog == BAD_DIALOG) {
        acdbFail(kCannotExplain);
        return;
    }
    int status = DLGCANCEL;
    ads_start_dialog(dialog, &status);
}

void fillList(ads_hdlg dialog, FILE* file) {
    ads_start_list(dialog, L"reslist", LIST_NEW, 0);
    for (const std::wstring& entry : readResultEntries(file)) ads_add_list(entry.c_str());
    ads_end_list();
}

// Runs the list dialog over the open result file; the file stays the caller's.
int runListDialog(const ResultFileCommand& command, FILE* file) {
    if (!loadInstallRoot()) return RTERROR;
    std::wstring path = suitePath(command.dialogFile);
    int dclId = -1;
    if (ads_load_dialog(path.c_str(), &dclId) != RTNORM || dclId < 0) {
        acdbFail(kCannotLoad);
        return RTERROR;
    }
    ads_hdlg dialog = nullptr;
    if (ads_new_dialog(kListDialog, dclId, NULLCB, &dialog) != RTNORM || dialog == BAD_DIALOG) {
        acdbFail(command.cannotShowMessage);
        ads_unload_dialog(dclId);
        return RTERROR;
    }
    fillList(dialog, file);
    Explanation explanation{dclId, command.explanationDialog};
    ads_action_tile(dialog, L"resintr", showExplanation);
    ads_client_data_tile(dialog, L"resintr", &explanation);
    int status = DLGCANCEL;
    ads_start_dialog(dialog, &status);
    ads_unload_dialog(dclId);
    return RTNORM;
}

}  // namespace

int viewResultFile(const ResultFileCommand& command) {
    FILE* file = _wfopen(command.resultFile, L"r");
    if (!file) {
        acedAlert(kNoResults);
        return RTERROR;
    }
    int status = runListDialog(command, file);
    std::fclose(file);
    return status;
}

}  // namespace vrn2
