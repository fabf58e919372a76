// One surface-cooler (cooling coil) record of the device database "datlib/sc.dat": a catalogue
// model at one row count, its heat-transfer correlation and its contact-coefficient table.
#pragma once

#include <array>
#include <functional>
#include <string>

namespace vrn2 {

// A record holds at most this many (Vy, E2) pairs; pairs beyond the record's count are zero.
inline constexpr int kMaxContactPairs = 10;

struct ContactPair {
    double Vy = 0.0;  // face velocity, m/s
    double E2 = 0.0;  // contact coefficient at that velocity
};
using ContactTable = std::array<ContactPair, kMaxContactPairs>;

struct CoolerModel {
    std::wstring name;  // model name, e.g. "JW20"
    short rows = 0;     // number of rows
    // K = 1 / (1 / (A·Vy^m·ξ^p) + 1 / (B·w^n)), W/(m²·K)
    double A = 0.0, B = 0.0, m = 0.0, p = 0.0, n = 0.0;
    double L1 = 0.0, L2 = 0.0;  // the catalogue range of the record's L entry
    double Fd = 0.0;            // heat-transfer area per row and unit, m²
    double Fy = 0.0;            // face (windward) area, m²
    double fw = 0.0;            // water passage area, m²
    ContactTable E2{};
};

// Where pure code sends the alerts it owns; the handlers route them to the host's alert box.
using AlertSink = std::function<void(const wchar_t*)>;

}  // namespace vrn2
