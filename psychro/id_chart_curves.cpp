// The curves of equal relative humidity, 10 % to 90 %, and the saturation curve, traced point
// by point over the dry-bulb temperature and labelled along their run.
#include <cmath>

#include "psychro/airstate/airstate.h"
#include "psychro/chart_clip.h"
#include "psychro/id_chart_geometry.h"

namespace vrn2 {
namespace {

// Samples per curve: every quarter of a kelvin on the default chart.
constexpr int kCurveSteps = 360;
// Where along its length a curve carries its label: towards its upper end, where the curves
// are furthest apart.
constexpr double kLabelAt = 0.72;

double length(const std::vector<ChartPoint>& points) {
    double total = 0.0;
    for (size_t k = 1; k < points.size(); ++k)
        total += std::hypot(points[k].x - points[k - 1].x, points[k].y - points[k - 1].y);
    return total;
}

// The label beside the curve POINTS, at the fraction kLabelAt of its length, along its tangent
// and set off to its upper-left (unsaturated) side.
void labelCurve(const std::vector<ChartPoint>& points, const std::wstring& text, double h, ChartDrawing& out) {
    double remaining = kLabelAt * length(points);
    for (size_t k = 1; k < points.size(); ++k) {
        const ChartPoint a = points[k - 1], b = points[k];
        const double run = std::hypot(b.x - a.x, b.y - a.y);
        if (run == 0.0 || (run < remaining && k + 1 < points.size())) {
            remaining -= run;
            continue;
        }
        const double ux = (b.x - a.x) / run, uy = (b.y - a.y) / run;
        const double f = std::fmin(1.0, remaining / run);
        const ChartPoint at{a.x + f * (b.x - a.x) - 0.7 * h * uy, a.y + f * (b.y - a.y) + 0.7 * h * ux};
        out.texts.push_back({kLayerChartText, text, at, h, std::atan2(uy, ux), TextAlign::centre});
        return;
    }
}

void addCurve(const ChartGeometry& g, ChartDrawing& out, double fy, const wchar_t* layer, const std::wstring& label) {
    const ChartRequest& r = g.request;
    const double margin = 0.25 * (r.tMax - r.tMin);
    auto curve = [&](double t) {
        const double d = moistureAtHumidity(t, fy, g.P);
        return g.at(EnthalpyFromTempMoisture(t, d), d);
    };
    auto pieces = clipCurve(g.frame, curve, r.tMin - margin, r.tMax + margin, kCurveSteps);
    for (auto& piece : pieces) out.lines.push_back({layer, piece, false});
    if (!pieces.empty()) labelCurve(pieces.back(), label, 0.8 * g.textHeight, out);
}

}  // namespace

void addHumidityCurves(const ChartGeometry& g, ChartDrawing& out) {
    for (int fy = 10; fy <= 90; fy += 10)
        addCurve(g, out, fy, kLayerHumidity, L"φ=" + std::to_wstring(fy) + L"%");
    addCurve(g, out, 100.0, kLayerSaturation, L"φ=100%");
}

}  // namespace vrn2
