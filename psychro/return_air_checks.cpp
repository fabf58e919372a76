#include "psychro/return_air_checks.h"

namespace vrn2 {
namespace {

using Fault = std::optional<ReturnAirFault>;

bool outside(double v, double low, double high) { return v < low || v > high; }

// A missing number, then one outside [low, high].
Fault numberIn(const std::optional<double>& v, double low, double high, const wchar_t* key, const wchar_t* missing,
               const wchar_t* range) {
    if (!v) return ReturnAirFault{key, missing};
    if (outside(*v, low, high)) return ReturnAirFault{key, range};
    return std::nullopt;
}

Fault positive(const std::optional<double>& v, const wchar_t* key, const wchar_t* missing, const wchar_t* notPositive) {
    if (!v) return ReturnAirFault{key, missing};
    if (!(*v > 0.0)) return ReturnAirFault{key, notPositive};
    return std::nullopt;
}

Fault stateFaults(const ReturnAirReadings& r) {
    const ReturnAirInput& c = r.choices;
    if (auto f = numberIn(r.B, 50.0, 200.0, L"B", L"请输入大气压值.", L"大气压要求在50-200kPa之间.")) return f;
    if (auto f = numberIn(r.tN, 0.0, 50.0, L"tn_value", L"请输入室内干球温度.", L"室内干球温度要求在0-50℃之间."))
        return f;
    if (auto f = numberIn(r.fyN, 0.0, 100.0, L"rhn_value", L"请输入室内相对湿度.", L"室内相对湿度要求在0-100%之间."))
        return f;
    if (auto f = numberIn(r.tW, -50.0, 60.0, L"tw_value", L"请输入室外干球温度.", L"室外干球温度要求在-50-60℃之间."))
        return f;
    if (c.outdoorWetBulb) {
        if (!r.outdoorSecond) return ReturnAirFault{L"ow_value", L"请输入室外湿球温度."};
        if (*r.outdoorSecond > *r.tW) return ReturnAirFault{L"ow_value", L"室外湿球温度不能高于干球温度."};
    } else if (auto f = numberIn(r.outdoorSecond, 0.0, 100.0, L"ow_value", L"请输入室外相对湿度.",
                                 L"室外相对湿度要求在0-100%之间.")) {
        return f;
    }
    return std::nullopt;
}

Fault loadFaults(const ReturnAirReadings& r) {
    const ReturnAirInput& c = r.choices;
    if (!r.Q) return ReturnAirFault{L"q_value", L"请输入室内余热量."};
    if (!r.loadSecond) return ReturnAirFault{L"w_value", c.ratioGiven ? L"请输入热湿比." : L"请输入室内余湿量."};
    if (c.ratioGiven && *r.loadSecond == 0.0) return ReturnAirFault{L"w_value", L"热湿比不能为0."};
    if (c.freshFlowGiven) {
        if (auto f = positive(r.fresh, L"m_value", L"请输入新风量.", L"新风量应大于0.")) return f;
    } else if (auto f = numberIn(r.fresh, 0.0, 100.0, L"m_value", L"请输入新风比.", L"新风比要求在0-100%之间.")) {
        return f;
    } else if (*r.fresh == 0.0) {
        return ReturnAirFault{L"m_value", L"新风比要求在0-100%之间."};
    }
    if (c.supply == SupplyRule::temperatureDifference) {
        if (auto f = positive(r.supplyValue, L"sup_value", L"请输入送风温差.", L"送风温差应大于0.")) return f;
    } else if (c.supply == SupplyRule::airFlow) {
        if (auto f = positive(r.supplyValue, L"sup_value", L"请输入送风量.", L"送风量应大于0.")) return f;
    }
    return std::nullopt;
}

Fault winterFaults(const ReturnAirReadings& r) {
    const ReturnAirInput& c = r.choices;
    if (c.season != Season::winter) return std::nullopt;
    if (c.supply == SupplyRule::dewPoint)
        return ReturnAirFault{L"sup_dew", L"冬季不能机器露点送风,请给出送风温差或送风量."};
    if (auto f = numberIn(r.preheatLimit, -50.0, 50.0, L"tp_value", L"请输入新风预热温度.",
                          L"新风预热温度要求在-50-50℃之间."))
        return f;
    if (c.kind == ReturnAirKind::secondary)
        if (auto f = positive(r.secondaryFlow, L"g2_value", L"请输入二次回风量.", L"二次回风量应大于0.")) return f;
    return std::nullopt;
}

}  // namespace

std::optional<ReturnAirFault> firstReturnAirFault(const ReturnAirReadings& r) {
    if (auto f = stateFaults(r)) return f;
    if (auto f = loadFaults(r)) return f;
    if (r.choices.kind == ReturnAirKind::secondary && r.choices.supply == SupplyRule::dewPoint)
        return ReturnAirFault{L"sup_dew", L"二次回风系统不能机器露点送风,请给出送风温差或送风量."};
    return winterFaults(r);
}

ReturnAirInput returnAirInput(const ReturnAirReadings& r) {
    ReturnAirInput in = r.choices;
    in.B = r.B.value_or(0.0);
    in.tN = r.tN.value_or(0.0);
    in.fyN = r.fyN.value_or(0.0);
    in.tW = r.tW.value_or(0.0);
    in.outdoorSecond = r.outdoorSecond.value_or(0.0);
    in.Q = r.Q.value_or(0.0);
    in.loadSecond = r.loadSecond.value_or(0.0);
    in.fresh = r.fresh.value_or(0.0);
    in.supplyValue = r.supplyValue.value_or(0.0);
    in.preheatLimit = r.preheatLimit.value_or(in.preheatLimit);
    in.secondaryFlow = r.secondaryFlow.value_or(0.0);
    return in;
}

}  // namespace vrn2
