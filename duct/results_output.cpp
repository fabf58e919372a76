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

std::wstring fromUtf8(const std::string& bytes) {
    std::wstring text;
    for (size_t i = 0; i < bytes.size();) {
        unsigned char c = static_cast<unsigned char>(bytes[i]);
        int extra = c < 0x80 ? 0 : c < 0xE0 ? 1 : c < 0xF0 ? 2 : 3;
        char32_t code = extra == 0 ? c : c & (0x3F >> extra);
        for (int k = 1; k <= extra && i + k < bytes.size(); ++k) code = (code << 6) | (bytes[i + k] & 0x3F);
        text += static_cast<wchar_t>(code);
        i += 1 + extra;
    }
    return text;
}

std::wstring outfilePath(const DuctNetwork& network) {
    ads_name root;
    if (!network.held() || acdbHandEnt(network.segments[0].handle.c_str(), root) != RTNORM) return L"";
    std::wstring path = readXdataText(root, L"outfile").value_or(L"");
    return path.substr(0, kOutfileChars);
}

}  // namespace

void writeResultsFile(const DuctNetwork& network, double total) {
    std::string bytes = ductResultsText(network, total);
    std::wstring path = outfilePath(network);
    FileHandle file(path.c_str(), L"wb");
    if (path.empty() || !file.get() || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
        acutPrintf(L"\n无法创建保存结果的文件.");
    }
}

void showResults(const DuctNetwork& network, double total) {
    DialogSession dialogs(L"dwglib\\k-sljs.dcl", {Channel::Alert, L"\n不能装载对话框文件K-SLJS.DCL.."});
    if (!dialogs.create(L"k_sljs_res", {Channel::Alert, L"不能显示K_SLJS_RES对话框."})) return;
    wchar_t line[128];
    std::swprintf(line, 128, L"最不利环路阻力为ΔP=%.4lf Pa", total);
    ads_set_tile(dialogs.dialog(), L"k_sljs_res", line);
    ads_start_list(dialogs.dialog(), L"duct_size_res", 3, 0);
    for (const std::wstring& text : splitLines(fromUtf8(ductResultsText(network, total)))) {
        if (!text.empty()) ads_add_list(text.c_str());
    }
    ads_end_list();
    dialogs.run();
}

}  // namespace vrn2::duct
