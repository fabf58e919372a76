// Writing a file in one piece: the bytes go to a temporary file beside it, which then takes the
// file's name, so that a failure leaves no half-written file and the old one, if any, intact.
#pragma once

#include <string>

namespace vrn2 {

// Writes BYTES as the file NAME (a bare name lands in the host's current folder). Answers
// false when it could not, having removed its temporary file.
bool writeWholeFile(const std::wstring& name, const std::string& bytes);

}  // namespace vrn2
