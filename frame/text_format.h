// printf-style formatting into a wide string, for texts that are put together before they are
// written in one piece (result file blocks).
#pragma once

#include <cwchar>
#include <string>

namespace vrn2 {

// Appends FORMAT with its arguments to OUT; a piece longer than 511 characters is left out.
// Texts travel as arguments (%ls), so a "%" inside them is plain text.
template <typename... Args>
void appendFormat(std::wstring& out, const wchar_t* format, Args... args) {
    wchar_t piece[512];
    int n = std::swprintf(piece, sizeof piece / sizeof piece[0], format, args...);
    if (n > 0) out.append(piece, static_cast<size_t>(n));
}

}  // namespace vrn2
