// Text files as the module reads and writes them: wide text through the C runtime, which
// converts with the current locale, and the split of a text into lines or tokens.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace vrn2 {

// Reads the rest of an open text stream; false on a read error (bytes that are not text).
bool readWideText(FILE* file, std::wstring& text);

// The lines of TEXT without their line ends ("\n", or "\r\n" as a file from Windows has
// them). A text that ends with a line end has no empty line after it; an empty text has none.
std::vector<std::wstring> splitLines(const std::wstring& text);

// The runs of TEXT between white space (blanks, tabs, line ends), in order.
std::vector<std::wstring> splitTokens(const std::wstring& text);

// Wide text and the bytes the C runtime writes for it in the current locale; false when a
// character or a byte sequence has no counterpart.
bool toLocaleBytes(const std::wstring& text, std::string& bytes);
bool fromLocaleBytes(const std::string& bytes, std::wstring& text);

}  // namespace vrn2
