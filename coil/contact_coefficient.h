// The contact coefficient E2 of a coil at a face velocity, from the record's (Vy, E2) table.
#pragma once

#include "coil/cooler_model.h"

namespace vrn2 {

inline constexpr wchar_t kMsgContactOutOfRange[] = L"求出的接触系数不在设备给出的范围";

// E2 at face velocity VY (m/s). The table ends at its first pair with Vy = 0 and is taken in
// ascending Vy. One pair gives its E2 at any velocity; between the first and the last Vy (both
// included) E2 is interpolated linearly; outside, it is extrapolated on the two nearest pairs
// and ALERT gets the out-of-range message. An empty table gives 0.
double contactCoefficient(const ContactTable& table, double Vy, const AlertSink& alert);

}  // namespace vrn2
