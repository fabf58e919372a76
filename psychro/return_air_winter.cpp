// Winter: the room loses heat, the supply is warmer than the room. Fresh air below the preheat
// limit is preheated; the mixture is heated and humidified (adiabatic spray: heated to the
// enthalpy of L, then along constant enthalpy; steam: heated, then humidified at constant
// temperature), then reheated to the supply state, after a second mix with room air in the
// secondary system.
#include <cmath>

#include "adscodes.h"
#include "psychro/return_air_parts.h"

namespace vrn2::return_air {
namespace {

constexpr wchar_t kNoHumidification[] =
    L"冬季混合状态含湿量已不低于加湿后要求的含湿量,不需加湿,请调整新风比.";
constexpr wchar_t kNegativeHeating[] = L"冬季加热量为负,请检查热负荷(房间失热时余热量为负值)与送风温差.";

bool stateAtTempMoisture(double B, double t, double d, AirState& out) {
    out = AirState{};
    out.B = B;
    out.t = t;
    out.d = d;
    return StateFromTempMoisture(out) == RTNORM;
}

// The fresh air as it enters the mix: preheated to the limit when colder.
AirState freshAfterPreheat(const ReturnAirInput& in, const AirState& W, ReturnAirResult& out) {
    if (!(W.t < in.preheatLimit)) return W;
    AirState W1;
    stateAtTempMoisture(in.B, in.preheatLimit, W.d, W1);
    out.freshPreheat = out.freshFlow * (W1.i - W.i) / kSecondsPerHour;
    addState(out, L"W'", L"新风预热后状态点", W1);
    return W1;
}

// The mix C (FLOW kg/h) heated and humidified to moisture dTarget. Adiabatic: to L on φL when
// the mix lies below L's enthalpy, else along the mix's own enthalpy. Steam: heated to tTarget,
// then humidified at that temperature. Answers the humidified state in L.
std::wstring heatAndHumidify(const ReturnAirInput& in, const AirState& C, double flow, double dTarget,
                             double tTarget, ReturnAirResult& out, AirState& L) {
    if (C.d >= dTarget) return kNoHumidification;
    out.humidification = flow * (dTarget - C.d) / 1000.0;
    AirState D;
    if (in.humidifier == Humidifier::steam) {
        if (!stateAtTempMoisture(in.B, tTarget, C.d, D) || !stateAtTempMoisture(in.B, tTarget, dTarget, L))
            return L"加湿后状态超出饱和线,不合理.";
    } else {
        AirState onCurve;
        onCurve.B = in.B;
        onCurve.d = dTarget;
        onCurve.fy = in.fyL;
        if (StateFromMoistureHumidity(onCurve) != RTNORM) return L"求得的加湿后状态不合理.";
        // A mix above L's enthalpy is sprayed only as far as the moisture needed.
        const double i = C.i < onCurve.i ? onCurve.i : C.i;
        stateAtEnthalpyMoisture(in.B, i, C.d, D);
        if (!stateAtEnthalpyMoisture(in.B, i, dTarget, L)) return L"加湿后状态超出饱和线,不合理.";
    }
    out.mixHeating = flow * (D.i - C.i) / kSecondsPerHour;
    if (out.mixHeating < -1e-9) return kNegativeHeating;
    if (out.mixHeating > 1e-9) addState(out, L"D", L"加热后状态点", D);
    return {};
}

std::wstring reheatTo(const AirState& from, const AirState& O, ReturnAirResult& out) {
    out.reheat = out.G * (O.i - from.i) / kSecondsPerHour;
    if (out.reheat < -1e-9) return kNegativeHeating;
    return {};
}

std::wstring primary(const ReturnAirInput& in, const AirState& N, const AirState& W, const AirState& O,
                     ReturnAirResult& out) {
    out.coilFlow = out.G;
    out.primaryReturn = out.G - out.freshFlow;
    AirState W1 = freshAfterPreheat(in, W, out);
    AirState C = mixStates(N, out.primaryReturn, W1, out.freshFlow);
    addState(out, L"C", L"混合状态点", C);
    AirState L;
    if (auto fault = heatAndHumidify(in, C, out.G, O.d, O.t, out, L); !fault.empty()) return fault;
    // Steam humidification at the supply temperature ends at the supply state itself.
    if (in.humidifier == Humidifier::adiabatic) addState(out, L"L", L"加湿后状态点", L);
    addState(out, L"O", L"送风状态点", O);
    return reheatTo(L, O, out);
}

// The coil flow and the secondary return are the summer design's: the humidified air L is
// mixed with SECONDARYFLOW of room air to give the supply moisture.
std::wstring secondary(const ReturnAirInput& in, const AirState& N, const AirState& W, const AirState& O,
                       ReturnAirResult& out) {
    if (!(in.secondaryFlow > 0.0 && in.secondaryFlow < out.G)) return L"二次回风量应大于0且小于送风量.";
    out.secondaryReturn = in.secondaryFlow;
    out.coilFlow = out.G - out.secondaryReturn;
    out.primaryReturn = out.coilFlow - out.freshFlow;
    if (out.primaryReturn < 0.0) return L"新风量大于经过加湿器的风量,二次回风系统不成立,请减小新风比.";
    const double dL = (out.G * O.d - out.secondaryReturn * N.d) / out.coilFlow;
    AirState onCurve;
    onCurve.B = in.B;
    onCurve.d = dL;
    onCurve.fy = in.fyL;
    if (!(dL > 0.0) || StateFromMoistureHumidity(onCurve) != RTNORM) return L"求得的机器露点状态不合理.";

    AirState W1 = freshAfterPreheat(in, W, out);
    AirState C1 = mixStates(N, out.primaryReturn, W1, out.freshFlow);
    addState(out, L"C1", L"一次混合点", C1);
    AirState L;
    if (auto fault = heatAndHumidify(in, C1, out.coilFlow, dL, onCurve.t, out, L); !fault.empty())
        return fault;
    addState(out, L"L", L"加湿后状态点", L);
    AirState C2 = mixStates(L, out.coilFlow, N, out.secondaryReturn);
    addState(out, L"C2", L"二次混合点", C2);
    addState(out, L"O", L"送风状态点", O);
    return reheatTo(C2, O, out);
}

}  // namespace

std::wstring computeWinter(const ReturnAirInput& in, ReturnAirResult& out) {
    if (in.supply == SupplyRule::dewPoint) return L"冬季不能机器露点送风,请给出送风温差或送风量.";
    AirState N, W, O;
    if (auto fault = roomAndOutdoor(in, out, N, W); !fault.empty()) return fault;
    if (auto fault = supplyState(in, N, out, O); !fault.empty()) return fault;
    if (auto fault = freshAir(in, out); !fault.empty()) return fault;
    return in.kind == ReturnAirKind::primary ? primary(in, N, W, O, out) : secondary(in, N, W, O, out);
}

}  // namespace vrn2::return_air
