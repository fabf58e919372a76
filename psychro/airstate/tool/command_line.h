// The airstate tool's command line: the pressure, the known fields, the variant and the form
// of output.
#pragma once

#include <array>
#include <string>

#include "psychro/airstate/tool/solver_choice.h"

namespace airstate_tool {

struct Request {
    double B_kPa = 101.325;
    unsigned fields = 0;                       // which of values are given (Field bits)
    std::array<double, kFieldCount> values{};  // indexed like kFieldNames
    Variant variant = Variant::Standard;
    bool json = false;
    bool help = false;
    bool version = false;
};

// Reads argv[1..argc-1] into *request. Returns false with *problem set on an unknown option, a
// missing value, a value that is not a finite number, a field given twice or a bad variant.
bool ParseCommandLine(int argc, char** argv, Request* request, std::string* problem);

}  // namespace airstate_tool
