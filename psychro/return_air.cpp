// The parts of the return-air calculation that both seasons share: the room and outdoor
// states, the room's process line, the supply state and flow, the fresh air.
#include "psychro/return_air.h"

#include <cmath>
#include <limits>

#include "adscodes.h"
#include "psychro/return_air_parts.h"
#include "psychro/supply_air.h"

namespace vrn2 {
namespace return_air {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::wstring outdoorState(const ReturnAirInput& in, AirState& W) {
    W = AirState{};
    W.B = in.B;
    W.t = in.tW;
    int status;
    if (in.outdoorWetBulb) {
        if (in.outdoorSecond > in.tW) return L"室外湿球温度不能高于干球温度.";
        W.ts = in.outdoorSecond;
        status = StateFromTempWetBulb(W);
    } else {
        W.fy = in.outdoorSecond;
        status = StateFromTempHumidity(W);
    }
    if (status != RTNORM || !std::isfinite(W.d)) return L"室外状态超出饱和线或不合理,请检查室外参数.";
    return {};
}

}  // namespace

void addState(ReturnAirResult& out, const wchar_t* label, const wchar_t* name, const AirState& s) {
    out.states.push_back({label, name, s});
}

std::wstring roomAndOutdoor(const ReturnAirInput& in, ReturnAirResult& out, AirState& N, AirState& W) {
    N = AirState{};
    N.B = in.B;
    N.t = in.tN;
    N.fy = in.fyN;
    if (StateFromTempHumidity(N) != RTNORM) return L"室内状态不合理,请检查室内参数.";
    addState(out, L"N", L"室内状态点", N);
    if (auto fault = outdoorState(in, W); !fault.empty()) return fault;
    addState(out, L"W", L"室外状态点", W);

    if (in.ratioGiven) {
        if (in.loadSecond == 0.0) return L"热湿比不能为0.";
        out.epsilon = in.loadSecond;
        out.W = in.Q * kSecondsPerHour / in.loadSecond;
    } else {
        if (in.Q == 0.0 && in.loadSecond == 0.0) return L"室内余热量与余湿量不能同时为0.";
        out.W = in.loadSecond;
        // A room that gains no moisture has a vertical process line: ε is infinite.
        out.epsilon = in.loadSecond == 0.0 ? std::copysign(kInfinity, in.Q) : in.Q * kSecondsPerHour / in.loadSecond;
    }
    return {};
}

double flowToCarryLoads(const ReturnAirInput& in, const ReturnAirResult& r, const AirState& N, const AirState& O) {
    if (in.Q != 0.0) return in.Q * kSecondsPerHour / (N.i - O.i);
    return r.W * 1000.0 / (N.d - O.d);
}

std::wstring supplyState(const ReturnAirInput& in, const AirState& N, ReturnAirResult& out, AirState& O) {
    double i = 0.0, d = 0.0;
    if (in.supply == SupplyRule::airFlow) {
        out.G = in.supplyValue;
        i = N.i - in.Q * kSecondsPerHour / out.G;
        d = N.d - out.W * 1000.0 / out.G;
    } else {
        if (!(in.supplyValue > 0.0)) return L"送风温差应大于0.";
        const double tO = in.season == Season::summer ? in.tN - in.supplyValue : in.tN + in.supplyValue;
        d = std::isinf(out.epsilon) ? N.d : moistureOnProcessLine(N.i, N.d, out.epsilon / 1000.0, tO);
        i = EnthalpyFromTempMoisture(tO, d);
    }
    if (!stateAtEnthalpyMoisture(in.B, i, d, O))
        return L"送风状态超出饱和线或不合理,请检查负荷、送风温差或送风量.";
    if (in.supply != SupplyRule::airFlow) out.G = flowToCarryLoads(in, out, N, O);
    if (!(std::isfinite(out.G) && out.G > 0.0))
        return L"求得的送风量不为正,室内负荷与季节不符(冬季房间失热时余热量为负值).";
    return {};
}

std::wstring freshAir(const ReturnAirInput& in, ReturnAirResult& out) {
    if (in.freshFlowGiven) {
        if (!(in.fresh > 0.0)) return L"新风量应大于0.";
        if (in.fresh > out.G) return L"新风量不能大于送风量.";
        out.freshFlow = in.fresh;
        out.freshRatio = 100.0 * in.fresh / out.G;
    } else {
        if (!(in.fresh > 0.0 && in.fresh <= 100.0)) return L"新风比应大于0且不超过100%.";
        out.freshRatio = in.fresh;
        out.freshFlow = out.G * in.fresh / 100.0;
    }
    return {};
}

}  // namespace return_air

std::wstring computeReturnAir(const ReturnAirInput& in, ReturnAirResult& out) {
    out = ReturnAirResult{};
    if (!(in.fyL > 0.0 && in.fyL < 100.0)) return L"机器露点相对湿度应在0-100%之间.";
    return in.season == Season::summer ? return_air::computeSummer(in, out) : return_air::computeWinter(in, out);
}

}  // namespace vrn2
