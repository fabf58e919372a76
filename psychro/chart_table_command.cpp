// c:crti_dtbl: the table of state points beside the chart, each point marked and named on it;
// c:vi_dtbl: the table listed in a dialog.
#include <cmath>
#include <cwchar>

#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "psychro/chart_entities.h"
#include "psychro/chart_marks.h"
#include "psychro/chart_state.h"
#include "psychro/id_chart_messages.h"
#include "psychro/psychro_handlers.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgNoNewPoints[] = L"\n没有新的状态点.";
constexpr wchar_t kMsgNoTable[] = L"\n焓湿图上还没有状态点表.";
constexpr wchar_t kMsgOtherPressure[] = L"\n%d个状态点的大气压力与焓湿图不同, 未列入表中.";
constexpr wchar_t kMsgNotAirState[] = L"\n所选点不是合理的湿空气状态 (在饱和线以下或图外).";
constexpr wchar_t kMsgTableNotDrawn[] = L"\n状态点表未能画完.";
constexpr wchar_t kPointPrompt[] = L"\n选择状态点<回车结束>: ";

// Adds the states calculated since the last table that belong to this chart's pressure; the
// list is emptied either way.
void takeCalculatedStates(const IdChart& chart, std::vector<ChartStatePoint>& table) {
    int otherPressure = 0;
    for (const AirState& state : calculatedStates()) {
        if (std::fabs(state.B - chart.B) > 1e-9) {
            ++otherPressure;
        } else if (!addChartStatePoint(table, state)) {
            acutPrintf(L"\n%ls", kMsgTooManyStatePoints);
            break;
        }
    }
    calculatedStates().clear();
    if (otherPressure > 0) acutPrintf(kMsgOtherPressure, otherPressure);
}

// Adds the states of points picked on the chart until the user ends with Enter or Esc.
void takePickedStates(const IdChart& chart, std::vector<ChartStatePoint>& table) {
    ads_point picked = {0.0, 0.0, 0.0};
    while (acedGetPoint(nullptr, kPointPrompt, picked) == RTNORM) {
        AirState state;
        if (!chartAirStateAt(chart, picked[X], picked[Y], state)) {
            acutPrintf(kMsgNotAirState);
            continue;
        }
        if (!addChartStatePoint(table, state)) {
            acutPrintf(L"\n%ls", kMsgTooManyStatePoints);
            return;
        }
    }
}

// The new rows of the table, and each new point marked and named on the chart.
bool drawNewRows(const IdChart& chart, const DrawnChart& drawn, size_t firstRow) {
    const double h = drawn.textHeight;
    const TableDrawing table = layoutStateTable(drawn.table, firstRow, stateTableCorner(drawn.frame, h), h);
    if (!makeChartEntities(table.lines, table.texts)) return false;
    for (size_t r = firstRow; r < drawn.table.size(); ++r) {
        const ChartStatePoint& p = drawn.table[r];
        const ChartPoint at = chartPointOf(chart, p.state.i, p.state.d);
        if (!drawn.frame.contains(at)) continue;
        const ads_point mark = {at.x, at.y, 0.0};
        markChartPoint(mark, chart.markDiameter);
        if (!makeChartText({kLayerStatePoints, p.name, {at.x + h, at.y + h}, h, 0.0, TextAlign::left}))
            return false;
    }
    return true;
}

}  // namespace

int drawStatePointTable() {
    if (!chartIsDrawn()) return RTNORM;
    const IdChart& chart = idChart();
    DrawnChart& drawn = drawnChart();
    const size_t firstRow = drawn.table.size();
    takeCalculatedStates(chart, drawn.table);
    takePickedStates(chart, drawn.table);
    if (drawn.table.size() == firstRow) {
        acutPrintf(kMsgNoNewPoints);
        return RTNORM;
    }
    if (!drawNewRows(chart, drawn, firstRow)) {
        acutPrintf(kMsgTableNotDrawn);
        return RTERROR;
    }
    return RTNORM;
}

int viewStatePointTable() {
    const DrawnChart& drawn = drawnChart();
    if (!idChart().drawn || drawn.table.empty()) {
        acutPrintf(kMsgNoTable);
        return RTNORM;
    }
    DialogSession dialogs(kChartDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.create(L"vi_dtbldlg", {Channel::Alert, kMsgCannotCreateDialog})) return RTERROR;
    ads_hdlg dialog = dialogs.dialog();
    ads_start_list(dialog, L"ptlist", LIST_NEW, 0);
    for (const std::wstring& line : stateTableLines(drawn.table)) ads_add_list(line.c_str());
    ads_end_list();
    wchar_t pressure[64];
    std::swprintf(pressure, 64, L"大气压力 B=%.3f kPa", idChart().B);
    ads_set_tile(dialog, L"pressure", pressure);
    dialogs.run();
    return RTNORM;
}

}  // namespace vrn2
