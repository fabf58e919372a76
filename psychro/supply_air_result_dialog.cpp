#include "psychro/supply_air_result_dialog.h"

#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "frame/tile_numbers.h"
#include "psychro/journal_entries.h"
#include "psychro/supply_air_report.h"

namespace vrn2 {
namespace {

constexpr wchar_t kResultDialog[] = L"gscalres";
constexpr wchar_t kCannotCreateFile[] = L"不能创建存放结果的文件.";
constexpr wchar_t kSaved[] = L"\n结果已存在文件gscal.txt中.";
constexpr wchar_t kOnlyFlowAndTemp[] = L"只能求出送风量与送风温度";

struct ShownResult {
    const SupplyAirInput* input;
    const SupplyAirResult* result;
};

std::wstring tileText(ads_hdlg dialog, const wchar_t* key) {
    std::wstring text;
    readTileText(dialog, key, TILE_STR_LIMIT - 1, text);
    return text;
}

// "saveres": the file gets exactly the texts the user sees; the dialog closes once they are
// saved, so that one press gives one block.
void saveShownResult(ads_callback_packet* packet) {
    const auto* shownResult = static_cast<const ShownResult*>(packet->client_data);
    if (!shownResult) return;
    SupplyAirShown shown;
    shown.G = tileText(packet->dialog, L"Ga");
    shown.t = tileText(packet->dialog, L"t_value");
    shown.d = tileText(packet->dialog, L"d_value");
    shown.fy = tileText(packet->dialog, L"rh_value");
    shown.i = tileText(packet->dialog, L"i_value");
    shown.ts = tileText(packet->dialog, L"ts_value");
    shown.complete = shownResult->result->complete;
    if (!appendSupplyAirReport(kSupplyAirResultFile, *shownResult->input, shown)) {
        acedAlert(kCannotCreateFile);
        return;
    }
    recordCalculation(supplyAirEntry(*shownResult->input, *shownResult->result));
    acutPrintf(kSaved);
    ads_done_dialog(packet->dialog, DLGOK);
}

void fillResultTiles(ads_hdlg dialog, const SupplyAirResult& result) {
    showTileNumber(dialog, L"Ga", result.G, 4);
    showTileNumber(dialog, L"t_value", result.supply.t, 3);
    if (!result.complete) {
        ads_set_tile(dialog, L"error", kOnlyFlowAndTemp);
        return;
    }
    showTileNumber(dialog, L"ts_value", result.supply.ts, 3);
    showTileNumber(dialog, L"d_value", result.supply.d, 3);
    showTileNumber(dialog, L"i_value", result.supply.i, 3);
    showTileNumber(dialog, L"rh_value", result.supply.fy, 3);
}

}  // namespace

void showSupplyAirResult(int dclId, const SupplyAirInput& in, const SupplyAirResult& result) {
    DialogSession dialogs(dclId);
    if (!dialogs.create(kResultDialog, {Channel::Alert, kMsgCannotCreateDialog})) return;
    fillResultTiles(dialogs.dialog(), result);
    ShownResult shown{&in, &result};
    dialogs.action(L"saveres", saveShownResult, &shown);
    dialogs.run();
}

}  // namespace vrn2
