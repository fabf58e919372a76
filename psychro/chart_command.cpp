// c:crti_dt: the i-d chart drawn into the drawing for a pressure, ranges and size given in a
// dialog, at a corner the user picks; c:i_dhlp: the chart commands explained.
#include <cwchar>
#include <string>

#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "frame/tile_numbers.h"
#include "psychro/chart_entities.h"
#include "psychro/chart_state.h"
#include "psychro/id_chart_geometry.h"
#include "psychro/id_chart_messages.h"
#include "psychro/psychro_handlers.h"
#include "psychro/remembered_pressure.h"

namespace vrn2 {
namespace {

constexpr int kInputChars = 15;
constexpr wchar_t kCornerPrompt[] = L"\n焓湿图左下角: ";
constexpr wchar_t kMsgNotDrawn[] = L"\n焓湿图未能画完.";

struct ChartTile {
    const wchar_t* key;
    double ChartRequest::*field;
    const wchar_t* notANumber;
};
constexpr ChartTile kChartTiles[] = {
    {L"pressure", &ChartRequest::B, kMsgChartPressureText},
    {L"t_min", &ChartRequest::tMin, kMsgChartTempMinText},
    {L"t_max", &ChartRequest::tMax, kMsgChartTempMaxText},
    {L"d_min", &ChartRequest::dMin, kMsgChartMoistureMinText},
    {L"d_max", &ChartRequest::dMax, kMsgChartMoistureMaxText},
    {L"width", &ChartRequest::width, kMsgChartWidthText},
    {L"height", &ChartRequest::height, kMsgChartHeightText},
};

// The tile that gets the focus for a value out of its limits.
const wchar_t* tileOfFault(const wchar_t* fault) {
    if (fault == kMsgChartPressureRange) return L"pressure";
    if (fault == kMsgChartTempRange) return L"t_min";
    if (fault == kMsgChartMoistureRange) return L"d_min";
    return L"width";
}

struct ChartDialog {
    int dclId = -1;
    ChartRequest request;
};

void onAccept(ads_callback_packet* packet) {
    auto* chart = static_cast<ChartDialog*>(packet->client_data);
    clearInputError(packet->dialog);
    ChartRequest request;
    for (const ChartTile& tile : kChartTiles)
        if (!readTileNumber(packet->dialog, tile.key, kInputChars, request.*tile.field)) {
            showInputError(packet->dialog, tile.notANumber, tile.key);
            return;
        }
    if (const wchar_t* fault = chartRequestFault(request)) {
        showInputError(packet->dialog, fault, tileOfFault(fault));
        return;
    }
    rememberPressure(request.B);
    chart->request = request;
    ads_done_dialog(packet->dialog, DLGOK);
}

void runHelp(int dclId) {
    DialogSession help(dclId);
    if (help.create(L"i_dhlpdlg", {Channel::Alert, kMsgCannotCreateDialog})) help.run();
}

void onHelp(ads_callback_packet* packet) { runHelp(static_cast<ChartDialog*>(packet->client_data)->dclId); }

// The dialog opens with the last chart's inputs and the remembered pressure.
void fillDialog(ads_hdlg dialog) {
    const ChartRequest& last = lastChartRequest();
    for (const ChartTile& tile : kChartTiles)
        ads_set_tile(dialog, tile.key, chartNumber(last.*tile.field).c_str());
    double kPa = 0.0;
    if (rememberedPressure(kPa))
        showTileNumber(dialog, L"pressure", kPa, kRememberedPressureDecimals);
    else
        ads_set_tile(dialog, L"pressure", kStandardPressureText);
}

// Draws the chart for REQUEST and makes it the drawing's chart; false when the host refused
// an entity.
bool drawChart(const ChartRequest& request) {
    const ChartDrawing chart = buildIdChart(request);
    if (!makeChartLayers() || !makeChartEntities(chart.lines, chart.texts)) return false;
    idChart() = chart.chart;
    drawnChart() = DrawnChart{chart.frame, chart.textHeight, {}, request};
    return true;
}

}  // namespace

int drawIdChart() {
    DialogSession dialogs(kChartDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    ChartDialog chart;
    chart.dclId = dialogs.dclId();
    if (!dialogs.create(L"crti_dtdlg", {Channel::Alert, kMsgCannotCreateDialog})) return RTERROR;
    fillDialog(dialogs.dialog());
    dialogs.action(L"accept", onAccept, &chart);
    dialogs.action(L"help", onHelp, &chart);
    if (dialogs.run() != DLGOK) return RTNORM;
    lastChartRequest() = chart.request;
    ads_point corner = {0.0, 0.0, 0.0};
    if (acedGetPoint(nullptr, kCornerPrompt, corner) != RTNORM) return RTNORM;
    chart.request.corner = {corner[X], corner[Y]};
    if (!drawChart(chart.request)) {
        acutPrintf(kMsgNotDrawn);
        return RTERROR;
    }
    return RTNORM;
}

int idChartHelp() {
    DialogSession dialogs(kChartDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    runHelp(dialogs.dclId());
    return RTNORM;
}

}  // namespace vrn2
