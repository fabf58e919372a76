// Conversions between the interface's wide strings and the UTF-8 of files and terminals.
#pragma once

#include <string>
#include <string_view>

namespace host {

std::string toUtf8(std::wstring_view text);
// Invalid sequences become U+FFFD.
std::wstring fromUtf8(std::string_view text);

// Upper-case of ASCII letters only, as symbol names and table names are compared.
std::wstring upperAscii(std::wstring_view text);
bool equalsNoCase(std::wstring_view a, std::wstring_view b);

// Without the blanks and tabs around it, as values stand on the lines of a DXF file.
std::string_view trimBlanks(std::string_view text);

}  // namespace host
