// Data tables of the suite under the installation root ("datlib\\t-fzzb.dat", "datlib/sc.dat"),
// read whole as text. A file that cannot be opened is reported with "Failaure in opening file"
// through the channel the caller names.
#pragma once

#include <string>
#include <vector>

#include "frame/report.h"

namespace vrn2 {

// Reads the installation root (a missing root shows its own alert), then every line of
// root + RELATIVE without its line end. False when the root is missing or the file cannot be
// opened or read.
bool readDataLines(const wchar_t* relative, Channel failure, std::vector<std::wstring>& lines);

// The same, as the file's white-space separated tokens across all its lines.
bool readDataTokens(const wchar_t* relative, Channel failure, std::vector<std::wstring>& tokens);

}  // namespace vrn2
