// The result list dialog "v_resdlg": one entry per read of the result file, and an
// explanation dialog behind "resintr".
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/file_handle.h"
#include "psychro/result_files.h"

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
    DialogSession dialogs(explanation ? explanation->dclId : -1);
    if (dialogs.create(explanation ? explanation->dialog : nullptr, {Channel::Fail, kCannotExplain})) dialogs.run();
}

void fillList(ads_hdlg dialog, FILE* file) {
    ads_start_list(dialog, L"reslist", LIST_NEW, 0);
    for (const std::wstring& entry : readResultEntries(file)) ads_add_list(entry.c_str());
    ads_end_list();
}

// Runs the list dialog over the open result file; the file stays the caller's.
int runListDialog(const ResultFileCommand& command, FILE* file) {
    DialogSession dialogs(command.dialogFile, {Channel::Fail, kCannotLoad});
    if (!dialogs.loaded()) return RTERROR;
    if (!dialogs.create(kListDialog, {Channel::Fail, command.cannotShowMessage})) return RTERROR;
    fillList(dialogs.dialog(), file);
    Explanation explanation{dialogs.dclId(), command.explanationDialog};
    dialogs.action(L"resintr", showExplanation, &explanation);
    dialogs.run();
    return RTNORM;
}

}  // namespace

int viewResultFile(const ResultFileCommand& command) {
    FileHandle file(command.resultFile, L"r");
    if (!file) return reportFailure({Channel::Alert, kNoResults});
    return runListDialog(command, file.get());
}

}  // namespace vrn2
