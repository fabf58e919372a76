// c:constp: an air-handling process from a start state (typed, the last state point found, or
// picked on the chart), shown in the result dialog, saved to qres.txt and drawn on the chart.
#include <map>
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "frame/tile_numbers.h"
#include "psychro/chart_state.h"
#include "psychro/id_chart.h"
#include "psychro/process_checks.h"
#include "psychro/process_result_dialog.h"
#include "psychro/psychro_handlers.h"
#include "psychro/remembered_pressure.h"

namespace vrn2 {
namespace {

constexpr wchar_t kDialogFile[] = L"dwglib/constp.dcl";
constexpr wchar_t kMainDialog[] = L"constpdlg";
constexpr wchar_t kHelpDialog[] = L"constphlp";
constexpr wchar_t kMsgNoState[] = L"还没有求得的状态点,先用状态点计算(CI_DT)求出.";
constexpr wchar_t kMsgBadPick[] = L"\n所选点不是合理的湿空气状态.";
constexpr wchar_t kMsgNotDrawn[] = L"\n过程没有画在焓湿图上.";
constexpr wchar_t kPickPrompt[] = L"\n选择初始状态点: ";
constexpr int kInputChars = 30;
// The dialog closes with these statuses to pick a start state, or to draw the process.
constexpr int kStatusPick = 4;
constexpr int kStatusDraw = 5;

// The edit tiles, with what the dialog first opens with: summer outdoor air at 30 ℃ and 60 %,
// 5000 kg/h, a leaving state and an apparatus dew point of a summer coil.
constexpr const wchar_t* kTextTiles[][2] = {
    {L"B", kStandardPressureText}, {L"t1", L"30"},    {L"fy1", L"60"},  {L"t2", L"16"},    {L"fy2", L"95"},
    {L"d2", L"10"},                {L"tl", L"12"},    {L"eps", L"10000"}, {L"t3", L"26"},  {L"fy3", L"55"},
    {L"g3", L"5000"},              {L"G", L"5000"},   {L"label1", L"1"}, {L"label2", L"2"}, {L"label3", L"3"},
};

// What the dialog held when it last closed, kept while the module is loaded.
struct Remembered {
    std::map<std::wstring, std::wstring> texts;
    bool kept = false;  // the dialog has been used: its pressure is the designer's
    ProcessKind kind = ProcessKind::heating;
    bool byD = false;
};
Remembered& remembered() {
    static Remembered kept = [] {
        Remembered r;
        for (const auto& tile : kTextTiles) r.texts[tile[0]] = tile[1];
        return r;
    }();
    return kept;
}

struct Session;
struct KindRadio {
    Session* session;
    ProcessKind kind;
};
struct Session {
    int dclId = -1;
    KindRadio radios[kProcessKindCount];
    ProcessDrawing drawing;  // to draw once the dialog has closed
};

bool toggleOn(ads_hdlg dialog, const wchar_t* key) {
    wchar_t value[8] = {};
    return ads_get_tile(dialog, key, value, 7) == RTNORM && value[0] == L'1';
}

// Only the tiles the kind reads can be filled in.
void applyKind(ads_hdlg dialog) {
    const Remembered& kept = remembered();
    ads_set_tile(dialog, kProcessKindKeys[static_cast<int>(kept.kind)], L"1");
    ads_mode_tile(dialog, L"by_d", kindOffersMoisture(kept.kind) ? MODE_ENABLE : MODE_DISABLE);
    const auto used = processParameterTiles(kept.kind, kept.byD);
    for (int t = static_cast<int>(ProcessTile::t2); t < static_cast<int>(ProcessTile::G); ++t) {
        bool reads = false;
        for (ProcessTile u : used) reads = reads || static_cast<int>(u) == t;
        ads_mode_tile(dialog, processTileSpec(static_cast<ProcessTile>(t)).key, reads ? MODE_ENABLE : MODE_DISABLE);
    }
    const bool third = kept.kind == ProcessKind::mixing || kept.kind == ProcessKind::dewPoint;
    ads_mode_tile(dialog, L"label3", third ? MODE_ENABLE : MODE_DISABLE);
}

void keepTexts(ads_hdlg dialog) {
    Remembered& kept = remembered();
    for (auto& [key, text] : kept.texts) readTileText(dialog, key.c_str(), kInputChars, text);
    kept.byD = toggleOn(dialog, L"by_d");
    kept.kept = true;
}

void onKind(ads_callback_packet* packet) {
    const auto* radio = static_cast<const KindRadio*>(packet->client_data);
    if (!radio || !packet->value || packet->value[0] != L'1') return;
    remembered().kind = radio->kind;
    applyKind(packet->dialog);
}

void onByD(ads_callback_packet* packet) {
    remembered().byD = toggleOn(packet->dialog, L"by_d");
    applyKind(packet->dialog);
}

ProcessReadings readInputs(ads_hdlg dialog) {
    ProcessReadings r;
    r.kind = remembered().kind;
    r.byD = toggleOn(dialog, L"by_d");
    for (int t = 0; t < kProcessTileCount; ++t) {
        double value = 0.0;
        if (readTileNumber(dialog, processTileSpec(static_cast<ProcessTile>(t)).key, kInputChars, value))
            r.values[t] = value;
    }
    return r;
}

ProcessLabels readLabels(ads_hdlg dialog) {
    ProcessLabels labels;
    readTileText(dialog, L"label1", kInputChars, labels.start);
    readTileText(dialog, L"label2", kInputChars, labels.end);
    readTileText(dialog, L"label3", kInputChars, labels.third);
    return labels;
}

void onCalculate(ads_callback_packet* packet) {
    auto* session = static_cast<Session*>(packet->client_data);
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    const ProcessReadings readings = readInputs(dialog);
    if (auto fault = firstProcessInputFault(readings)) {
        showInputError(dialog, fault->message.c_str(), fault->key);
        return;
    }
    keepTexts(dialog);
    rememberPressure(*readings[ProcessTile::B]);
    const ProcessInput in = processInput(readings);
    const ProcessResult result = computeProcess(in);
    if (!result.ok()) {
        showInputError(dialog, result.message.c_str(), processFaultKey(result.fault, in));
        return;
    }
    const ProcessLabels labels = readLabels(dialog);
    if (showProcessResult(session->dclId, in, result, labels)) {
        session->drawing = processDrawing(in, result, labels);
        ads_done_dialog(dialog, kStatusDraw);
    }
}

void showNumberText(std::wstring& text, double value, int decimals) {
    wchar_t buffer[512] = {};
    acdbRToS(value, 2, decimals, buffer);
    text = buffer;
}

// Takes STATE as the start: its pressure, temperature and relative humidity.
void takeStartState(const AirState& state) {
    auto& texts = remembered().texts;
    showNumberText(texts[L"B"], state.B, 3);
    showNumberText(texts[L"t1"], state.t, 3);
    showNumberText(texts[L"fy1"], state.fy, 3);
}

void onLastState(ads_callback_packet* packet) {
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    const auto& states = calculatedStates();
    if (states.empty()) {
        showInputError(dialog, kMsgNoState, L"t1");
        return;
    }
    keepTexts(dialog);
    takeStartState(states.back());
    for (const wchar_t* key : {L"B", L"t1", L"fy1"}) ads_set_tile(dialog, key, remembered().texts[key].c_str());
}

void onSelectPoint(ads_callback_packet* packet) {
    keepTexts(packet->dialog);
    ads_done_dialog(packet->dialog, kStatusPick);
}

void onHelp(ads_callback_packet* packet) {
    const auto* session = static_cast<const Session*>(packet->client_data);
    DialogSession help(session->dclId);
    if (help.create(kHelpDialog, {Channel::Alert, kMsgCannotShowDialog})) help.run();
}

void fillDialog(const DialogSession& dialogs, Session& session) {
    ads_hdlg dialog = dialogs.dialog();
    for (const auto& [key, text] : remembered().texts) ads_set_tile(dialog, key.c_str(), text.c_str());
    ads_set_tile(dialog, L"by_d", remembered().byD ? L"1" : L"0");
    applyKind(dialog);
    for (int k = 0; k < kProcessKindCount; ++k) {
        session.radios[k] = {&session, static_cast<ProcessKind>(k)};
        dialogs.action(kProcessKindKeys[k], onKind, &session.radios[k]);
    }
    dialogs.action(L"by_d", onByD);
    dialogs.action(L"cal", onCalculate, &session);
    dialogs.action(L"last_state", onLastState);
    dialogs.action(L"sel_point", onSelectPoint);
    dialogs.action(L"help", onHelp, &session);
}

// The start state under a point picked on the chart, at the chart's pressure.
void pickStartState() {
    if (!chartIsDrawn()) return;
    ads_point picked = {0.0, 0.0, 0.0};
    if (acedGetPoint(nullptr, kPickPrompt, picked) != RTNORM) return;
    AirState state;
    if (!chartAirStateAt(idChart(), picked[X], picked[Y], state)) {
        acutPrintf(kMsgBadPick);
        return;
    }
    takeStartState(state);
}

}  // namespace

int airProcess() {
    DialogSession dialogs(kDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    Session session;
    session.dclId = dialogs.dclId();
    // Until the dialog is used it opens with the pressure another dialog last read.
    double kPa = 0.0;
    if (!remembered().kept && rememberedPressure(kPa)) showNumberText(remembered().texts[L"B"], kPa, kRememberedPressureDecimals);
    int status = DLGCANCEL;
    do {
        if (!dialogs.create(kMainDialog, {Channel::Alert, kMsgCannotCreateDialog})) return RTERROR;
        fillDialog(dialogs, session);
        status = dialogs.run();
        if (status == kStatusPick) pickStartState();
        if (status == kStatusDraw && drawProcessOnChart(session.drawing.states, session.drawing.legs) != RTNORM)
            acutPrintf(kMsgNotDrawn);
    } while (status == kStatusPick || status == kStatusDraw);
    return RTNORM;
}

}  // namespace vrn2
