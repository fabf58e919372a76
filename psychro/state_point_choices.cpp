#include "psychro/state_point_choices.h"

#include <cwchar>

#include "adscodes.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgNoEnthalpy[] = L"输入焓值.";
constexpr wchar_t kMsgNoTemperature[] = L"输入温度值.";
constexpr wchar_t kMsgNoHumidity[] = L"输入相对湿度值.";
constexpr wchar_t kMsgBadD[] = L"无效的D值输入.";
constexpr wchar_t kMsgBadFy[] = L"无效的FY值输入.";
constexpr wchar_t kMsgBadTs[] = L"无效的ts值输入.";
constexpr wchar_t kMsgBadTl[] = L"无效的TL值输入.";
constexpr wchar_t kMsgBadDb[] = L"无效的DB值输入.";
constexpr wchar_t kMsgNoDb[] = L"输入DB值.";

using F = StateField;

const StatePointChoice kChoices[kChoiceCount] = {
    {L"ihd", 2, {{L"ih", kMsgNoEnthalpy, F::i}, {L"d", kMsgBadD, F::d}}, StateFromEnthalpyMoisture},
    {L"tfy", 2, {{L"temp", kMsgNoTemperature, F::t}, {L"fy", kMsgBadFy, F::fy}}, StateFromTempHumidity},
    {L"tts", 2, {{L"temp", kMsgNoTemperature, F::t}, {L"ts", kMsgBadTs, F::ts}}, StateFromTempWetBulb},
    {L"td", 2, {{L"temp", kMsgNoTemperature, F::t}, {L"d", kMsgBadD, F::d}}, StateFromTempMoisture},
    {L"ihts", 1, {{L"ih", kMsgNoEnthalpy, F::i}, {nullptr, nullptr, F::i}}, SaturationFromEnthalpy},
    {L"ttl", 2, {{L"temp", kMsgNoTemperature, F::t}, {L"tl", kMsgBadTl, F::tl}}, StateFromTempDewPoint},
    {L"fyd", 2, {{L"fy", kMsgNoHumidity, F::fy}, {L"d", kMsgBadD, F::d}}, StateFromMoistureHumidity},
    {L"dbfy", 2, {{L"fy", kMsgNoHumidity, F::fy}, {L"db", kMsgBadDb, F::db}},
     StateFromSaturatedMoistureHumidity},
    {L"tldb", 2, {{L"db", kMsgNoDb, F::db}, {L"tl", kMsgBadTl, F::tl}}, StateFromSaturatedMoistureDewPoint},
};

}  // namespace

double& fieldOf(AirState& state, StateField field) {
    switch (field) {
        case F::t: return state.t;
        case F::ts: return state.ts;
        case F::tl: return state.tl;
        case F::d: return state.d;
        case F::fy: return state.fy;
        case F::i: return state.i;
        case F::db: return state.db;
    }
    return state.t;
}

double fieldOf(const AirState& state, StateField field) {
    return fieldOf(const_cast<AirState&>(state), field);
}

const StatePointChoice* statePointChoice(int choice) {
    if (choice < 1 || choice > kChoiceCount) return nullptr;
    return &kChoices[choice - 1];
}

int choiceOfRadioKey(const wchar_t* key) {
    if (!key) return 0;
    for (int c = 1; c <= kChoiceCount; ++c)
        if (std::wcscmp(kChoices[c - 1].radioKey, key) == 0) return c;
    return 0;
}

bool choiceReadsTile(int choice, const wchar_t* tile) {
    const StatePointChoice* c = statePointChoice(choice);
    if (!c || !tile) return false;
    for (int k = 0; k < c->inputCount; ++k)
        if (std::wcscmp(c->inputs[k].tile, tile) == 0) return true;
    return false;
}

bool inputTakesFocus(const StatePointChoice& choice, int inputIndex) {
    return inputIndex == 1 || std::wcscmp(choice.inputs[inputIndex].tile, L"temp") == 0;
}

bool wetBulbAboveDryBulb(int choice, const AirState& state) { return choice == 3 && state.ts > state.t; }

StatePointOutcome solveStatePoint(int choice, AirState& state) {
    const StatePointChoice* c = statePointChoice(choice);
    if (!c) return kOutcomeNone;
    int status = c->solve(state);
    if (choice == kChoiceWetBulbOnly) return kOutcomeWetBulbOnly;
    return status == RTNORM ? kOutcomeValid : kOutcomeImpossible;
}

}  // namespace vrn2
