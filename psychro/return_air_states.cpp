// States of the return-air systems that are not typed in: mixtures, and the points where a
// process line reaches the curve of the apparatus dew point.
#include <algorithm>
#include <cmath>

#include "adscodes.h"
#include "psychro/return_air.h"

namespace vrn2 {
namespace {

// The chart's lowest temperature; the library's dew-point search alerts below −60 °C, so the
// line search stops well before.
constexpr double kLowestTemp_C = -40.0;
constexpr double kHighestTemp_C = 100.0;
constexpr int kScanSteps = 2000;
constexpr int kBisections = 60;

// Relative humidity at (i, d), or a negative number where no state lies on the chart.
double humidityAt(double B, double i, double d) {
    if (!(d > 0.0)) return -1.0;
    double t = TempFromEnthalpyMoisture(i, d);
    if (!(t > kLowestTemp_C && t < kHighestTemp_C)) return -1.0;
    AirState s;
    s.B = B;
    s.i = i;
    s.d = d;
    StateFromEnthalpyMoisture(s);  // φ over 100 % is an answer here, not a fault
    return s.fy;
}

}  // namespace

bool stateAtEnthalpyMoisture(double B, double i, double d, AirState& out) {
    out = AirState{};
    out.B = B;
    out.i = i;
    out.d = d;
    if (!std::isfinite(i) || !std::isfinite(d)) return false;
    return StateFromEnthalpyMoisture(out) == RTNORM;
}

AirState mixStates(const AirState& a, double GA, const AirState& b, double GB) {
    AirState m;
    stateAtEnthalpyMoisture(a.B, (GA * a.i + GB * b.i) / (GA + GB), (GA * a.d + GB * b.d) / (GA + GB), m);
    return m;
}

bool lineReachesHumidity(double B, double iFrom, double dFrom, double di, double dd, double sStart,
                         double fyTarget, AirState& out) {
    // Steps of about 0.05 kJ/kg or g/kg, whichever moves faster, so that the curve, which the
    // line crosses once, is not stepped over.
    double scale = std::max(std::fabs(di), std::fabs(dd));
    if (!(scale > 0.0)) return false;
    double step = 0.05 / scale;
    double below = sStart;
    double fy = humidityAt(B, iFrom + below * di, dFrom + below * dd);
    if (fy < 0.0 || fy >= fyTarget) return false;
    double above = below;
    for (int k = 0; k < kScanSteps; ++k) {
        above = below + step;
        fy = humidityAt(B, iFrom + above * di, dFrom + above * dd);
        if (fy < 0.0) return false;
        if (fy >= fyTarget) break;
        below = above;
    }
    if (fy < fyTarget) return false;
    for (int k = 0; k < kBisections; ++k) {
        double mid = 0.5 * (below + above);
        (humidityAt(B, iFrom + mid * di, dFrom + mid * dd) < fyTarget ? below : above) = mid;
    }
    double s = 0.5 * (below + above);
    return stateAtEnthalpyMoisture(B, iFrom + s * di, dFrom + s * dd, out);
}

const NamedAirState* ReturnAirResult::find(const wchar_t* label) const {
    for (const NamedAirState& s : states)
        if (s.label == label) return &s;
    return nullptr;
}

}  // namespace vrn2
