// The return-air dialog's inputs as read from its tiles, and their checks in the order the
// designer meets them: each fault names the tile that gets the focus and the message.
#pragma once

#include <optional>

#include "psychro/return_air.h"

namespace vrn2 {

// The choices of the radio buttons, and the typed numbers (empty: the text was no number).
struct ReturnAirReadings {
    ReturnAirInput choices;  // kind, season, the "given" flags, supply rule, φL, humidifier
    std::optional<double> B, tN, fyN, tW, outdoorSecond, Q, loadSecond, fresh, supplyValue, preheatLimit,
        secondaryFlow;
};

struct ReturnAirFault {
    const wchar_t* key;      // the tile to put the focus on
    const wchar_t* message;  // shown in the dialog's "error" tile
};

// The first fault of the readings, or nothing when they make a complete input. Values a
// choice does not use are not checked.
std::optional<ReturnAirFault> firstReturnAirFault(const ReturnAirReadings& r);

// The calculation input of readings without a fault.
ReturnAirInput returnAirInput(const ReturnAirReadings& r);

}  // namespace vrn2
