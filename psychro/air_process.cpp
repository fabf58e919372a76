#include "psychro/air_process.h"

#include <cmath>
#include <functional>

#include "adscodes.h"
#include "frame/text_format.h"
#include "psychro/air_mix.h"
#include "psychro/supply_air.h"

namespace vrn2 {
namespace {

constexpr double kSecondsPerHour = 3600.0;
constexpr double kGramsPerKilogram = 1000.0;
// Below this change of d (g/kg) the ratio is ∞, and below it in both i and d the end is the start.
constexpr double kNoChange = 1e-9;
constexpr double kSaturated = 100.0;
constexpr double kLowestTemperature = -60.0;  // °C: the bottom of the library's range

constexpr wchar_t kMsgBeyondSaturation[] = L"终点超过饱和状态(相对湿度大于100%),过程不能实现.";
constexpr wchar_t kMsgNegativeMoisture[] = L"终点含湿量为负值,过程不能实现.";
constexpr wchar_t kMsgNoChange[] = L"终点与初始状态相同,没有处理过程.";
constexpr wchar_t kMsgBadStart[] = L"初始状态不是合理的湿空气状态.";
constexpr wchar_t kMsgBadFlow[] = L"空气流量应大于0.";
constexpr wchar_t kMsgNotWarmer[] = L"加热过程的终点温度应高于初始温度.";
constexpr wchar_t kMsgNotCooler[] = L"冷却过程的终点温度应低于初始温度.";
constexpr wchar_t kMsgNotDrier[] = L"冷却减湿过程的终点含湿量应低于初始含湿量.";
constexpr wchar_t kMsgNotMoisterFy[] = L"加湿过程的终点相对湿度应高于初始相对湿度.";
constexpr wchar_t kMsgNotMoisterD[] = L"加湿过程的终点含湿量应高于初始含湿量.";
constexpr wchar_t kMsgDewPointFy[] = L"终点相对湿度应高于初始相对湿度,且不超过100%.";
constexpr wchar_t kMsgRatioAlongIsotherm[] = L"此热湿比线接近等温线,终点应由含湿量给出.";
constexpr wchar_t kMsgBadSecondStream[] = L"第二股空气不是合理的湿空气状态.";
constexpr wchar_t kMsgBadSecondFlow[] = L"第二股空气的流量应大于0.";
constexpr wchar_t kMsgMixFogged[] = L"混合点在饱和线以外(有凝结水析出),不能按绝热混合计算.";

ProcessResult fail(ProcessResult r, ProcessFault fault, std::wstring message) {
    r.fault = fault;
    r.message = std::move(message);
    return r;
}

// Fills END from its known pair with SOLVER at the start's pressure; a state the library
// refuses gives the reason: moisture below zero, or beyond saturation.
bool solveEnd(int (*solver)(AirState&), AirState& end, ProcessResult& r, ProcessFault fault) {
    end.B = r.start.B;
    if (solver(end) == RTNORM && std::isfinite(end.i) && std::isfinite(end.d)) return true;
    r = fail(r, fault, end.d < 0.0 ? kMsgNegativeMoisture : kMsgBeyondSaturation);
    return false;
}

// The root of the increasing function F between LO and HI (F(LO) < 0 <= F(HI)), by halving.
double rootBetween(const std::function<double(double)>& f, double lo, double hi) {
    for (int k = 0; k < 200 && hi - lo > 1e-12; ++k) {
        const double mid = 0.5 * (lo + hi);
        (f(mid) < 0.0 ? lo : hi) = mid;
    }
    return 0.5 * (lo + hi);
}

ProcessResult heating(const ProcessInput& in, ProcessResult r) {
    if (in.endT <= r.start.t) return fail(r, ProcessFault::endT, kMsgNotWarmer);
    r.end.t = in.endT;
    r.end.d = r.start.d;
    solveEnd(StateFromTempMoisture, r.end, r, ProcessFault::endT);
    return r;
}

ProcessResult cooling(const ProcessInput& in, ProcessResult r) {
    if (in.endT >= r.start.t) return fail(r, ProcessFault::endT, kMsgNotCooler);
    if (in.endT < r.start.tl) {
        std::wstring message;
        appendFormat(message, L"终点温度低于初始状态的露点温度(%.2lf℃),等湿冷却不能实现,应按冷却减湿计算.",
                     r.start.tl);
        return fail(r, ProcessFault::endT, message);
    }
    r.end.t = in.endT;
    r.end.d = r.start.d;
    solveEnd(StateFromTempMoisture, r.end, r, ProcessFault::endT);
    return r;
}

ProcessResult dehumidifying(const ProcessInput& in, ProcessResult r) {
    if (in.endT >= r.start.t) return fail(r, ProcessFault::endT, kMsgNotCooler);
    r.end.t = in.endT;
    const bool byMoisture = in.given == EndGiven::moisture;
    const ProcessFault second = byMoisture ? ProcessFault::endD : ProcessFault::endFy;
    if (byMoisture) {
        r.end.d = in.endD;
        if (!solveEnd(StateFromTempMoisture, r.end, r, second)) return r;
    } else {
        r.end.fy = in.endFy;
        if (!solveEnd(StateFromTempHumidity, r.end, r, second)) return r;
    }
    if (r.end.d >= r.start.d) return fail(r, second, kMsgNotDrier);
    return r;
}

// Towards the apparatus dew point A on the saturation curve: the air leaves on the straight
// line from the start to A (the rest passes the coil untouched), where its φ reaches the end φ.
ProcessResult dewPoint(const ProcessInput& in, ProcessResult r) {
    if (in.dewPointT >= r.start.tl) {
        std::wstring message;
        appendFormat(message, L"机器露点温度应低于初始状态的露点温度(%.2lf℃).", r.start.tl);
        return fail(r, ProcessFault::dewPointT, message);
    }
    if (in.endFy <= r.start.fy || in.endFy > kSaturated) return fail(r, ProcessFault::endFy, kMsgDewPointFy);
    r.dewPoint = airStateAt(r.start.B, in.dewPointT, kSaturated);
    const AirState& a = r.dewPoint;
    auto along = [&](double s) {
        AirState p;
        p.B = r.start.B;
        p.i = r.start.i + s * (a.i - r.start.i);
        p.d = r.start.d + s * (a.d - r.start.d);
        StateFromEnthalpyMoisture(p);
        return p;
    };
    const double s = in.endFy >= kSaturated ? 1.0
                                             : rootBetween([&](double x) { return along(x).fy - in.endFy; }, 0.0, 1.0);
    r.end = s >= 1.0 ? a : along(s);
    r.contactFactor = s;
    return r;
}

// Isenthalpic: the temperature at which air of the end φ has the start's enthalpy.
ProcessResult adiabatic(const ProcessInput& in, ProcessResult r) {
    if (in.given == EndGiven::moisture) {
        if (in.endD <= r.start.d) return fail(r, ProcessFault::endD, kMsgNotMoisterD);
        r.end.i = r.start.i;
        r.end.d = in.endD;
        solveEnd(StateFromEnthalpyMoisture, r.end, r, ProcessFault::endD);
        return r;
    }
    if (in.endFy <= r.start.fy) return fail(r, ProcessFault::endFy, kMsgNotMoisterFy);
    if (in.endFy > kSaturated) return fail(r, ProcessFault::endFy, kMsgBeyondSaturation);
    auto excess = [&](double t) { return airStateAt(r.start.B, t, in.endFy).i - r.start.i; };
    const double t = rootBetween(excess, kLowestTemperature, r.start.t);
    r.end.t = t;
    r.end.fy = in.endFy;
    solveEnd(StateFromTempHumidity, r.end, r, ProcessFault::endFy);
    return r;
}

ProcessResult steam(const ProcessInput& in, ProcessResult r) {
    r.end.t = r.start.t;
    if (in.given == EndGiven::moisture) {
        if (in.endD <= r.start.d) return fail(r, ProcessFault::endD, kMsgNotMoisterD);
        r.end.d = in.endD;
        solveEnd(StateFromTempMoisture, r.end, r, ProcessFault::endD);
        return r;
    }
    if (in.endFy <= r.start.fy) return fail(r, ProcessFault::endFy, kMsgNotMoisterFy);
    if (in.endFy > kSaturated) return fail(r, ProcessFault::endFy, kMsgBeyondSaturation);
    r.end.fy = in.endFy;
    solveEnd(StateFromTempHumidity, r.end, r, ProcessFault::endFy);
    return r;
}

ProcessResult alongRatio(const ProcessInput& in, ProcessResult r) {
    const double e = in.epsilon / kGramsPerKilogram;  // kJ per g of moisture
    if (in.given == EndGiven::moisture) {
        r.end.d = in.endD;
        r.end.i = r.start.i + e * (in.endD - r.start.d);
        solveEnd(StateFromEnthalpyMoisture, r.end, r, ProcessFault::endD);
        return r;
    }
    // Along an isotherm every d has the same t: the end temperature then fixes nothing.
    const double slopeOfIsotherm = 0.001 * (1.84 * in.endT + kLatentHeat_kJkg);
    if (std::fabs(slopeOfIsotherm - e) < 1e-6) return fail(r, ProcessFault::epsilon, kMsgRatioAlongIsotherm);
    r.end.t = in.endT;
    r.end.d = moistureOnProcessLine(r.start.i, r.start.d, e, in.endT);
    solveEnd(StateFromTempMoisture, r.end, r, ProcessFault::endT);
    return r;
}

ProcessResult mixing(const ProcessInput& in, ProcessResult r) {
    if (!(in.second.fy >= 0.0 && in.second.fy <= kSaturated) || in.second.d < 0.0)
        return fail(r, ProcessFault::second, kMsgBadSecondStream);
    if (!(in.G2 > 0.0)) return fail(r, ProcessFault::flow, kMsgBadSecondFlow);
    const MixedAir m = mixAirStreams({r.start.i, r.start.d, in.G}, {in.second.i, in.second.d, in.G2});
    r.end.i = m.i;
    r.end.d = m.d;
    r.end.B = r.start.B;
    if (StateFromEnthalpyMoisture(r.end) != RTNORM) return fail(r, ProcessFault::second, kMsgMixFogged);
    r.G = in.G + in.G2;
    return r;
}

// The apparatus's heat and moisture and the ratio of the change; mixing exchanges nothing.
void closeBalances(const ProcessInput& in, ProcessResult& r) {
    r.end.db = MoistureFromVapourPressure(r.end.pb, 1000.0 * r.end.B);
    r.epsilonInfinite = !heatMoistureRatio(r.start, r.end, r.epsilon);
    if (in.kind == ProcessKind::mixing) return;
    r.G = in.G;
    r.Q = in.G * (r.end.i - r.start.i) / kSecondsPerHour;
    r.W = in.G * (r.end.d - r.start.d) / kGramsPerKilogram;
}

}  // namespace

AirState airStateAt(double B, double t, double fy) {
    AirState s;
    s.B = B;
    s.t = t;
    s.fy = fy;
    StateFromTempHumidity(s);
    return s;
}

bool heatMoistureRatio(const AirState& a, const AirState& b, double& epsilon) {
    const double dd = b.d - a.d;
    if (std::fabs(dd) < kNoChange) return false;
    epsilon = (b.i - a.i) / dd * kGramsPerKilogram;
    return true;
}

ProcessResult computeProcess(const ProcessInput& in) {
    ProcessResult r;
    r.start = in.start;
    r.end.B = in.start.B;
    if (!(in.start.fy >= 0.0 && in.start.fy <= kSaturated) || in.start.d < 0.0)
        return fail(r, ProcessFault::start, kMsgBadStart);
    if (!(in.G > 0.0)) return fail(r, ProcessFault::flow, kMsgBadFlow);
    switch (in.kind) {
        case ProcessKind::heating: r = heating(in, r); break;
        case ProcessKind::cooling: r = cooling(in, r); break;
        case ProcessKind::dehumidifying: r = dehumidifying(in, r); break;
        case ProcessKind::dewPoint: r = dewPoint(in, r); break;
        case ProcessKind::adiabatic: r = adiabatic(in, r); break;
        case ProcessKind::steam: r = steam(in, r); break;
        case ProcessKind::ratio: r = alongRatio(in, r); break;
        case ProcessKind::mixing: r = mixing(in, r); break;
    }
    if (!r.ok()) return r;
    if (std::fabs(r.end.i - r.start.i) < kNoChange && std::fabs(r.end.d - r.start.d) < kNoChange)
        return fail(r, ProcessFault::start, kMsgNoChange);
    closeBalances(in, r);
    return r;
}

const wchar_t* processKindName(ProcessKind kind) {
    switch (kind) {
        case ProcessKind::heating: return L"等湿加热";
        case ProcessKind::cooling: return L"等湿冷却";
        case ProcessKind::dehumidifying: return L"冷却减湿";
        case ProcessKind::dewPoint: return L"冷却减湿(机器露点)";
        case ProcessKind::adiabatic: return L"等焓加湿";
        case ProcessKind::steam: return L"等温加湿";
        case ProcessKind::ratio: return L"按热湿比变化";
        case ProcessKind::mixing: return L"两股空气混合";
    }
    return L"";
}

}  // namespace vrn2
