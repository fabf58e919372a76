// The input checks of the supply-air dialog, in the order the user meets them. Each fault names
// the tile that gets the focus and the message of the alert.
#pragma once

#include <optional>

#include "psychro/supply_air.h"

namespace vrn2 {

// What the dialog's tiles held: a number, or nothing when the text was not a number.
struct SupplyAirReadings {
    std::optional<double> B, tn, rhn, load, w, dt;
    bool totalLoad = true;
    bool moistureGiven = true;
};

struct SupplyAirFault {
    const wchar_t* key;      // the tile to put the focus on
    const wchar_t* message;  // the alert's text
};

// The accepted ranges include their bounds: 50 and 200 kPa, 0 and 100 °C, 0 and 100 % are
// valid inputs (the same rule as the mixing dialog's pressure).
inline constexpr double kMinPressure_kPa = 50.0, kMaxPressure_kPa = 200.0;
inline constexpr double kMinIndoorTemp_C = 0.0, kMaxIndoorTemp_C = 100.0;
inline constexpr double kMinHumidity = 0.0, kMaxHumidity = 100.0;

// The first fault of the readings, or nothing when they make a complete input.
std::optional<SupplyAirFault> firstSupplyAirFault(const SupplyAirReadings& r);

// The calculation input of readings that have no fault; the moisture load is 0 when it is
// neither given nor needed.
SupplyAirInput supplyAirInput(const SupplyAirReadings& r);

}  // namespace vrn2
