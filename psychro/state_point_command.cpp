// c:ci_dt: one humid-air state from any of nine pairs of known quantities, or from a point
// picked on the i-d chart, shown in the result dialog and saved on request.
#include <map>
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "psychro/psychro_handlers.h"
#include "frame/dialog_session.h"
#include "frame/tile_numbers.h"
#include "psychro/chart_marks.h"
#include "psychro/chart_state.h"
#include "psychro/id_chart.h"
#include "psychro/journal_entries.h"
#include "psychro/remembered_pressure.h"
#include "psychro/state_point_choices.h"
#include "psychro/state_result_dialog.h"

namespace vrn2 {
namespace {

constexpr wchar_t kDialogName[] = L"ci_dt";
constexpr int kInputChars = 15;
// The dialog closes with this status when the user wants to pick a point on the chart.
constexpr int kStatusPickPoint = 4;

constexpr wchar_t kMsgCannotOpen[] = L"Unable to initialize dialog box.";
constexpr wchar_t kMsgBadPressure[] = L"无效的大气压值.";
constexpr wchar_t kMsgWetAboveDry[] = L"TS值不能大于T值.";
constexpr wchar_t kPickPrompt[] = L"\n选择点: ";

// The chosen pair, remembered while the module is loaded so the dialog opens with it.
int g_choice = kDefaultChoice;

// One run of the command. The dialog closes to let the user pick a point and then opens
// again; what was typed is carried over.
struct Session {
    int dclId = -1;
    std::map<std::wstring, std::wstring> texts;
    bool markPickedPoint = false;
    struct RadioData {
        Session* session;
        int choice;
    } radios[kChoiceCount];
};

constexpr const wchar_t* kKeptTiles[] = {L"pressure", L"temp", L"ih", L"d", L"fy", L"ts", L"tl", L"db", L"symbol"};

void applyChoice(ads_hdlg dialog, int choice) {
    ads_set_tile(dialog, statePointChoice(choice)->radioKey, L"1");
    for (const wchar_t* tile : kInputTiles)
        ads_mode_tile(dialog, tile, choiceReadsTile(choice, tile) ? MODE_ENABLE : MODE_DISABLE);
}

// Reads the pressure and the choice's inputs in order; the first fault shows its message and
// answers false. A pressure that is not a number shows nothing.
bool readInputs(ads_hdlg dialog, int choice, AirState& state) {
    double pressure = 0.0;
    if (!readTileNumber(dialog, L"pressure", kInputChars, pressure)) return false;
    if (pressure <= 0.0) {
        showInputError(dialog, kMsgBadPressure);
        return false;
    }
    rememberPressure(pressure);
    state.B = pressure;
    const StatePointChoice& c = *statePointChoice(choice);
    for (int k = 0; k < c.inputCount; ++k) {
        const ChoiceInput& input = c.inputs[k];
        if (!readTileNumber(dialog, input.tile, kInputChars, fieldOf(state, input.field))) {
            showInputError(dialog, input.message, inputTakesFocus(c, k) ? input.tile : nullptr);
            return false;
        }
    }
    if (wetBulbAboveDryBulb(choice, state)) {
        showInputError(dialog, kMsgWetAboveDry, L"ts");
        return false;
    }
    return true;
}

void onChoice(ads_callback_packet* packet) {
    const auto* radio = static_cast<const Session::RadioData*>(packet->client_data);
    if (!radio || !packet->value || packet->value[0] != L'1') return;
    g_choice = radio->choice;
    applyChoice(packet->dialog, g_choice);
}

void onResult(ads_callback_packet* packet) {
    const auto* session = static_cast<const Session*>(packet->client_data);
    clearInputError(packet->dialog);
    ShownState shown;
    shown.choice = g_choice;
    if (!readInputs(packet->dialog, g_choice, shown.state)) return;
    shown.outcome = solveStatePoint(g_choice, shown.state);
    if (shown.outcome == kOutcomeValid) keepCalculatedState(shown.state);
    shown.journal = statePointEntry(shown.choice, shown.state, shown.outcome);
    runStateResultDialog(session->dclId, shown);
}

void keepTexts(ads_hdlg dialog, Session& session) {
    for (const wchar_t* key : kKeptTiles) readTileText(dialog, key, kInputChars, session.texts[key]);
    session.markPickedPoint = session.texts[L"symbol"] == L"1";
}

void onSelectPoint(ads_callback_packet* packet) {
    auto* session = static_cast<Session*>(packet->client_data);
    keepTexts(packet->dialog, *session);
    ads_done_dialog(packet->dialog, kStatusPickPoint);
}

void fillDialog(const DialogSession& dialogs, Session& session) {
    ads_hdlg dialog = dialogs.dialog();
    if (session.texts.empty()) {
        double kPa = 0.0;
        if (rememberedPressure(kPa))
            showTileNumber(dialog, L"pressure", kPa, kRememberedPressureDecimals);
        else
            ads_set_tile(dialog, L"pressure", kStandardPressureText);
    }
    for (const auto& [key, text] : session.texts) ads_set_tile(dialog, key.c_str(), text.c_str());
    applyChoice(dialog, g_choice);
    for (int c = 1; c <= kChoiceCount; ++c) {
        session.radios[c - 1] = {&session, c};
        dialogs.action(statePointChoice(c)->radioKey, onChoice, &session.radios[c - 1]);
    }
    dialogs.action(L"result", onResult, &session);
    dialogs.action(L"sel_point", onSelectPoint, &session);
}

// The state under a point picked on the chart, solved at the pressure the chart was drawn for.
void stateFromPickedPoint(const Session& session) {
    if (!chartIsDrawn()) return;
    const IdChart& chart = idChart();
    ads_point picked = {0.0, 0.0, 0.0};
    if (acedGetPoint(nullptr, kPickPrompt, picked) != RTNORM) return;
    ShownState shown;
    shown.choice = kChoicePickedPoint;
    shown.outcome = chartAirStateAt(chart, picked[X], picked[Y], shown.state) ? kOutcomeValid : kOutcomeImpossible;
    if (shown.outcome == kOutcomeValid) keepCalculatedState(shown.state);
    if (session.markPickedPoint) markChartPoint(picked, chart.markDiameter);
    shown.journal = statePointEntry(shown.choice, shown.state, shown.outcome);
    runStateResultDialog(session.dclId, shown);
}

}  // namespace

int statePoint() {
    const Message cannotOpen{Channel::Fail, kMsgCannotOpen};
    DialogSession dialogs(kStatePointDialogFile, cannotOpen);
    if (!dialogs.loaded()) return RTERROR;
    Session session;
    session.dclId = dialogs.dclId();
    int status = DLGCANCEL;
    do {
        if (!dialogs.create(kDialogName, cannotOpen)) return RTERROR;
        fillDialog(dialogs, session);
        status = dialogs.run();
        if (status == kStatusPickPoint) stateFromPickedPoint(session);
    } while (status == kStatusPickPoint);
    return RTNORM;
}

}  // namespace vrn2
