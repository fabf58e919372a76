#include "psychro/process_result_dialog.h"

#include "acutads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "frame/tile_numbers.h"
#include "psychro/calculation_journal.h"
#include "psychro/process_chart.h"
#include "psychro/process_file.h"

namespace vrn2 {
namespace {

constexpr wchar_t kResultDialog[] = L"constpres";
constexpr wchar_t kSaved[] = L"\n结果已存在文件qres.txt中.";
// The dialog closes with this status when the process is to be drawn on the chart.
constexpr int kStatusDraw = 4;

struct Shown {
    const ProcessInput* in;
    const ProcessResult* r;
    const ProcessLabels* labels;
};

// One press gives one block: the dialog closes once the block is in the file.
void onSave(ads_callback_packet* packet) {
    const auto* shown = static_cast<const Shown*>(packet->client_data);
    if (!appendProcessResult(processResultBlock(*shown->in, *shown->r, *shown->labels))) return;
    recordCalculation(processJournalEntry(*shown->in, *shown->r, *shown->labels));
    acutPrintf(kSaved);
    ads_done_dialog(packet->dialog, processChartAvailable() ? kStatusDraw : DLGOK);
}

void onDraw(ads_callback_packet* packet) { ads_done_dialog(packet->dialog, kStatusDraw); }

void fillTiles(ads_hdlg dialog, const ProcessInput& in, const ProcessResult& r) {
    ads_set_tile(dialog, L"kind_name", processKindName(in.kind));
    const struct {
        const wchar_t* key;
        double value;
    } tiles[] = {{L"r_t", r.end.t}, {L"r_d", r.end.d}, {L"r_fy", r.end.fy}, {L"r_i", r.end.i},
                 {L"r_ts", r.end.ts}, {L"r_q", r.Q},   {L"r_w", r.W},     {L"r_g", r.G}};
    for (const auto& tile : tiles) showTileNumber(dialog, tile.key, tile.value, 3);
    if (r.epsilonInfinite)
        ads_set_tile(dialog, L"r_eps", L"∞");
    else
        showTileNumber(dialog, L"r_eps", r.epsilon, 3);
    if (in.kind == ProcessKind::dewPoint) showTileNumber(dialog, L"r_cf", r.contactFactor, 3);
    ads_mode_tile(dialog, L"i_d", processChartAvailable() ? MODE_ENABLE : MODE_DISABLE);
}

}  // namespace

bool showProcessResult(int dclId, const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels) {
    DialogSession dialogs(dclId);
    if (!dialogs.create(kResultDialog, {Channel::Alert, kMsgCannotCreateDialog})) return false;
    fillTiles(dialogs.dialog(), in, r);
    Shown shown{&in, &r, &labels};
    dialogs.action(L"saveres", onSave, &shown);
    dialogs.action(L"i_d", onDraw);
    return dialogs.run() == kStatusDraw && processChartAvailable();
}

}  // namespace vrn2
