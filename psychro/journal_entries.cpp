#include "psychro/journal_entries.h"

#include "psychro/airstate/alert.h"

namespace vrn2 {
namespace {

constexpr wchar_t kCelsius[] = L"℃", kMoisture[] = L"g/kg", kEnthalpy[] = L"kJ/kg", kPercent[] = L"%";
constexpr wchar_t kKiloPascal[] = L"kPa", kFlow[] = L"kg/h", kKiloWatt[] = L"kW";

JournalQuantity quantity(const wchar_t* name, const wchar_t* unit, double value, int decimals) {
    return JournalQuantity{name, unit, value, decimals, {}};
}

// The quantities of the state-point dialogs, with the names and units they are labelled with.
struct StateQuantity {
    StateField field;
    const wchar_t* name;
    const wchar_t* unit;
};
constexpr StateQuantity kStateQuantities[] = {
    {StateField::t, L"干球温度 T", kCelsius},   {StateField::ts, L"湿球温度 TS", kCelsius},
    {StateField::tl, L"露点温度 TL", kCelsius}, {StateField::d, L"含湿量 D", kMoisture},
    {StateField::fy, L"相对湿度 FY", kPercent}, {StateField::i, L"焓值 IH", kEnthalpy},
    {StateField::db, L"饱和含湿量 DB", kMoisture},
};

const StateQuantity& stateQuantity(StateField field) {
    for (const StateQuantity& q : kStateQuantities)
        if (q.field == field) return q;
    return kStateQuantities[0];
}

// The result rows of "i_dresdlg" that the calculation did not take as given: the state's
// temperatures, moisture, humidity and enthalpy, then the vapour pressures and the volume.
void addStateResults(JournalEntry& entry, const AirState& s, bool (*given)(int, StateField), int choice) {
    for (StateField field : {StateField::t, StateField::ts, StateField::tl, StateField::d, StateField::fy, StateField::i}) {
        if (given && given(choice, field)) continue;
        const StateQuantity& q = stateQuantity(field);
        entry.results.push_back(quantity(q.name, q.unit, fieldOf(s, field), 3));
    }
    entry.results.push_back(quantity(L"水蒸气分压力 PQ", L"Pa", s.pq, 3));
    entry.results.push_back(quantity(L"饱和水蒸气分压力 PB", L"Pa", s.pb, 3));
    entry.results.push_back(quantity(L"比容 V", L"m³/kg", s.v, 3));
}

bool givenByChoice(int choice, StateField field) {
    const StatePointChoice* c = statePointChoice(choice);
    if (!c) return false;
    for (int k = 0; k < c->inputCount; ++k)
        if (c->inputs[k].field == field) return true;
    return false;
}

JournalEntry entryOf(JournalKind kind, const wchar_t* title, double B) {
    JournalEntry entry;
    entry.kind = kind;
    entry.title = title;
    entry.B = B;
    entry.inputs.push_back(quantity(L"大气压力 B", kKiloPascal, B, 3));
    return entry;
}

// A stream of the mixing dialog, completed at pressure B for its place on the chart. Its
// inputs were never checked as a state, so a dew point out of range stays out of the alerts.
AirState streamState(const AirStream& stream, double B) {
    airstate::AlertCapture quiet;
    AirState s;
    s.B = B;
    s.i = stream.i;
    s.d = stream.d;
    StateFromEnthalpyMoisture(s);
    return s;
}

}  // namespace

JournalEntry statePointEntry(int choice, const AirState& state, StatePointOutcome outcome) {
    JournalEntry entry = entryOf(JournalKind::statePoint, L"湿空气状态点计算", state.B);
    const StatePointChoice* given = statePointChoice(choice);
    if (!given) entry.inputs.push_back({L"已知条件", L"", 0.0, 0, L"在焓湿图上选取的点"});
    for (int k = 0; given && k < given->inputCount; ++k) {
        const StateQuantity& q = stateQuantity(given->inputs[k].field);
        entry.inputs.push_back(quantity(q.name, q.unit, fieldOf(state, q.field), 2));
    }
    if (outcome == kOutcomeWetBulbOnly) {
        entry.results.push_back(quantity(L"湿球温度 TS", kCelsius, state.ts, 3));
        return entry;
    }
    addStateResults(entry, state, givenByChoice, choice);
    if (outcome == kOutcomeImpossible)
        entry.results.push_back({L"说明", L"", 0.0, 0, L"结果不合理"});
    else
        entry.states.push_back({L"S", L"所求状态点", state});
    return entry;
}

JournalEntry supplyAirEntry(const SupplyAirInput& in, const SupplyAirResult& result) {
    JournalEntry entry = entryOf(JournalKind::supplyAir, L"送风量与送风状态计算", in.B);
    entry.inputs.push_back(quantity(L"室内干球温度", kCelsius, in.tn, 2));
    entry.inputs.push_back(quantity(L"室内相对湿度", kPercent, in.rhn, 2));
    entry.inputs.push_back(quantity(in.totalLoad ? L"全热冷负荷" : L"显热冷负荷", kKiloWatt, in.load, 3));
    if (in.totalLoad || in.moistureGiven) entry.inputs.push_back(quantity(L"湿负荷", kFlow, in.w, 3));
    entry.inputs.push_back(quantity(L"送风温差", kCelsius, in.dt, 3));

    entry.results.push_back(quantity(L"送风量", kFlow, result.G, 4));
    entry.results.push_back(quantity(L"送风干球温度", kCelsius, result.supply.t, 3));
    entry.states.push_back({L"N", L"室内状态点", result.indoor});
    if (!result.complete) return entry;
    entry.results.push_back(quantity(L"送风湿球温度", kCelsius, result.supply.ts, 3));
    entry.results.push_back(quantity(L"送风含湿量", kMoisture, result.supply.d, 3));
    entry.results.push_back(quantity(L"送风焓值", kEnthalpy, result.supply.i, 3));
    entry.results.push_back(quantity(L"送风相对湿度", kPercent, result.supply.fy, 3));
    entry.states.push_back({L"O", L"送风状态点", result.supply});
    return entry;
}

JournalEntry mixingEntry(const AirStream& a, const AirStream& b, const AirState& mixture, StatePointOutcome outcome) {
    JournalEntry entry = entryOf(JournalKind::mixing, L"两股空气混合", mixture.B);
    entry.inputs.push_back(quantity(L"焓值 iA", kEnthalpy, a.i, 3));
    entry.inputs.push_back(quantity(L"含湿量 dA", kMoisture, a.d, 3));
    entry.inputs.push_back(quantity(L"风量 GA", kFlow, a.G, 3));
    entry.inputs.push_back(quantity(L"焓值 iB", kEnthalpy, b.i, 3));
    entry.inputs.push_back(quantity(L"含湿量 dB", kMoisture, b.d, 3));
    entry.inputs.push_back(quantity(L"风量 GB", kFlow, b.G, 3));
    entry.results.push_back(quantity(L"混合风量 G", kFlow, a.G + b.G, 3));
    addStateResults(entry, mixture, nullptr, 0);
    if (outcome == kOutcomeImpossible) {
        entry.results.push_back({L"说明", L"", 0.0, 0, L"结果不合理"});
        return entry;
    }
    entry.states.push_back({L"A", L"A点空气", streamState(a, mixture.B)});
    entry.states.push_back({L"B", L"B点空气", streamState(b, mixture.B)});
    entry.states.push_back({L"M", L"混合点", mixture});
    return entry;
}

}  // namespace vrn2
