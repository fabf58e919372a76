// Return-air systems of a conditioned room: the primary-return system (一次回风: fresh and
// return air mixed before the coil) and the secondary-return system (二次回风: part of the
// return air mixed again with the air leaving the coil), in summer and in winter. Pure numeric
// code over the humid-air library's states; the dialog, the result file and the chart live
// elsewhere.
//
// Summer: the supply state O lies on the room's heat-moisture ratio line ε through the room
// state N; the coil leaves the air at the apparatus dew point L on the curve of relative
// humidity φL (90 or 95 %). Primary: L at dL = dO, reheated to O (no reheat when the supply is
// at the dew point). Secondary: L on the extension of N–O beyond O, so that mixing L with
// return air gives O without reheat.
// Winter: the supply state O from the winter loads (the room loses heat: Q < 0); fresh air
// below the preheat limit is preheated first, the mixture is heated to the enthalpy of L when
// it is lower (adiabatic spray) or to the temperature it is humidified at (steam), humidified
// to L, and reheated (primary) or mixed with return air and reheated (secondary).
#pragma once

#include <string>
#include <vector>

#include "psychro/airstate/airstate.h"

namespace vrn2 {

enum class ReturnAirKind { primary, secondary };
enum class Season { summer, winter };
// How the supply state is fixed: the supply temperature difference |tO − tN|, the supply at
// the apparatus dew point (summer primary only: O = L), or a given supply air flow.
enum class SupplyRule { temperatureDifference, dewPoint, airFlow };
enum class Humidifier { adiabatic, steam };

struct ReturnAirInput {
    ReturnAirKind kind = ReturnAirKind::primary;
    Season season = Season::summer;
    double B = 101.325;  // kPa
    double tN = 22.0, fyN = 55.0;  // room, °C and %
    double tW = 33.2;              // outdoor dry bulb, °C
    bool outdoorWetBulb = true;    // the second outdoor value is the wet bulb (else φ, %)
    double outdoorSecond = 26.4;   // °C or %
    double Q = 3.314;              // room's excess heat, kW (negative when it loses heat)
    bool ratioGiven = false;       // the second load value is ε (kJ/kg), not the moisture
    double loadSecond = 0.9504;    // moisture gain, kg/h, or ε, kJ/kg
    bool freshFlowGiven = false;   // the fresh air is a flow (kg/h), not a ratio (%)
    double fresh = 15.0;           // % of the supply flow, or kg/h
    SupplyRule supply = SupplyRule::temperatureDifference;
    double supplyValue = 8.0;      // K, or kg/h for airFlow
    double fyL = 95.0;             // relative humidity at the apparatus dew point, %
    // Winter only.
    double preheatLimit = 5.0;     // °C: colder fresh air is preheated to it
    Humidifier humidifier = Humidifier::adiabatic;
    double secondaryFlow = 0.0;    // kg/h of secondary return air (the summer design's)
};

struct NamedAirState {
    std::wstring label;  // as the textbook figures letter them: N, W, W', C, C1, C2, D, L, O
    std::wstring name;   // e.g. L"室内状态点"
    AirState state;
};

struct ReturnAirResult {
    std::vector<NamedAirState> states;  // in the order the air passes them
    double epsilon = 0.0;         // kJ/kg, ±infinity when the room gains no moisture
    double W = 0.0;               // room moisture gain, kg/h
    double G = 0.0;               // supply air flow, kg/h
    double freshFlow = 0.0;       // kg/h
    double freshRatio = 0.0;      // %
    double primaryReturn = 0.0;   // kg/h, return air mixed before the coil
    double secondaryReturn = 0.0; // kg/h, return air mixed after the coil (secondary system)
    double coilFlow = 0.0;        // kg/h through the coil (or the humidifier in winter)
    double coolingLoad = 0.0;     // kW, summer coil
    double condensate = 0.0;      // kg/h, summer coil
    double reheat = 0.0;          // kW
    double freshPreheat = 0.0;    // kW, winter fresh air to the preheat limit
    double mixHeating = 0.0;      // kW, winter mixture heated before the humidifier
    double humidification = 0.0;  // kg/h, winter
    // Summer secondary: the primary system of the same room, for comparison.
    double primaryCoolingLoad = 0.0, primaryReheat = 0.0;

    const NamedAirState* find(const wchar_t* label) const;
};

// Computes the system. Returns an empty string and fills OUT, or the Chinese message that
// says why the system cannot be built this way (OUT then holds what was found so far).
std::wstring computeReturnAir(const ReturnAirInput& in, ReturnAirResult& out);

// ---- Pieces shared by the seasons (return_air_states.cpp) --------------------------------

// The state at (i, d); false when it is not a possible state (φ over 100 %, d < 0).
bool stateAtEnthalpyMoisture(double B, double i, double d, AirState& out);
// The state that mixes GA of A with GB of B.
AirState mixStates(const AirState& a, double GA, const AirState& b, double GB);
// The point where the straight line from (iFrom, dFrom) in direction (di, dd), at parameter
// s ≥ sStart, first reaches relative humidity fyTarget; false when it leaves the chart first.
bool lineReachesHumidity(double B, double iFrom, double dFrom, double di, double dd, double sStart,
                         double fyTarget, AirState& out);

}  // namespace vrn2
