// The input checks of the coil-check dialog, in the order the user meets them. Each fault
// names the tile that gets the focus and the message shown.
#pragma once

#include <optional>

#include "coil/coil_check.h"

namespace vrn2 {

// What the dialog's tiles held: a number, or nothing when the text was not a number.
struct CoilCheckReadings {
    bool modelChosen = false;  // the model list has a selection
    std::optional<double> B, rows, units, t1, ts1, G, tw1, W;
    bool series = false;
};

struct InputFault {
    const wchar_t* key;      // the tile to put the focus on
    const wchar_t* message;  // the text shown
};

inline constexpr wchar_t kMsgEnterModel[] = L"输入表冷器型号.";
inline constexpr wchar_t kMsgEnterRows[] = L"输入正确的排数.";

// The first fault of the readings, or nothing when they make a complete input.
std::optional<InputFault> firstCoilCheckFault(const CoilCheckReadings& r);

// The check input of readings without a fault.
CoilCheckInput coilCheckInput(const CoilCheckReadings& r);

// A whole number from 1 to 32767 (a row or unit count).
bool isCount(const std::optional<double>& value);

}  // namespace vrn2
