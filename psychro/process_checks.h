// The inputs of the air-handling process dialog: which tiles each kind of process reads, the
// checks in the order the designer meets them, and the process input they make.
#pragma once

#include <optional>
#include <vector>

#include "psychro/air_process.h"

namespace vrn2 {

// The numeric input tiles, in the order of the checks.
enum class ProcessTile { B, t1, fy1, t2, fy2, d2, tl, eps, t3, fy3, g3, G };
inline constexpr int kProcessTileCount = 12;

struct ProcessTileSpec {
    const wchar_t* key;      // the dialog tile
    const wchar_t* name;     // the quantity, for messages and the result file, e.g. L"终点干球温度"
    const wchar_t* unit;     // e.g. L"℃"
    double low, high;        // the accepted range, bounds included
    const wchar_t* rangeMessage;
};
const ProcessTileSpec& processTileSpec(ProcessTile tile);

// The dialog's radio buttons of the kinds, in the order of ProcessKind.
inline constexpr const wchar_t* kProcessKindKeys[kProcessKindCount] = {
    L"k_heat", L"k_cool", L"k_dehum", L"k_adp", L"k_adia", L"k_steam", L"k_eps", L"k_mix"};

// Whether the kind lets the designer give the end by its moisture content instead (toggle "by_d").
bool kindOffersMoisture(ProcessKind kind);

// The tiles KIND reads besides the start state and the flow, in the order of the checks; BYD
// is the toggle "by_d".
std::vector<ProcessTile> processParameterTiles(ProcessKind kind, bool byD);

// What the tiles held: a number, or nothing when the text was not a number.
struct ProcessReadings {
    ProcessKind kind = ProcessKind::heating;
    bool byD = false;
    std::optional<double> values[kProcessTileCount];
    std::optional<double>& operator[](ProcessTile t) { return values[static_cast<int>(t)]; }
    const std::optional<double>& operator[](ProcessTile t) const { return values[static_cast<int>(t)]; }
};

struct ProcessInputFault {
    const wchar_t* key;    // the tile to put the focus on
    std::wstring message;  // the text of the "error" tile
};

// The first fault of the readings the kind uses, or nothing.
std::optional<ProcessInputFault> firstProcessInputFault(const ProcessReadings& r);

// The process input of readings without a fault: the start (and the second stream) solved from
// t and φ at B.
ProcessInput processInput(const ProcessReadings& r);

// The tile that holds the input a process fault names.
const wchar_t* processFaultKey(ProcessFault fault, const ProcessInput& in);

}  // namespace vrn2
