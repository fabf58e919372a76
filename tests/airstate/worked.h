// Helpers for comparing the library with values worked out independently
// (tests/airstate/worked_values.py: the relations in 40-digit arithmetic, roots by bisection).
#pragma once

#include <gtest/gtest.h>

#include <cmath>

#include "psychro/airstate/alert.h"
#include "psychro/airstate/airstate.h"

namespace airstate_test {

// Relative agreement for values computed by closed formulas.
inline constexpr double kFormulaRel = 1e-12;
// Absolute agreement, °C, for temperatures found by the secant steps, which stop once a step is
// at most 1e-5 K; the converged root is far closer than that.
inline constexpr double kRootAbs_C = 1e-8;

inline ::testing::AssertionResult CloseRel(double actual, double expected, double rel) {
    if (std::fabs(actual - expected) <= rel * std::fabs(expected))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << actual << " differs from " << expected << " by more than " << rel << " relative";
}

inline AirState Record(double B_kPa) {
    AirState s;
    s.B = B_kPa;
    return s;
}

// A record whose every field holds a marker, to see which fields a solver writes.
inline AirState MarkedRecord(double B_kPa, double marker) {
    AirState s{B_kPa, marker, marker, marker, marker, marker,
               marker, marker, marker, marker, marker};
    return s;
}

inline const wchar_t* kOutOfRangeAlert = L"求得温度范围不对.";

}  // namespace airstate_test
