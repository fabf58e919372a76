// The state-point result file "wair002.txt": one block per saved state, appended under a
// title written when the file is created. The layout of a block is worked out by a pure
// function from the choice and the state; the writer only prints it.
#pragma once

#include <string>

#include "psychro/airstate/airstate.h"

namespace vrn2 {

inline constexpr wchar_t kStatePointFileName[] = L"wair002.txt";

struct ReportRow {
    const wchar_t* label;
    double value;
};

// One block of the file. Each format is printed with its own arguments.
struct StatePointBlock {
    const wchar_t* pressureFormat;  // one %.3lf: B
    double pressure;
    const wchar_t* knownFormat;  // up to two %.2lf: the given quantities, in the choice's order
    int knownCount;
    double known[2];
    const wchar_t* rowFormat;  // %ls label, %.3lf value
    int rowCount;
    ReportRow rows[5];
};

// The block for CHOICE (1..9, or kChoicePickedPoint) and the state it computed. The rows are
// the quantities among t, ts, d, fy, i that the choice did not give, in that order; choice 5
// has the single row ts.
StatePointBlock statePointBlock(int choice, const AirState& state);

// The text of BLOCK as the file holds it.
std::wstring statePointText(const StatePointBlock& block);

// Appends BLOCK to FILENAME in the current folder, creating it with its title first. On
// failure shows the alert "不能创建存放结果的文件.", writes nothing and answers false.
bool appendStatePointBlock(const wchar_t* fileName, const StatePointBlock& block);

}  // namespace vrn2
