#include "host/dcl/problem.h"

#include "acutads.h"
#include "host/file_names.h"

namespace host::dcl {

std::wstring problemLine(const Problem& problem) {
    std::wstring text = L"DCL error in " + nameOf(problem.file.generic_string());
    if (problem.line > 0) text += L" line " + std::to_wstring(problem.line);
    return text + L": " + problem.message + L"\n";
}

void reportProblems(const std::vector<Problem>& problems) {
    for (const auto& p : problems) acutPrintf(L"%ls", problemLine(p).c_str());
}

}  // namespace host::dcl
