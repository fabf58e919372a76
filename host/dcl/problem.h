// A fault found in a DCL file, reported on the command line as
// "DCL error in FILE line N: MESSAGE".
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host::dcl {

struct Problem {
    std::filesystem::path file;
    int line = 0;
    std::wstring message;
};

// The command-line text of one problem, with its trailing newline.
std::wstring problemLine(const Problem& problem);
// Prints each problem through acutPrintf.
void reportProblems(const std::vector<Problem>& problems);

}  // namespace host::dcl
