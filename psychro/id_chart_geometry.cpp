#include "psychro/id_chart_geometry.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <limits>

#include "psychro/airstate/airstate.h"

namespace vrn2 {
namespace {

// i − skew·d, the chart's height coordinate before scaling, of air at t with moisture d.
double reducedEnthalpy(double t, double d, double skew) {
    return EnthalpyFromTempMoisture(t, d) - skew * d;
}

}  // namespace

ChartGeometry chartGeometry(const ChartRequest& request) {
    ChartGeometry g;
    g.request = request;
    g.P = 1000.0 * request.B;
    IdChart& c = g.chart;
    c.drawn = true;
    c.B = request.B;
    c.enthalpySkew = kLatentHeat_kJkg / 1000.0;
    // The lowest isotherm falls slightly to the right and the highest rises: the frame takes
    // the lower and the higher of their ends.
    g.rBottom = std::min(reducedEnthalpy(request.tMin, request.dMin, c.enthalpySkew),
                         reducedEnthalpy(request.tMin, request.dMax, c.enthalpySkew));
    g.rTop = std::max(reducedEnthalpy(request.tMax, request.dMin, c.enthalpySkew),
                      reducedEnthalpy(request.tMax, request.dMax, c.enthalpySkew));
    c.moistureScale = request.width / (request.dMax - request.dMin);
    c.enthalpyScale = request.height / (g.rTop - g.rBottom);
    c.originX = request.corner.x - c.moistureScale * request.dMin;
    c.originY = request.corner.y - c.enthalpyScale * g.rBottom;
    g.frame = {request.corner.x, request.corner.y, request.corner.x + request.width,
               request.corner.y + request.height};
    g.textHeight = std::min(request.width, request.height) / 100.0;
    c.markDiameter = 0.8 * g.textHeight;
    return g;
}

double moistureAtHumidity(double t, double fy, double P) {
    const double pq = VapourPressureFromHumidity(SaturationPressure(t), fy);
    if (!(pq < P)) return std::numeric_limits<double>::quiet_NaN();
    return MoistureFromVapourPressure(pq, P);
}

double humidityOfState(double i, double d, double P) {
    const double t = TempFromEnthalpyMoisture(i, d);
    return RelativeHumidity(VapourPressureFromMoisture(d, P), SaturationPressure(t));
}

double crossingOf(const std::function<double(double)>& f, double target, double lo, double hi) {
    const bool risingAtLo = f(lo) < target;
    for (int k = 0; k < 200 && hi - lo > 1e-12 * std::max(1.0, std::fabs(lo)); ++k) {
        const double mid = 0.5 * (lo + hi);
        ((f(mid) < target) == risingAtLo ? lo : hi) = mid;
    }
    return 0.5 * (lo + hi);
}

double roundStep(double span, double count) {
    const double raw = span / count;
    const double decade = std::pow(10.0, std::floor(std::log10(raw)));
    for (double m : {1.0, 2.0, 5.0})
        if (m * decade >= raw) return m * decade;
    return 10.0 * decade;
}

void forEachMultiple(double step, double lo, double hi, const std::function<void(double)>& each) {
    const double eps = 1e-9 * step;
    for (long k = static_cast<long>(std::ceil((lo - eps) / step)); k * step <= hi + eps; ++k)
        each(k * step);
}

bool isMultipleOf(double value, double step) {
    const double q = value / step;
    return std::fabs(q - std::round(q)) < 1e-6;
}

std::wstring chartNumber(double value) {
    wchar_t text[32];
    std::swprintf(text, 32, L"%g", std::fabs(value) < 1e-9 ? 0.0 : value);
    return text;
}

}  // namespace vrn2
