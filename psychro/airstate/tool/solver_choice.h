// Which state solver a set of known fields names, for the airstate tool.
#pragma once

#include <string>

#include "psychro/airstate/airstate.h"

namespace airstate_tool {

// The fields a user can give, as bits of a set.
enum Field : unsigned {
    kT = 1u << 0,
    kTs = 1u << 1,
    kTl = 1u << 2,
    kD = 1u << 3,
    kFy = 1u << 4,
    kI = 1u << 5,
    kDb = 1u << 6,
    // Written by the solvers, never given.
    kPq = 1u << 7,
    kPb = 1u << 8,
    kV = 1u << 9,
};

// What most solvers write: every field but db.
inline constexpr unsigned kAllButDb = kT | kTs | kTl | kD | kFy | kI | kPq | kPb | kV;

enum class Variant { Standard, Supply, Cooler };

struct SolverChoice {
    unsigned fields;
    Variant variant;
    const char* name;
    int (*solve)(AirState&);
    unsigned computes;  // the fields it writes; the others it leaves as they were
};

// The solver for exactly these fields and this variant, or null. When it is null, *problem
// says why (no solver for the fields, or a variant that does not fit them).
const SolverChoice* FindSolver(unsigned fields, Variant variant, std::string* problem);

// The option names of the fields, in the order of the bits: "t", "ts", "tl", "d", "fy", "i", "db".
inline constexpr const char* kFieldNames[] = {"t", "ts", "tl", "d", "fy", "i", "db"};
inline constexpr unsigned kFieldCount = 7;

// A set of fields as "t+ts".
std::string FieldSetName(unsigned fields);

// "i+d, t+fy, ...": the accepted sets of fields, for error messages and the help text.
const char* AcceptedPairs();

}  // namespace airstate_tool
