#include "psychro/process_checks.h"

#include <cfloat>

namespace vrn2 {
namespace {

constexpr wchar_t kTempRange[] = L"温度要求在-50-100℃之间.";
constexpr wchar_t kHumidityRange[] = L"相对湿度要求在0-100之间.";
constexpr wchar_t kMoistureRange[] = L"含湿量要求在0-100g/kg之间.";
constexpr wchar_t kFlowRange[] = L"空气流量应大于0.";

// Indexed by ProcessTile.
constexpr ProcessTileSpec kSpecs[kProcessTileCount] = {
    {L"B", L"大气压力", L"kPa", 50.0, 200.0, L"大气压要求在50-200kPa之间."},
    {L"t1", L"初始干球温度", L"℃", -50.0, 100.0, kTempRange},
    {L"fy1", L"初始相对湿度", L"%", 0.0, 100.0, kHumidityRange},
    {L"t2", L"终点干球温度", L"℃", -50.0, 100.0, kTempRange},
    {L"fy2", L"终点相对湿度", L"%", 0.0, 100.0, kHumidityRange},
    {L"d2", L"终点含湿量", L"g/kg", 0.0, 100.0, kMoistureRange},
    {L"tl", L"机器露点温度", L"℃", -50.0, 100.0, kTempRange},
    {L"eps", L"热湿比ε", L"kJ/kg", -DBL_MAX, DBL_MAX, L""},
    {L"t3", L"第二股空气干球温度", L"℃", -50.0, 100.0, kTempRange},
    {L"fy3", L"第二股空气相对湿度", L"%", 0.0, 100.0, kHumidityRange},
    {L"g3", L"第二股空气流量", L"kg/h", DBL_MIN, DBL_MAX, kFlowRange},
    {L"G", L"空气流量", L"kg/h", DBL_MIN, DBL_MAX, kFlowRange},
};

double valueOf(const ProcessReadings& r, ProcessTile t) { return r[t].value_or(0.0); }

std::optional<ProcessInputFault> faultOf(const ProcessReadings& r, ProcessTile t) {
    const ProcessTileSpec& input = processTileSpec(t);
    if (!r[t]) return ProcessInputFault{input.key, std::wstring(L"输入") + input.name + L"."};
    if (*r[t] < input.low || *r[t] > input.high) return ProcessInputFault{input.key, input.rangeMessage};
    return std::nullopt;
}

}  // namespace

const ProcessTileSpec& processTileSpec(ProcessTile tile) { return kSpecs[static_cast<int>(tile)]; }

bool kindOffersMoisture(ProcessKind kind) {
    return kind == ProcessKind::dehumidifying || kind == ProcessKind::adiabatic || kind == ProcessKind::steam ||
           kind == ProcessKind::ratio;
}

std::vector<ProcessTile> processParameterTiles(ProcessKind kind, bool byD) {
    using T = ProcessTile;
    const T humidityOrMoisture = byD ? T::d2 : T::fy2;
    switch (kind) {
        case ProcessKind::heating:
        case ProcessKind::cooling: return {T::t2};
        case ProcessKind::dehumidifying: return {T::t2, humidityOrMoisture};
        case ProcessKind::dewPoint: return {T::tl, T::fy2};
        case ProcessKind::adiabatic:
        case ProcessKind::steam: return {humidityOrMoisture};
        case ProcessKind::ratio: return {T::eps, byD ? T::d2 : T::t2};
        case ProcessKind::mixing: return {T::t3, T::fy3, T::g3};
    }
    return {};
}

std::optional<ProcessInputFault> firstProcessInputFault(const ProcessReadings& r) {
    std::vector<ProcessTile> order = {ProcessTile::B, ProcessTile::t1, ProcessTile::fy1};
    for (ProcessTile t : processParameterTiles(r.kind, r.byD)) order.push_back(t);
    order.push_back(ProcessTile::G);
    for (ProcessTile t : order)
        if (auto fault = faultOf(r, t)) return fault;
    return std::nullopt;
}

ProcessInput processInput(const ProcessReadings& r) {
    using T = ProcessTile;
    ProcessInput in;
    in.kind = r.kind;
    const double B = valueOf(r, T::B);
    in.start = airStateAt(B, valueOf(r, T::t1), valueOf(r, T::fy1));
    in.G = valueOf(r, T::G);
    in.endT = valueOf(r, T::t2);
    in.endFy = valueOf(r, T::fy2);
    in.endD = valueOf(r, T::d2);
    in.dewPointT = valueOf(r, T::tl);
    in.epsilon = valueOf(r, T::eps);
    const bool byD = r.byD && kindOffersMoisture(r.kind);
    in.given = byD ? EndGiven::moisture : (r.kind == ProcessKind::ratio ? EndGiven::temperature : EndGiven::humidity);
    if (r.kind == ProcessKind::mixing) {
        in.second = airStateAt(B, valueOf(r, T::t3), valueOf(r, T::fy3));
        in.G2 = valueOf(r, T::g3);
    }
    return in;
}

const wchar_t* processFaultKey(ProcessFault fault, const ProcessInput& in) {
    using T = ProcessTile;
    switch (fault) {
        case ProcessFault::none: return nullptr;
        case ProcessFault::start: return processTileSpec(T::t1).key;
        case ProcessFault::endT: return processTileSpec(T::t2).key;
        case ProcessFault::endFy: return processTileSpec(T::fy2).key;
        case ProcessFault::endD: return processTileSpec(T::d2).key;
        case ProcessFault::dewPointT: return processTileSpec(T::tl).key;
        case ProcessFault::epsilon: return processTileSpec(T::eps).key;
        case ProcessFault::second: return processTileSpec(T::t3).key;
        case ProcessFault::flow: return processTileSpec(in.kind == ProcessKind::mixing ? T::g3 : T::G).key;
    }
    return nullptr;
}

}  // namespace vrn2
