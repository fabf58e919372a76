// The nine ways of describing one humid-air state in the state-point dialog: which tiles
// each reads, the message for a tile that is not a number, and the solver that completes
// the state. Pure data and functions over AirState; no dialog calls.
#pragma once

#include "psychro/airstate/airstate.h"

namespace vrn2 {

inline constexpr int kChoiceCount = 9;
// Not a dialog choice: a state taken from a point picked on the i-d chart.
inline constexpr int kChoicePickedPoint = 0;
// The choice of a fresh module: dry-bulb temperature and relative humidity, the pair a
// designer knows most often.
inline constexpr int kDefaultChoice = 2;
// Choice 5 knows only the enthalpy and gives the wet bulb of saturated air.
inline constexpr int kChoiceWetBulbOnly = 5;

// What a calculation gave.
enum StatePointOutcome {
    kOutcomeNone = 0,         // nothing computed: an input message is pending
    kOutcomeValid = 1,        // the solver accepted the state
    kOutcomeImpossible = -1,  // computed, but the solver refused the state
    kOutcomeWetBulbOnly = 3,  // only ts was computed (choice 5)
};

// A quantity of AirState that a dialog tile feeds.
enum class StateField { t, ts, tl, d, fy, i, db };

double& fieldOf(AirState& state, StateField field);
double fieldOf(const AirState& state, StateField field);

struct ChoiceInput {
    const wchar_t* tile;     // dialog key
    const wchar_t* message;  // shown in "error" when the text is not a number
    StateField field;
};

struct StatePointChoice {
    const wchar_t* radioKey;
    int inputCount;  // 1 or 2
    ChoiceInput inputs[2];
    int (*solve)(AirState&);
};

// Choice 1..9; null for any other number.
const StatePointChoice* statePointChoice(int choice);
// The choice whose radio button has KEY; 0 when none has.
int choiceOfRadioKey(const wchar_t* key);
// The input tiles of all choices, each once: the tiles the radio buttons enable and disable.
inline constexpr const wchar_t* kInputTiles[] = {L"temp", L"ih", L"d", L"fy", L"ts", L"tl", L"db"};
// Whether choice CHOICE reads TILE.
bool choiceReadsTile(int choice, const wchar_t* tile);

// Whether a faulty input gets the focus: "temp" always, and the second input of a choice;
// a first input "ih", "fy" or "db" does not.
bool inputTakesFocus(const StatePointChoice& choice, int inputIndex);

// Choice 3 refuses a wet bulb above the dry bulb before its solver runs.
bool wetBulbAboveDryBulb(int choice, const AirState& state);

// Runs the solver of CHOICE on STATE (B and the inputs filled) and names the outcome.
StatePointOutcome solveStatePoint(int choice, AirState& state);

}  // namespace vrn2
