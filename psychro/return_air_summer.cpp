// Summer: the coil cools and dries the mixed air to the apparatus dew point L. Primary return
// reheats L to the supply state O (or supplies L itself); secondary return mixes L with room
// air to give O.
#include <cmath>

#include "adscodes.h"

#include "psychro/return_air_parts.h"

namespace vrn2::return_air {
namespace {

// Direction along the room's process line from N towards colder supply air, as (di, dd):
// the line falls by ε kJ per kg of moisture removed.
void towardsSupply(double epsilon, double& di, double& dd) {
    if (std::isinf(epsilon)) {
        di = -1.0;
        dd = 0.0;
    } else if (epsilon >= 0.0) {
        di = -epsilon / 1000.0;
        dd = -1.0;
    } else {
        di = epsilon / 1000.0;
        dd = 1.0;
    }
}

// Supply at the dew point: O = L where the process line reaches φL.
std::wstring dewPointSupply(const ReturnAirInput& in, const AirState& N, ReturnAirResult& out, AirState& L) {
    double di = 0.0, dd = 0.0;
    towardsSupply(out.epsilon, di, dd);
    if (!lineReachesHumidity(in.B, N.i, N.d, di, dd, 0.0, in.fyL, L))
        return L"室内热湿比线与机器露点线无交点,不能机器露点送风.";
    out.G = flowToCarryLoads(in, out, N, L);
    if (!(std::isfinite(out.G) && out.G > 0.0)) return L"求得的送风量不为正,请检查室内负荷.";
    return {};
}

// The coil: C cooled and dried to L. Answers the message when the coil cannot do it.
std::wstring coil(const AirState& C, const AirState& L, double flow, ReturnAirResult& out) {
    if (C.d < L.d) return L"混合状态含湿量低于机器露点含湿量,表冷器不能把空气处理到机器露点.";
    out.coolingLoad = flow * (C.i - L.i) / kSecondsPerHour;
    out.condensate = flow * (C.d - L.d) / 1000.0;
    if (!(out.coolingLoad > 0.0)) return L"表冷器冷量不为正,夏季系统不能按此工况工作.";
    return {};
}

std::wstring primary(const ReturnAirInput& in, const AirState& N, const AirState& W, ReturnAirResult& out) {
    AirState O, L;
    if (in.supply == SupplyRule::dewPoint) {
        if (auto fault = dewPointSupply(in, N, out, L); !fault.empty()) return fault;
        O = L;
    } else {
        if (auto fault = supplyState(in, N, out, O); !fault.empty()) return fault;
        L = AirState{};
        L.B = in.B;
        L.d = O.d;
        L.fy = in.fyL;
        if (StateFromMoistureHumidity(L) != RTNORM) return L"求得的机器露点状态不合理.";
        if (O.t < L.t - 1e-9) return L"送风温度低于机器露点温度(再热量为负),请减小送风温差或增大送风量.";
    }
    if (auto fault = freshAir(in, out); !fault.empty()) return fault;
    out.coilFlow = out.G;
    out.primaryReturn = out.G - out.freshFlow;
    AirState C = mixStates(N, out.primaryReturn, W, out.freshFlow);
    addState(out, L"C", L"混合状态点", C);
    addState(out, L"L", L"机器露点", L);
    if (in.supply != SupplyRule::dewPoint) addState(out, L"O", L"送风状态点", O);
    out.reheat = out.G * (O.i - L.i) / kSecondsPerHour;
    return coil(C, L, out.G, out);
}

// Secondary return: L on the extension of N–O beyond O; the share of the supply that passed
// the coil is |NO| / |NL|.
std::wstring secondary(const ReturnAirInput& in, const AirState& N, const AirState& W, ReturnAirResult& out) {
    if (in.supply == SupplyRule::dewPoint) return L"二次回风系统不能机器露点送风,请给出送风温差或送风量.";
    AirState O, L;
    if (auto fault = supplyState(in, N, out, O); !fault.empty()) return fault;
    if (O.fy >= in.fyL) return L"送风状态已在机器露点线上或以上,不需二次回风.";
    if (!lineReachesHumidity(in.B, N.i, N.d, O.i - N.i, O.d - N.d, 1.0, in.fyL, L))
        return L"室内状态点与送风状态点连线的延长线与机器露点线无交点,二次回风系统不成立.";
    if (auto fault = freshAir(in, out); !fault.empty()) return fault;
    // O divides N–L in the ratio of the flows: G·(N − O) = coil flow·(N − L).
    const bool byMoisture = std::fabs(N.d - L.d) > std::fabs(N.i - L.i) / 1000.0;
    const double share = byMoisture ? (N.d - O.d) / (N.d - L.d) : (N.i - O.i) / (N.i - L.i);
    out.coilFlow = out.G * share;
    out.secondaryReturn = out.G - out.coilFlow;
    out.primaryReturn = out.coilFlow - out.freshFlow;
    if (out.primaryReturn < 0.0) return L"新风量大于经过表冷器的风量,二次回风系统不成立,请减小新风比.";
    AirState C1 = mixStates(N, out.primaryReturn, W, out.freshFlow);
    addState(out, L"C1", L"一次混合点", C1);
    addState(out, L"L", L"机器露点", L);
    addState(out, L"O", L"送风状态点(二次混合点)", O);
    if (auto fault = coil(C1, L, out.coilFlow, out); !fault.empty()) return fault;

    // The primary system of the same room and supply, for the comparison of the loads.
    ReturnAirInput asPrimary = in;
    asPrimary.kind = ReturnAirKind::primary;
    ReturnAirResult p;
    p.epsilon = out.epsilon;
    p.W = out.W;
    if (primary(asPrimary, N, W, p).empty()) {
        out.primaryCoolingLoad = p.coolingLoad;
        out.primaryReheat = p.reheat;
    }
    return {};
}

}  // namespace

std::wstring computeSummer(const ReturnAirInput& in, ReturnAirResult& out) {
    AirState N, W;
    if (auto fault = roomAndOutdoor(in, out, N, W); !fault.empty()) return fault;
    return in.kind == ReturnAirKind::primary ? primary(in, N, W, out) : secondary(in, N, W, out);
}

}  // namespace vrn2::return_air
