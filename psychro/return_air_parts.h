// The steps of the return-air calculation that its season files share: the typed states, the
// room's process line, the supply state and flow, and the fresh air. Internal to return_air*.
#pragma once

#include <string>

#include "psychro/return_air.h"

namespace vrn2::return_air {

inline constexpr double kSecondsPerHour = 3600.0;

// Each step answers an empty string, or the message that stops the calculation.

// N and W from the inputs, and the room's ε and moisture gain into OUT.
std::wstring roomAndOutdoor(const ReturnAirInput& in, ReturnAirResult& out, AirState& N, AirState& W);
// The supply state O and the supply flow G (into OUT) from the rule of the inputs; not for the
// dew-point rule, whose O is found on the dew-point curve.
std::wstring supplyState(const ReturnAirInput& in, const AirState& N, ReturnAirResult& out, AirState& O);
// G from the room's heat (or moisture when there is no heat) carried by supply state O.
double flowToCarryLoads(const ReturnAirInput& in, const ReturnAirResult& r, const AirState& N, const AirState& O);
// The fresh-air flow and ratio (into OUT) once G is known.
std::wstring freshAir(const ReturnAirInput& in, ReturnAirResult& out);

void addState(ReturnAirResult& out, const wchar_t* label, const wchar_t* name, const AirState& s);

std::wstring computeSummer(const ReturnAirInput& in, ReturnAirResult& out);
std::wstring computeWinter(const ReturnAirInput& in, ReturnAirResult& out);

}  // namespace vrn2::return_air
