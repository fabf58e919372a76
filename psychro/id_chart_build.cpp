#include "psychro/id_chart_build.h"

#include <cmath>
#include <cwchar>

#include "psychro/id_chart_geometry.h"
#include "psychro/id_chart_messages.h"

namespace vrn2 {
namespace {

bool within(double value, double lo, double hi) { return value >= lo && value <= hi; }

void addFrame(const ChartGeometry& g, ChartDrawing& out) {
    const ChartFrame& f = g.frame;
    out.lines.push_back({kLayerChartFrame, {{f.left, f.bottom}, {f.right, f.bottom}, {f.right, f.top}, {f.left, f.top}}, true});
}

// Axis captions with units and the title with the pressure the chart holds for.
void addCaptions(const ChartGeometry& g, ChartDrawing& out) {
    const ChartFrame& f = g.frame;
    const double h = g.textHeight, midX = 0.5 * (f.left + f.right);
    const double pi = std::acos(-1.0);
    out.texts.push_back({kLayerChartText, L"干球温度 t (℃)", {f.left - 4.5 * h, 0.5 * (f.bottom + f.top)}, h, 0.5 * pi,
                         TextAlign::centre});
    out.texts.push_back({kLayerChartText, L"含湿量 d (g/kg干空气)", {midX, f.top + 3.0 * h}, h, 0.0, TextAlign::centre});
    out.texts.push_back({kLayerChartText, L"焓 i (kJ/kg干空气)", {f.right, f.bottom - 3.0 * h}, h, 0.0, TextAlign::right});
    wchar_t title[80];
    std::swprintf(title, 80, L"焓湿图 (大气压力 B=%.3f kPa)", g.request.B);
    out.texts.push_back({kLayerChartText, title, {midX, f.top + 5.5 * h}, 1.6 * h, 0.0, TextAlign::centre});
}

}  // namespace

const wchar_t* chartRequestFault(const ChartRequest& r) {
    if (!within(r.B, kChartPressureMin, kChartPressureMax)) return kMsgChartPressureRange;
    if (!within(r.tMin, kChartTempMin, kChartTempMax) || !within(r.tMax, kChartTempMin, kChartTempMax) ||
        !(r.tMin < r.tMax))
        return kMsgChartTempRange;
    if (!within(r.dMin, 0.0, kChartMoistureMax) || !within(r.dMax, 0.0, kChartMoistureMax) || !(r.dMin < r.dMax))
        return kMsgChartMoistureRange;
    if (!within(r.width, kChartSizeMin, kChartSizeMax) || !within(r.height, kChartSizeMin, kChartSizeMax))
        return kMsgChartSizeRange;
    return nullptr;
}

ChartDrawing buildIdChart(const ChartRequest& request) {
    const ChartGeometry g = chartGeometry(request);
    ChartDrawing out;
    out.chart = g.chart;
    out.frame = g.frame;
    out.textHeight = g.textHeight;
    addFrame(g, out);
    addMoistureLines(g, out);
    addEnthalpyLines(g, out);
    addIsotherms(g, out);
    addHumidityCurves(g, out);
    addCaptions(g, out);
    return out;
}

}  // namespace vrn2
