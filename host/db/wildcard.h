// Wildcard patterns of the editor (acutWcMatch): # digit, @ letter, . other, * any run,
// ? any character, ~ at the start negates, [...] and [~...] classes with ranges, ` escapes,
// and commas separate alternatives. Matching is case-sensitive; the NoCase form folds ASCII
// letters, as symbol names are compared.
#pragma once

#include <string_view>

namespace host::db {

bool wildcardMatch(std::wstring_view text, std::wstring_view pattern);
bool wildcardMatchNoCase(std::wstring_view text, std::wstring_view pattern);

}  // namespace host::db
