// c:q_res: the process results file qres.txt in the result viewer, or the calculation report
// written as a Word document. A small dialog asks which, and shows what there is to see: the
// report needs no result file, only calculations saved since the module was loaded.
#include <string>

#include "acedads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/file_handle.h"
#include "frame/messages.h"
#include "frame/tile_numbers.h"
#include "psychro/calculation_journal.h"
#include "psychro/calculation_report_file.h"
#include "psychro/id_chart.h"
#include "psychro/process_file.h"
#include "psychro/psychro_handlers.h"
#include "psychro/result_files.h"

namespace vrn2 {
namespace {

constexpr wchar_t kDialogFile[] = L"dwglib/qres.dcl";
constexpr ResultFileCommand kProcessResults{kProcessResultFile, kDialogFile, L"introduce4",
                                            L"\n不能显示V_RESDLG对话框."};
constexpr int kNameChars = 120;
// The choice dialog closes with these to view the file or to write the report.
constexpr int kStatusView = 4;
constexpr int kStatusReport = 5;

void onView(ads_callback_packet* packet) { ads_done_dialog(packet->dialog, kStatusView); }
void onReport(ads_callback_packet* packet) { ads_done_dialog(packet->dialog, kStatusReport); }

void onHelp(ads_callback_packet* packet) {
    DialogSession help(*static_cast<const int*>(packet->client_data));
    if (help.create(L"q_reshelp", {Channel::Alert, kMsgCannotShowDialog})) help.run();
}

void fillChoice(ads_hdlg dialog) {
    const bool hasFile = fileExists(kProcessResultFile);
    ads_set_tile(dialog, L"file_state", hasFile ? L"过程计算结果文件 qres.txt: 有" : L"过程计算结果文件 qres.txt: 没有");
    const std::wstring count = std::to_wstring(calculationJournal().size());
    ads_set_tile(dialog, L"journal_state", (L"可写入计算书的计算: " + count + L" 项").c_str());
    ads_set_tile(dialog, L"chart_state", idChart().drawn ? L"当前图形中的焓湿图: 有, 附入计算书"
                                                         : L"当前图形中的焓湿图: 没有");
}

// Asks for the choice; DLGCANCEL when the user closes the dialog.
int askChoice() {
    DialogSession dialogs(kDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return DLGCANCEL;
    if (!dialogs.create(L"q_resdlg", {Channel::Alert, kMsgCannotCreateDialog})) return DLGCANCEL;
    fillChoice(dialogs.dialog());
    int dclId = dialogs.dclId();
    dialogs.action(L"view", onView);
    dialogs.action(L"report", onReport);
    dialogs.action(L"help", onHelp, &dclId);
    return dialogs.run();
}

struct ReportName {
    std::wstring accepted;
    std::wstring warnedAbout;  // an existing file the user has been told would be replaced
};

// A name of an existing file is taken when "accept" is pressed again for it: a report the
// designer has since edited is not replaced by one press.
void onAcceptName(ads_callback_packet* packet) {
    auto* name = static_cast<ReportName*>(packet->client_data);
    clearInputError(packet->dialog);
    std::wstring typed;
    readTileText(packet->dialog, L"name", kNameChars, typed);
    const wchar_t* fault = nullptr;
    std::wstring fileName = reportFileName(typed, fault);
    if (fault) {
        showInputError(packet->dialog, fault, L"name");
        return;
    }
    if (fileExists(fileName.c_str()) && name->warnedAbout != fileName) {
        name->warnedAbout = fileName;
        showInputError(packet->dialog, (L"文件 " + fileName + L" 已存在: 再按\"生成\"替换它, 或改用别的文件名.").c_str(),
                       L"name");
        return;
    }
    name->accepted = fileName;
    ads_done_dialog(packet->dialog, DLGOK);
}

// The name of the report, asked in "q_report"; empty when the user cancels.
std::wstring askReportName() {
    DialogSession dialogs(kDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return L"";
    if (!dialogs.create(L"q_report", {Channel::Alert, kMsgCannotCreateDialog})) return L"";
    ads_set_tile(dialogs.dialog(), L"name", kDefaultReportName);
    ReportName name;
    dialogs.action(L"accept", onAcceptName, &name);
    return dialogs.run() == DLGOK ? name.accepted : L"";
}

}  // namespace

int processResults() {
    switch (askChoice()) {
        case kStatusView: return viewResultFile(kProcessResults);
        case kStatusReport: {
            const std::wstring name = askReportName();
            if (name.empty()) return RTNORM;
            return writeCalculationReport(name) ? RTNORM : RTERROR;
        }
        default: return RTNORM;
    }
}

}  // namespace vrn2
