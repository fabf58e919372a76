// "c:retair": primary- and secondary-return air systems in summer and winter. The dialog
// checks the inputs, the result dialog lists the states and loads, saves them to qres.txt
// (and the calculation journal) and closes both dialogs to draw the system on the i-d chart.
#include <string>

#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "psychro/calculation_journal.h"
#include "psychro/process_chart.h"
#include "psychro/process_file.h"
#include "psychro/psychro_handlers.h"
#include "psychro/remembered_pressure.h"
#include "psychro/return_air_report.h"
#include "psychro/return_air_tiles.h"

namespace vrn2 {
namespace {

constexpr wchar_t kDialogFile[] = L"dwglib/retair.dcl";
constexpr wchar_t kMainDialog[] = L"retairdlg";
constexpr wchar_t kResultDialog[] = L"retairres";
constexpr wchar_t kHelpDialog[] = L"retairhelp";
constexpr wchar_t kSaved[] = L"\n结果已存在文件qres.txt中.";
constexpr wchar_t kNoChart[] = L"\n先生成焓湿图.";
// Both dialogs close with this status to draw the system on the chart.
constexpr int kStatusShowOnChart = 4;

struct Session {
    int dclId = -1;
    ReturnAirInput input;
    ReturnAirResult result;
};

void onSave(ads_callback_packet* packet) {
    const auto* session = static_cast<const Session*>(packet->client_data);
    if (!appendProcessResult(returnAirBlock(session->input, session->result))) return;
    recordCalculation(returnAirJournalEntry(session->input, session->result));
    acutPrintf(kSaved);
    // One block per calculation: the button is spent.
    ads_mode_tile(packet->dialog, L"saveres", MODE_DISABLE);
}

void onShowOnChart(ads_callback_packet* packet) { ads_done_dialog(packet->dialog, kStatusShowOnChart); }

void fillResultList(ads_hdlg dialog, const Session& session) {
    ads_start_list(dialog, L"reslist", LIST_NEW, 0);
    for (const NamedAirState& s : session.result.states) ads_add_list(returnAirStateLine(s).c_str());
    ads_add_list(L"");
    for (const JournalQuantity& q : returnAirResultRows(session.input, session.result))
        ads_add_list(returnAirRowLine(q).c_str());
    ads_end_list();
}

int showResult(Session& session) {
    DialogSession dialogs(session.dclId);
    if (!dialogs.create(kResultDialog, {Channel::Alert, kMsgCannotCreateDialog})) return DLGCANCEL;
    ads_hdlg dialog = dialogs.dialog();
    ads_set_tile(dialog, L"title", returnAirTitle(session.input).c_str());
    fillResultList(dialog, session);
    ads_mode_tile(dialog, L"i_d", processChartAvailable() ? MODE_ENABLE : MODE_DISABLE);
    dialogs.action(L"saveres", onSave, &session);
    dialogs.action(L"i_d", onShowOnChart);
    return dialogs.run();
}

void onCalculate(ads_callback_packet* packet) {
    auto* session = static_cast<Session*>(packet->client_data);
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    keepReturnAirTiles(dialog, rememberedReturnAirTexts());
    ReturnAirReadings readings = readReturnAirTiles(dialog);
    if (auto fault = firstReturnAirFault(readings)) {
        showInputError(dialog, fault->message, fault->key);
        return;
    }
    session->input = returnAirInput(readings);
    rememberPressure(session->input.B);
    std::wstring fault = computeReturnAir(session->input, session->result);
    if (!fault.empty()) {
        showInputError(dialog, fault.c_str());
        return;
    }
    if (showResult(*session) == kStatusShowOnChart) ads_done_dialog(dialog, kStatusShowOnChart);
}

void onHelp(ads_callback_packet* packet) {
    const auto* session = static_cast<const Session*>(packet->client_data);
    DialogSession help(session->dclId);
    if (help.create(kHelpDialog, {Channel::Alert, kMsgCannotShowDialog})) help.run();
}

void onCancel(ads_callback_packet* packet) {
    keepReturnAirTiles(packet->dialog, rememberedReturnAirTexts());
    ads_done_dialog(packet->dialog, DLGCANCEL);
}

int runMainDialog(DialogSession& dialogs, Session& session) {
    if (!dialogs.create(kMainDialog, {Channel::Alert, kMsgCannotCreateDialog})) return -1;
    ads_hdlg dialog = dialogs.dialog();
    fillReturnAirTiles(dialog, rememberedReturnAirTexts());
    bindReturnAirChoices(dialog);
    dialogs.action(L"cal", onCalculate, &session);
    dialogs.action(L"help", onHelp, &session);
    dialogs.action(L"cancel", onCancel);
    return dialogs.run();
}

void drawOnChart(const ReturnAirResult& result) {
    std::vector<ProcessChartState> states;
    std::vector<ProcessChartLeg> legs;
    returnAirChart(result, states, legs);
    drawProcessOnChart(states, legs);
}

}  // namespace

int returnAirSystem() {
    DialogSession dialogs(kDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    Session session;
    session.dclId = dialogs.dclId();
    for (;;) {
        const int status = runMainDialog(dialogs, session);
        if (status < 0) return RTERROR;
        if (status != kStatusShowOnChart) return RTNORM;
        // The chart may have gone since the result dialog offered it (another drawing).
        if (processChartAvailable()) break;
        acutPrintf(kNoChart);
    }
    drawOnChart(session.result);
    return RTNORM;
}

}  // namespace vrn2
