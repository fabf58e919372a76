// The straight families of the chart: lines of equal moisture content (vertical), enthalpy
// (oblique) and dry-bulb temperature (nearly horizontal). Each runs through the unsaturated
// part of the chart only: it ends where it meets the saturation curve.
#include <cmath>

#include "psychro/airstate/airstate.h"
#include "psychro/chart_clip.h"
#include "psychro/id_chart_geometry.h"

namespace vrn2 {
namespace {

// Labelled lines: every fifth isotherm and enthalpy line, every second moisture line.
constexpr double kIsothermLabelEvery = 5.0, kEnthalpyLabelEvery = 5.0, kMoistureLabelEvery = 2.0;

// The clipped segment from A to B on LAYER; none when it lies outside the frame.
std::optional<ChartSegment> addSegment(const ChartGeometry& g, ChartDrawing& out, const wchar_t* layer,
                                       ChartPoint a, ChartPoint b) {
    auto piece = clipSegment(g.frame, a, b);
    if (piece) out.lines.push_back({layer, {piece->a, piece->b}, false});
    return piece;
}

void addLabel(ChartDrawing& out, double value, ChartPoint at, double height, TextAlign align) {
    out.texts.push_back({kLayerChartText, chartNumber(value), at, height, 0.0, align});
}

}  // namespace

void addMoistureLines(const ChartGeometry& g, ChartDrawing& out) {
    const ChartRequest& r = g.request;
    const double step = roundStep(r.dMax - r.dMin, 30.0);
    const double h = g.textHeight;
    forEachMultiple(step, r.dMin, r.dMax, [&](double d) {
        const double skew = g.chart.enthalpySkew;
        auto humidity = [&](double red) { return humidityOfState(red + skew * d, d, g.P); };
        if (humidity(g.rTop) >= 100.0) return;  // saturated over the whole height
        double from = g.rBottom;
        if (humidity(from) > 100.0) from = crossingOf(humidity, 100.0, g.rBottom, g.rTop);
        auto piece = addSegment(g, out, kLayerMoisture, g.at(from + skew * d, d), g.at(g.rTop + skew * d, d));
        if (piece && isMultipleOf(d, kMoistureLabelEvery * step))
            addLabel(out, d, {piece->b.x, g.frame.top + 0.6 * h + 0.5 * h}, h, TextAlign::centre);
    });
}

void addEnthalpyLines(const ChartGeometry& g, ChartDrawing& out) {
    const ChartRequest& r = g.request;
    const double skew = g.chart.enthalpySkew;
    const double iLow = g.rBottom + skew * r.dMin, iHigh = g.rTop + skew * r.dMax;
    const double step = roundStep(iHigh - iLow, 80.0);
    const double h = g.textHeight;
    forEachMultiple(step, iLow, iHigh, [&](double i) {
        auto humidity = [&](double d) { return humidityOfState(i, d, g.P); };
        if (humidity(r.dMin) >= 100.0) return;  // fog over the whole line
        double to = r.dMax;
        if (humidity(to) > 100.0) to = crossingOf(humidity, 100.0, r.dMin, r.dMax);
        auto piece = addSegment(g, out, kLayerEnthalpy, g.at(i, r.dMin), g.at(i, to));
        if (piece && isMultipleOf(i, kEnthalpyLabelEvery * step))
            addLabel(out, i, {piece->b.x + 0.6 * h, piece->b.y - 0.6 * h}, h, TextAlign::left);
    });
}

void addIsotherms(const ChartGeometry& g, ChartDrawing& out) {
    const ChartRequest& r = g.request;
    const double step = roundStep(r.tMax - r.tMin, 60.0);
    const double h = g.textHeight;
    forEachMultiple(step, r.tMin, r.tMax, [&](double t) {
        const double saturated = moistureAtHumidity(t, 100.0, g.P);
        const double to = std::isnan(saturated) ? r.dMax : std::fmin(saturated, r.dMax);
        if (to <= r.dMin) return;
        auto piece = addSegment(g, out, kLayerIsotherm, g.at(EnthalpyFromTempMoisture(t, r.dMin), r.dMin),
                                g.at(EnthalpyFromTempMoisture(t, to), to));
        const bool fromLeftEdge = piece && std::fabs(piece->a.x - g.frame.left) < 1e-9 * r.width;
        if (fromLeftEdge && isMultipleOf(t, kIsothermLabelEvery * step))
            addLabel(out, t, {g.frame.left - 0.6 * h, piece->a.y}, h, TextAlign::right);
    });
}

}  // namespace vrn2
