#include "duct/results_output.h"

#include <cwchar>
#include <string>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "adsdlg.h"
#include "duct/duct_xdata.h"
#include "duct/results_text.h"
#include "frame/dialog_session.h"
#include "frame/file_handle.h"
#include "frame/text_file.h"

namespace vrn2::duct {
namespace {

constexpr size_t kOutfileChars = 80;

std::wstring outfilePath(const DuctNetwork& network) {
    ads_name root;
    if (!network.held() || acdbHandEnt(network.segments[0].handle.c_str(), root) != RTNORM) return L"";
    std::wstring path = readXdataText(root, L"outfile").value_or(L"");
    return path.substr(0, kOutfileChars);
}

}  // namespace

void writeResultsFile(const DuctNetwork& network, double total) {
    std::wstring path = outfilePath(network);
    FileHandle file(path.c_str(), L"w");
    bool written = file && std::fputws(ductResultsText(network, total).c_str(), file.get()) >= 0;
    if (!(file && file.close() && written)) acutPrintf(L"\n无法创建保存结果的文件.");
}

void showResults(const DuctNetwork& network, double total) {
    DialogSession dialogs(L"dwglib\\k-sljs.dcl", {Channel::Alert, L"\n不能装载对话框文件K-SLJS.DCL.."});
    if (!dialogs.create(L"k_sljs_res", {Channel::Alert, L"不能显示K_SLJS_RES对话框."})) return;
    wchar_t line[128];
    std::swprintf(line, 128, L"最不利环路阻力为ΔP=%.4lf Pa", total);
    ads_set_tile(dialogs.dialog(), L"k_sljs_res", line);
    ads_start_list(dialogs.dialog(), L"duct_size_res", 3, 0);
    for (const std::wstring& text : splitLines(ductResultsText(network, total))) {
        if (!text.empty()) ads_add_list(text.c_str());
    }
    ads_end_list();
    dialogs.run();
}

}  // namespace vrn2::duct
