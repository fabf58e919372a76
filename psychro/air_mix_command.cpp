// c:airmix: the state of a mixture of two air streams, each given by enthalpy, moisture content
// and mass flow, shown in the result dialog of the state-point command.
#include <map>
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "psychro/psychro_handlers.h"
#include "frame/dialog_session.h"
#include "frame/tile_numbers.h"
#include "psychro/air_mix.h"
#include "psychro/chart_marks.h"
#include "psychro/chart_state.h"
#include "psychro/id_chart.h"
#include "psychro/journal_entries.h"
#include "psychro/remembered_pressure.h"
#include "psychro/state_result_dialog.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMixDialogFile[] = L"dwglib\\procdlg";
constexpr wchar_t kResultDialogFile[] = L"dwglib\\ci_dt";
constexpr wchar_t kDialogName[] = L"airmixdlg";
constexpr int kInputChars = 15;
// The dialog closes with this status to show the mix on the chart.
constexpr int kStatusShowOnChart = 4;

constexpr double kLowestPressure = 70.0;   // kPa, accepted
constexpr double kHighestPressure = 180.0; // kPa, accepted

constexpr wchar_t kMsgCannotLoad[] = L"Unable to initialize dialog box.";
constexpr wchar_t kMsgCannotCreate[] = L"Invalid Entry.";
constexpr wchar_t kMsgBadPressure[] = L"无效的大气压值.";
constexpr wchar_t kMsgPressureRange[] = L"大气压值在70-180kPa之间";

struct StreamInput {
    const wchar_t* tile;
    const wchar_t* message;
    const wchar_t* initialText;
};
// In reading order: i, d, G of stream A, then of stream B.
constexpr StreamInput kStreamInputs[6] = {
    {L"i_value1", L"输入A点焓值.", L"91.06"},   {L"d_value1", L"输入A点含湿量.", L"21.4"},
    {L"g_value1", L"输入A点风量.", L"18000"},   {L"i_value2", L"输入B点焓值.", L"62.0"},
    {L"d_value2", L"输入B点含湿量.", L"13.0"},  {L"g_value2", L"输入B点风量.", L"42000"},
};

// One run of the command: what was typed survives closing the dialog to look at the chart.
struct Session {
    std::map<std::wstring, std::wstring> texts;
};

void initialTexts(Session& session) {
    double kPa = 0.0;
    if (rememberedPressure(kPa)) {
        wchar_t text[64] = {};
        acdbRToS(kPa, 2, kRememberedPressureDecimals, text);
        session.texts[L"press"] = text;
    } else {
        session.texts[L"press"] = kStandardPressureText;
    }
    for (const StreamInput& input : kStreamInputs) session.texts[input.tile] = input.initialText;
}

bool readPressure(ads_hdlg dialog, double& pressure) {
    if (!readTileNumber(dialog, L"press", kInputChars, pressure)) {
        showInputError(dialog, kMsgBadPressure);
        return false;
    }
    if (pressure < kLowestPressure || pressure > kHighestPressure) {
        showInputError(dialog, kMsgPressureRange);
        return false;
    }
    return true;
}

bool readStreams(ads_hdlg dialog, AirStream& a, AirStream& b) {
    double* targets[6] = {&a.i, &a.d, &a.G, &b.i, &b.d, &b.G};
    for (int k = 0; k < 6; ++k) {
        if (!readTileNumber(dialog, kStreamInputs[k].tile, kInputChars, *targets[k])) {
            showInputError(dialog, kStreamInputs[k].message, kStreamInputs[k].tile);
            return false;
        }
    }
    return true;
}

void showMixture(const ShownState& shown) {
    DialogSession resultFile(kResultDialogFile, {Channel::Alert, kMsgCannotLoad});
    if (resultFile.loaded()) runStateResultDialog(resultFile.dclId(), shown);
}

void onCompute(ads_callback_packet* packet) {
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    double pressure = 0.0;
    AirStream a, b;
    if (!readPressure(dialog, pressure) || !readStreams(dialog, a, b)) return;
    rememberPressure(pressure);
    mixingInputs() = {a, b};

    MixedAir mixed = mixAirStreams(a, b);
    ShownState shown;
    shown.choice = 1;  // saved as a state known by its enthalpy and moisture content
    shown.state.B = pressure;
    shown.state.i = mixed.i;
    shown.state.d = mixed.d;
    shown.outcome = StateFromEnthalpyMoisture(shown.state) == RTNORM ? kOutcomeValid : kOutcomeImpossible;
    shown.journal = mixingEntry(a, b, shown.state, shown.outcome);
    storeMixingRecord(mixingRecord(), a, b, mixed);
    ads_mode_tile(dialog, L"i_d", MODE_ENABLE);
    showMixture(shown);
}

void onShowOnChart(ads_callback_packet* packet) {
    auto* session = static_cast<Session*>(packet->client_data);
    for (auto& [key, text] : session->texts) readTileText(packet->dialog, key.c_str(), kInputChars, text);
    ads_done_dialog(packet->dialog, kStatusShowOnChart);
}

bool runMixDialog(DialogSession& dialogs, Session& session, int& status) {
    if (!dialogs.create(kDialogName, {Channel::Fail, kMsgCannotCreate})) return false;
    ads_hdlg dialog = dialogs.dialog();
    for (const auto& [key, text] : session.texts) ads_set_tile(dialog, key.c_str(), text.c_str());
    clearInputError(dialog);
    ads_mode_tile(dialog, L"i_d", mixingRecord().exists ? MODE_ENABLE : MODE_DISABLE);
    dialogs.action(L"procres", onCompute);
    dialogs.action(L"i_d", onShowOnChart, &session);
    status = dialogs.run();
    return true;
}

// The mixing line from A to B and the three points on the chart. Without a chart the user is
// told to draw one first and answers false, so that the dialog opens again.
bool drawMixOnChart() {
    if (!chartIsDrawn()) return false;
    const IdChart& chart = idChart();
    const double* r = mixingRecord().values;
    ChartPoint pa = chartPointOf(chart, r[1], r[0]);
    ChartPoint pb = chartPointOf(chart, r[4], r[3]);
    ChartPoint pm = chartPointOf(chart, r[7], r[6]);
    ads_point a = {pa.x, pa.y, 0.0}, b = {pb.x, pb.y, 0.0}, m = {pm.x, pm.y, 0.0};
    drawChartLine(a, b);
    for (const double* p : {a, b, m}) markChartPoint(p, chart.markDiameter);
    return true;
}

}  // namespace

int airMix() {
    DialogSession dialogs(kMixDialogFile, {Channel::Fail, kMsgCannotLoad});
    if (!dialogs.loaded()) return RTERROR;
    Session session;
    initialTexts(session);
    int status = DLGCANCEL;
    do {
        if (!runMixDialog(dialogs, session, status)) return RTERROR;
    } while (status == kStatusShowOnChart && !drawMixOnChart());
    return RTNORM;
}

}  // namespace vrn2
