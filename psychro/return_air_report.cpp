#include "psychro/return_air_report.h"

#include <cmath>

#include "frame/text_format.h"

namespace vrn2 {
namespace {

JournalQuantity number(const wchar_t* name, const wchar_t* unit, double value, int decimals = 3) {
    return {name, unit, value, decimals, {}};
}

JournalQuantity text(const wchar_t* name, const std::wstring& value) { return {name, L"", 0.0, 0, value}; }

const wchar_t* seasonName(Season s) { return s == Season::summer ? L"夏季" : L"冬季"; }

void supplyRows(const ReturnAirInput& in, std::vector<JournalQuantity>& rows) {
    switch (in.supply) {
    case SupplyRule::temperatureDifference:
        rows.push_back(number(L"送风温差", L"℃", in.supplyValue));
        break;
    case SupplyRule::dewPoint:
        rows.push_back(text(L"送风方式", L"机器露点送风"));
        break;
    case SupplyRule::airFlow:
        rows.push_back(number(L"送风量", L"kg/h", in.supplyValue));
        break;
    }
    rows.push_back(number(L"机器露点相对湿度", L"%", in.fyL, 0));
}

}  // namespace

std::wstring returnAirTitle(const ReturnAirInput& in) {
    std::wstring title = in.kind == ReturnAirKind::primary ? L"一次回风系统" : L"二次回风系统";
    return title + L"(" + seasonName(in.season) + L")";
}

std::vector<JournalQuantity> returnAirInputRows(const ReturnAirInput& in) {
    std::vector<JournalQuantity> rows = {
        number(L"室内干球温度", L"℃", in.tN),
        number(L"室内相对湿度", L"%", in.fyN),
        number(L"室外干球温度", L"℃", in.tW),
        in.outdoorWetBulb ? number(L"室外湿球温度", L"℃", in.outdoorSecond)
                          : number(L"室外相对湿度", L"%", in.outdoorSecond),
        number(L"室内余热量", L"kW", in.Q),
        // A room's moisture gain is often below 1 kg/h: one more decimal keeps what was typed.
        in.ratioGiven ? number(L"热湿比", L"kJ/kg", in.loadSecond) : number(L"室内余湿量", L"kg/h", in.loadSecond, 4),
        in.freshFlowGiven ? number(L"新风量", L"kg/h", in.fresh) : number(L"新风比", L"%", in.fresh),
    };
    supplyRows(in, rows);
    if (in.season == Season::winter) {
        rows.push_back(number(L"新风预热温度", L"℃", in.preheatLimit));
        rows.push_back(text(L"加湿方式", in.humidifier == Humidifier::adiabatic ? L"喷水绝热加湿" : L"喷蒸汽等温加湿"));
        if (in.kind == ReturnAirKind::secondary) rows.push_back(number(L"二次回风量", L"kg/h", in.secondaryFlow));
    }
    return rows;
}

std::vector<JournalQuantity> returnAirResultRows(const ReturnAirInput& in, const ReturnAirResult& r) {
    std::vector<JournalQuantity> rows;
    if (std::isinf(r.epsilon))
        rows.push_back({L"热湿比 ε", L"kJ/kg", 0.0, 0, L"∞"});
    else
        rows.push_back(number(L"热湿比 ε", L"kJ/kg", r.epsilon));
    rows.push_back(number(L"送风量", L"kg/h", r.G));
    rows.push_back(number(L"新风量", L"kg/h", r.freshFlow));
    rows.push_back(number(L"新风比", L"%", r.freshRatio));
    rows.push_back(number(L"一次回风量", L"kg/h", r.primaryReturn));
    const bool secondary = in.kind == ReturnAirKind::secondary;
    if (secondary) {
        rows.push_back(number(L"二次回风量", L"kg/h", r.secondaryReturn));
        rows.push_back(number(in.season == Season::summer ? L"表冷器风量" : L"加湿器风量", L"kg/h", r.coilFlow));
    }
    if (in.season == Season::summer) {
        rows.push_back(number(L"表冷器冷量", L"kW", r.coolingLoad));
        rows.push_back(number(L"凝结水量", L"kg/h", r.condensate));
        if (!secondary) rows.push_back(number(L"再热量", L"kW", r.reheat));
        if (secondary && r.primaryCoolingLoad > 0.0) {
            rows.push_back(number(L"一次回风系统冷量", L"kW", r.primaryCoolingLoad));
            rows.push_back(number(L"一次回风系统再热量", L"kW", r.primaryReheat));
            rows.push_back(number(L"节省冷量", L"kW", r.primaryCoolingLoad - r.coolingLoad));
        }
    } else {
        rows.push_back(number(L"新风预热量", L"kW", r.freshPreheat));
        rows.push_back(number(L"混合后加热量", L"kW", r.mixHeating));
        rows.push_back(number(L"再热量", L"kW", r.reheat));
        rows.push_back(number(L"加湿量", L"kg/h", r.humidification));
    }
    return rows;
}

std::wstring returnAirStateLine(const NamedAirState& s) {
    std::wstring line;
    appendFormat(line, L"%-3ls%ls: t=%.3lf℃ d=%.3lfg/kg φ=%.3lf%% i=%.3lfkJ/kg", s.label.c_str(), s.name.c_str(),
                 s.state.t, s.state.d, s.state.fy, s.state.i);
    return line;
}

std::wstring returnAirRowLine(const JournalQuantity& q) {
    std::wstring line = q.name;
    if (!q.unit.empty()) line += L"(" + q.unit + L")";
    line += L": ";
    if (!q.text.empty()) return line + q.text;
    appendFormat(line, L"%.*lf", q.decimals, q.value);
    return line;
}

std::wstring returnAirBlock(const ReturnAirInput& in, const ReturnAirResult& r) {
    std::wstring out;
    appendFormat(out, L"\n__________________________________________\n\n%ls\n(B=%.3lfkPa)",
                 returnAirTitle(in).c_str(), in.B);
    out += L"\n 输入参数:";
    for (const JournalQuantity& q : returnAirInputRows(in)) out += L"\n         " + returnAirRowLine(q);
    out += L"\n 计算结果:";
    for (const NamedAirState& s : r.states) out += L"\n         " + returnAirStateLine(s);
    for (const JournalQuantity& q : returnAirResultRows(in, r)) out += L"\n         " + returnAirRowLine(q);
    return out;
}

JournalEntry returnAirJournalEntry(const ReturnAirInput& in, const ReturnAirResult& r) {
    JournalEntry e;
    e.kind = JournalKind::returnAirSystem;
    e.title = returnAirTitle(in);
    e.B = in.B;
    e.inputs = returnAirInputRows(in);
    e.results = returnAirResultRows(in, r);
    for (const NamedAirState& s : r.states) e.states.push_back({s.label, s.name, s.state});
    return e;
}

}  // namespace vrn2
