// The rooms of the return-air tests, worked out independently by return_air_worked.py.
#pragma once

#include "psychro/return_air.h"

namespace vrn2 {

// Summer: a room at 22 °C and 55 % with 3.314 kW of heat and 0.9504 kg/h (0.264 g/s) of
// moisture; outdoor air 33.2 °C with a 26.4 °C wet bulb; 15 % fresh air; supply 8 K below the
// room; the coil's dew point at 95 %.
inline ReturnAirInput summerRoom() {
    ReturnAirInput in;
    in.B = 101.325;
    in.tN = 22.0;
    in.fyN = 55.0;
    in.tW = 33.2;
    in.outdoorWetBulb = true;
    in.outdoorSecond = 26.4;
    in.Q = 3.314;
    in.loadSecond = 0.9504;
    in.fresh = 15.0;
    in.supply = SupplyRule::temperatureDifference;
    in.supplyValue = 8.0;
    in.fyL = 95.0;
    return in;
}

// Winter: the same room loses 1.5 kW; supply 1200 kg/h; outdoor −12 °C, 45 %; 40 % fresh air
// preheated to 2 °C.
inline ReturnAirInput winterRoom() {
    ReturnAirInput in = summerRoom();
    in.season = Season::winter;
    in.Q = -1.5;
    in.tW = -12.0;
    in.outdoorWetBulb = false;
    in.outdoorSecond = 45.0;
    in.fresh = 40.0;
    in.supply = SupplyRule::airFlow;
    in.supplyValue = 1200.0;
    in.preheatLimit = 2.0;
    return in;
}

}  // namespace vrn2
