// Appending printf-formatted pieces to wide text, for the lines of the coil's files.
#pragma once

#include <cwchar>
#include <string>

namespace vrn2 {

// Appends one formatted piece (at most 511 characters). Texts travel as %ls arguments, so a
// "%" inside them is plain text.
template <typename... Args>
void appendFormatted(std::wstring& out, const wchar_t* format, Args... args) {
    wchar_t piece[512];
    const int n = std::swprintf(piece, sizeof piece / sizeof piece[0], format, args...);
    if (n > 0) out.append(piece, static_cast<size_t>(n));
}

}  // namespace vrn2
