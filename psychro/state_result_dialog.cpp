#include "psychro/state_result_dialog.h"

#include "acdbads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/tile_numbers.h"
#include "psychro/state_point_file.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgCannotShow[] = L"Unable displsy the dialog box.";
constexpr wchar_t kMsgImpossible[] = L"结果不合理.";
constexpr wchar_t kMsgSaved[] = L"\n结果已存在文件WAIR002.TXT中.";

double shownField(const AirState& s, int index) {
    const double fields[] = {s.t, s.pq, s.pb, s.ts, s.tl, s.d, s.fy, s.v, s.i};
    return fields[index];
}

void fillValues(ads_hdlg dialog, const ShownState& shown) {
    int index = 0;
    for (const wchar_t* key : kResultValueTiles) {
        bool wetBulbOnly = shown.outcome == kOutcomeWetBulbOnly;
        bool shownAtAll = !wetBulbOnly || index == 3 || index == 8;  // ts and i
        if (shownAtAll)
            showTileNumber(dialog, key, shownField(shown.state, index), kResultDecimals);
        else
            ads_set_tile(dialog, key, L"");
        ++index;
    }
    ads_set_tile(dialog, L"error", shown.outcome == kOutcomeImpossible ? kMsgImpossible : L"");
}

// "saveres": the shown state goes to the result file, and the dialog closes once it is there.
void onSave(ads_callback_packet* packet) {
    const auto* shown = static_cast<const ShownState*>(packet->client_data);
    if (!shown) return;
    if (!appendStatePointBlock(kStatePointFileName, statePointBlock(shown->choice, shown->state))) return;
    recordCalculation(shown->journal);
    acutPrintf(kMsgSaved);
    ads_done_dialog(packet->dialog, DLGOK);
}

}  // namespace

bool runStateResultDialog(int dclId, const ShownState& shown) {
    DialogSession result(dclId);
    if (!result.create(kResultDialogName, {Channel::Fail, kMsgCannotShow})) return false;
    fillValues(result.dialog(), shown);
    result.action(L"saveres", onSave, const_cast<ShownState*>(&shown));
    result.run();
    return true;
}

}  // namespace vrn2
